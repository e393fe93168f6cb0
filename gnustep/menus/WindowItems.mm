// Wrong: the windows in the windows menu, as of GNUstep GUI 0.29, where they follow the other items without a
// separator and bear the picture of a close button. Here the main one has a tick, as other menus mark what is
// chosen.

#import <AppKit/AppKit.h>

#import "gnustep/runtime/MethodReplacement.h"

@interface NSApplication (TNNativeWindowItems)
- (void)setImageForWindowsItem:(NSMenuItem *)item;
@end

namespace {

bool isOfWindow(NSMenuItem *item) {
    return sel_isEqual([item action], @selector(makeKeyAndOrderFront:)) &&
           [[item target] isKindOfClass:[NSWindow class]];
}

/// A separator stands before the first window, and none at the end.
void separateWindows(NSMenu *menu) {
    NSInteger count = [menu numberOfItems];
    for (NSInteger index = 0; index < count; ++index) {
        if (isOfWindow([menu itemAtIndex:index])) {
            if (index > 0 && ![[menu itemAtIndex:index - 1] isSeparatorItem]) {
                [menu insertItem:[NSMenuItem separatorItem] atIndex:index];
            }
            return;
        }
    }
    if (count > 0 && [[menu itemAtIndex:count - 1] isSeparatorItem]) {
        [menu removeItemAtIndex:count - 1];
    }
}

using ChangeItem = void (*)(id self, SEL command, NSWindow *window, NSString *title, BOOL isFileName);
ChangeItem nativeChangeItem = nullptr;

void changeItem(id self, SEL command, NSWindow *window, NSString *title, BOOL isFileName) {
    nativeChangeItem(self, command, window, title, isFileName);
    separateWindows([self windowsMenu]);
}

using RemoveItem = void (*)(id self, SEL command, NSWindow *window);
RemoveItem nativeRemoveItem = nullptr;

void removeItem(id self, SEL command, NSWindow *window) {
    nativeRemoveItem(self, command, window);
    separateWindows([self windowsMenu]);
}

void setNoImage(id, SEL, NSMenuItem *) {}

using Validate = BOOL (*)(NSWindow *self, SEL command, NSMenuItem *item);
Validate nativeValidate = nullptr;

BOOL validate(NSWindow *self, SEL command, NSMenuItem *item) {
    if (isOfWindow(item)) {
        [item setState:[self isMainWindow] ? NSControlStateValueOn : NSControlStateValueOff];
    }
    return nativeValidate(self, command, item);
}

} // namespace

@interface NSApplication (TNWindowItems)
@end

@implementation NSApplication (TNWindowItems)

+ (void)load {
    nativeChangeItem = TNReplaceMethod(self, @selector(changeWindowsItem:title:filename:), changeItem);
    nativeRemoveItem = TNReplaceMethod(self, @selector(removeWindowsItem:), removeItem);
    TNReplaceMethod(self, @selector(setImageForWindowsItem:), setNoImage);
}

@end

@interface NSWindow (TNWindowItems)
@end

@implementation NSWindow (TNWindowItems)

+ (void)load {
    nativeValidate = TNReplaceMethod(self, @selector(validateMenuItem:), validate);
}

@end
