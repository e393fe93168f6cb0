#import "adapters/foundation/NSBundle+LoginItem.h"

/// Linux sessions have no list of login items like the one meant here.
@implementation NSBundle (LoginItem)

- (BOOL)isLoginItem {
    return NO;
}

- (void)addToLoginItems {
}

- (void)removeFromLoginItems {
}

- (LSSharedFileListItemRef)itemRefWithListRef:(LSSharedFileListRef)list {
    return nullptr;
}

@end
