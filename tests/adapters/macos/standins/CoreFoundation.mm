#include "Recording.h"

using namespace tarnwick::standins;

// A Core Foundation object is the Objective-C object of the same kind, as it is on a Mac.

CFTypeRef CFRetain(CFTypeRef object) {
    return [(id)object retain];
}

void CFRelease(CFTypeRef object) {
    [(id)object release];
}

Boolean CFEqual(CFTypeRef one, CFTypeRef other) {
    return [(id)one isEqual:(id)other] ? 1 : 0;
}

CFIndex CFArrayGetCount(CFArrayRef array) {
    return static_cast<CFIndex>([(NSArray *)array count]);
}

const void *CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index) {
    return [(NSArray *)array objectAtIndex:static_cast<NSUInteger>(index)];
}

CFNotificationCenterRef CFNotificationCenterGetDistributedCenter() {
    record(@"CFNotificationCenterGetDistributedCenter()");
    return reinterpret_cast<CFNotificationCenterRef>([StandInDistributedNotificationCenter defaultCenter]);
}

void CFNotificationCenterPostNotificationWithOptions(CFNotificationCenterRef, CFNotificationName name,
    const void *object, CFDictionaryRef userInfo, CFOptionFlags options) {
    record(@"CFNotificationCenterPostNotificationWithOptions(%@, %@, %@, %lu)", (NSString *)name,
        object ? @"object" : @"no object", userInfo ? @"user info" : @"no user info", options);
}
