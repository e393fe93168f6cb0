#import "front/TextMeasuring.h"

namespace tarnwick {

NSSize textSize(NSString *text, CGFloat pointSize) {
    NSDictionary *attributes = [NSDictionary dictionaryWithObject:[NSFont systemFontOfSize:pointSize]
                                                           forKey:NSFontAttributeName];
    return [[text length] > 0 ? text : @" " sizeWithAttributes:attributes];
}

} // namespace tarnwick
