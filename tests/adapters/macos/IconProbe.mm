#include "IconProbe.h"

#import "adapters/foundation/ImageConversion.h"
#import "adapters/foundation/StringConversion.h"

namespace tarnwick::standins {

IconFacts iconOf(const std::string &path) {
    @autoreleasepool {
        StandInImage *icon = iconOfFileAtPath(toNSString(path));
        return {toString([icon origin]), [icon size].width};
    }
}

void makeAndFreePicture(std::size_t bytes) {
    @autoreleasepool {
        [newImageWithData([NSMutableData dataWithLength:bytes]) release];
    }
}

} // namespace tarnwick::standins
