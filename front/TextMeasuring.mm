#import "front/TextMeasuring.h"

#include <cmath>

namespace tarnwick {
namespace {

NSDictionary *attributesOf(CGFloat pointSize) {
    return [NSDictionary dictionaryWithObject:[NSFont systemFontOfSize:pointSize] forKey:NSFontAttributeName];
}

} // namespace

NSSize textSize(NSString *text, CGFloat pointSize) {
    return [[text length] > 0 ? text : @" " sizeWithAttributes:attributesOf(pointSize)];
}

CGFloat heightOfLabel(NSString *text, CGFloat pointSize, CGFloat width) {
    // A label leaves so much free at its sides.
    constexpr CGFloat margins = 4;
    constexpr CGFloat noLimit = 10'000;
    const NSRect needed = [text boundingRectWithSize:NSMakeSize(width - margins, noLimit)
                                             options:NSStringDrawingUsesLineFragmentOrigin
                                          attributes:attributesOf(pointSize)];
    return std::ceil(NSHeight(needed));
}

} // namespace tarnwick
