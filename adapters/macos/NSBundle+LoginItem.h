#pragma once

#import <CoreServices/CoreServices.h>
#import <Foundation/Foundation.h>

/// The bundle as one of the applications that start with the user's session; the names are fixed, also of
/// what nothing here calls. Failures are ignored.
@interface NSBundle (LoginItem)

- (BOOL)isLoginItem;
- (void)addToLoginItems;
- (void)removeFromLoginItems;
/// The bundle's item in the list, owned by the caller; null when it is not in it.
- (LSSharedFileListItemRef)itemRefWithListRef:(LSSharedFileListRef)list CF_RETURNS_RETAINED;

@end
