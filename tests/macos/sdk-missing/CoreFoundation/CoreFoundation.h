#pragma once

#include <cstdint>

#include <Declaring.h>

#define CF_RETURNS_RETAINED __attribute__((cf_returns_retained))

@class NSArray, NSDictionary, NSError, NSString, NSURL;

typedef const void *CFTypeRef;
typedef const struct TN_BRIDGED(NSString) __CFString *CFStringRef;
typedef const struct TN_BRIDGED(NSArray) __CFArray *CFArrayRef;
typedef const struct TN_BRIDGED(NSDictionary) __CFDictionary *CFDictionaryRef;
typedef const struct TN_BRIDGED(NSURL) __CFURL *CFURLRef;
typedef struct TN_BRIDGED(NSError) __CFError *CFErrorRef;
typedef const struct __CFAllocator *CFAllocatorRef;
typedef struct __CFNotificationCenter *CFNotificationCenterRef;
typedef CFStringRef CFNotificationName;

typedef long CFIndex;
typedef unsigned long CFOptionFlags;
typedef unsigned char Boolean;
typedef std::uint32_t UInt32;
typedef std::int32_t OSStatus;

enum : CFOptionFlags { kCFNotificationDeliverImmediately = 1, kCFNotificationPostToAllSessions = 2 };

extern "C" {
CFTypeRef _Nonnull CFRetain(CFTypeRef _Nonnull object);
void CFRelease(CFTypeRef _Nonnull object);
Boolean CFEqual(CFTypeRef _Nonnull one, CFTypeRef _Nonnull other);
CFIndex CFArrayGetCount(CFArrayRef _Nonnull array);
const void *_Nullable CFArrayGetValueAtIndex(CFArrayRef _Nonnull array, CFIndex index);

CFNotificationCenterRef _Nonnull CFNotificationCenterGetDistributedCenter(void);
void CFNotificationCenterPostNotificationWithOptions(CFNotificationCenterRef _Nonnull center,
    CFNotificationName _Nonnull name, const void *_Nullable object, CFDictionaryRef _Nullable userInfo,
    CFOptionFlags options);
}
