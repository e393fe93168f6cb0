#import "adapters/foundation/NSBundle+LoginItem.h"

#include <memory>
#include <type_traits>

// The session's list has no other interface on the oldest system that is supported.
#pragma clang diagnostic ignored "-Wdeprecated-declarations"

namespace {

struct Release {
    void operator()(CFTypeRef object) const { CFRelease(object); }
};

/// Owns one reference to a Core Foundation object; empty for null.
template <typename Reference>
using Owned = std::unique_ptr<std::remove_pointer_t<Reference>, Release>;

Owned<LSSharedFileListRef> sessionLoginItems() {
    return Owned<LSSharedFileListRef>(
        LSSharedFileListCreate(nullptr, kLSSharedFileListSessionLoginItems, nullptr));
}

} // namespace

@implementation NSBundle (LoginItem)

- (BOOL)isLoginItem {
    const auto list = sessionLoginItems();
    if (!list) {
        return NO;
    }
    const Owned<LSSharedFileListItemRef> item([self itemRefWithListRef:list.get()]);
    return item ? YES : NO;
}

- (void)addToLoginItems {
    const auto list = sessionLoginItems();
    if (!list) {
        return;
    }
    const Owned<LSSharedFileListItemRef> item(LSSharedFileListInsertItemURL(list.get(),
        kLSSharedFileListItemLast, nullptr, nullptr, (__bridge CFURLRef)[self bundleURL], nullptr, nullptr));
}

- (void)removeFromLoginItems {
    const auto list = sessionLoginItems();
    if (!list) {
        return;
    }
    const Owned<LSSharedFileListItemRef> item([self itemRefWithListRef:list.get()]);
    if (item) {
        LSSharedFileListItemRemove(list.get(), item.get());
    }
}

- (LSSharedFileListItemRef)itemRefWithListRef:(LSSharedFileListRef)list {
    UInt32 seed = 0;
    const Owned<CFArrayRef> snapshot(LSSharedFileListCopySnapshot(list, &seed));
    const CFIndex count = snapshot ? CFArrayGetCount(snapshot.get()) : 0;
    for (CFIndex index = 0; index < count; ++index) {
        const auto item = (LSSharedFileListItemRef)CFArrayGetValueAtIndex(snapshot.get(), index);
        const Owned<CFURLRef> url(LSSharedFileListItemCopyResolvedURL(
            item, kLSSharedFileListNoUserInteraction | kLSSharedFileListDoNotMountVolumes, nullptr));
        if (url && CFEqual(url.get(), (__bridge CFURLRef)[self bundleURL])) {
            return (LSSharedFileListItemRef)CFRetain(item);
        }
    }
    return nullptr;
}

@end
