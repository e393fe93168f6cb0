#import "front/TextMeasuring.h"

namespace tarnwick {

// Ahead of its first caller.
NSSize sizeOfText(NSString *text, CGFloat pointSize) {
    NSDictionary *attributes = [NSDictionary dictionaryWithObject:[NSFont systemFontOfSize:pointSize]
                                                           forKey:NSFontAttributeName];
    return [[text length] > 0 ? text : @" " sizeWithAttributes:attributes];
}

} // namespace tarnwick
