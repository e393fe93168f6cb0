#pragma once

#import <AppKit/NSWindow.h>

#pragma clang assume_nonnull begin

typedef NSInteger NSModalResponse;
enum : NSModalResponse { NSModalResponseOK = 1 };
typedef TN_ENUM(NSUInteger, NSAlertStyle){NSAlertStyleWarning = 0};

@interface NSAlert : NSObject
@property (copy) NSString *messageText;
@property (copy) NSString *informativeText;
@property NSAlertStyle alertStyle;
- (NSButton *)addButtonWithTitle:(NSString *)title;
- (NSModalResponse)runModal;
@end

@interface NSPanel : NSWindow
@end

@interface NSSavePanel : NSPanel
@property (nullable, copy) NSURL *directoryURL;
@property (nullable, copy) NSArray<NSString *> *allowedFileTypes TN_DEPRECATED(10.3, 12.0);
@property BOOL canCreateDirectories;
@property (getter=isExtensionHidden) BOOL extensionHidden;
@property (null_resettable, copy) NSString *prompt;
@property (null_resettable, copy) NSString *message;
@property (copy) NSString *nameFieldStringValue;
@property (nullable, readonly, copy) NSURL *URL;
+ (NSSavePanel *)savePanel;
- (void)beginWithCompletionHandler:(void (^)(NSModalResponse result))handler;
@end

@interface NSOpenPanel : NSSavePanel
@property BOOL canChooseFiles;
@property BOOL canChooseDirectories;
@property BOOL allowsMultipleSelection;
@property (readonly, copy) NSArray<NSURL *> *URLs;
+ (NSOpenPanel *)openPanel;
@end

#pragma clang assume_nonnull end
