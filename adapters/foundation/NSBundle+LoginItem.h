#pragma once

#import <Foundation/Foundation.h>

#if __has_include(<CoreServices/CoreServices.h>)
#import <CoreServices/CoreServices.h>
#else
// Linux has no such list.
using LSSharedFileListRef = const struct LSSharedFileList *;
using LSSharedFileListItemRef = const struct LSSharedFileListItem *;
#define CF_RETURNS_RETAINED
#endif

/// The bundle as one of the applications that start with the user's session; the names are fixed, also of
/// what nothing here calls. Failures are ignored.
@interface NSBundle (LoginItem)

- (BOOL)isLoginItem;
- (void)addToLoginItems;
- (void)removeFromLoginItems;
/// The bundle's item in the list, owned by the caller; null when it is not in it.
- (LSSharedFileListItemRef)itemRefWithListRef:(LSSharedFileListRef)list CF_RETURNS_RETAINED;

@end
