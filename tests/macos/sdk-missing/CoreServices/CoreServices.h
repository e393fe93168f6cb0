#pragma once

#include <CoreFoundation/CoreFoundation.h>

typedef struct OpaqueLSSharedFileListRef* LSSharedFileListRef;
typedef struct OpaqueLSSharedFileListItemRef* LSSharedFileListItemRef;
typedef UInt32 LSSharedFileListResolutionFlags;
typedef struct OpaqueIconRef* IconRef;

enum : LSSharedFileListResolutionFlags {
    kLSSharedFileListNoUserInteraction = 1 << 0,
    kLSSharedFileListDoNotMountVolumes = 1 << 1
};

extern "C" {
CFArrayRef _Nullable LSCopyApplicationURLsForBundleIdentifier(CFStringRef _Nonnull bundleIdentifier,
    CFErrorRef _Nullable* _Nullable error) TN_SINCE(10.10) CF_RETURNS_RETAINED;

extern CFStringRef _Null_unspecified kLSSharedFileListSessionLoginItems TN_DEPRECATED(10.5, 10.11);
extern LSSharedFileListItemRef _Null_unspecified kLSSharedFileListItemLast TN_DEPRECATED(10.5, 10.11);
LSSharedFileListRef _Nullable LSSharedFileListCreate(
    CFAllocatorRef _Nullable allocator, CFStringRef _Nonnull listType, CFTypeRef _Nullable options)
    TN_DEPRECATED(10.5, 10.11) CF_RETURNS_RETAINED;
CFArrayRef _Nullable LSSharedFileListCopySnapshot(LSSharedFileListRef _Nonnull list, UInt32* _Nullable seed)
    TN_DEPRECATED(10.5, 10.11) CF_RETURNS_RETAINED;
LSSharedFileListItemRef _Nullable LSSharedFileListInsertItemURL(LSSharedFileListRef _Nonnull list,
    LSSharedFileListItemRef _Nonnull insertAfter, CFStringRef _Nullable displayName, IconRef _Nullable icon,
    CFURLRef _Nonnull url, CFDictionaryRef _Nullable propertiesToSet, CFArrayRef _Nullable propertiesToClear)
    TN_DEPRECATED(10.5, 10.11) CF_RETURNS_RETAINED;
CFURLRef _Nullable LSSharedFileListItemCopyResolvedURL(LSSharedFileListItemRef _Nonnull item,
    LSSharedFileListResolutionFlags flags, CFErrorRef _Nullable* _Nullable error)
    TN_DEPRECATED(10.10, 10.11) CF_RETURNS_RETAINED;
OSStatus LSSharedFileListItemRemove(LSSharedFileListRef _Nonnull list, LSSharedFileListItemRef _Nonnull item)
    TN_DEPRECATED(10.5, 10.11);
}
