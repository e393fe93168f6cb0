#pragma once

// The methods that AppKit and Foundation have on macOS and the support layer adds here. The file that defines
// each says what is missing and since when.

#import <AppKit/AppKit.h>

@class CALayer;

typedef NSString *NSKeyValueChangeKey;

// Layers.mm
@interface NSView (TNLayers)
- (void)setWantsLayer:(BOOL)wantsLayer;
- (BOOL)wantsLayer;
/// Nil until `setWantsLayer:YES`.
- (CALayer *)layer;
@end

// Identifiers.mm
@interface NSView (TNIdentifiers)
- (void)setIdentifier:(NSString *)identifier;
- (NSString *)identifier;
@end

// Accessibility.mm
@interface NSView (TNAccessibility)
/// Kept for whoever asks; no assistive technology does.
- (void)setAccessibilityLabel:(NSString *)label;
- (NSString *)accessibilityLabel;
@end

// ViewControllers.mm
@interface NSViewController (TNViewDidLoad)
- (void)viewDidLoad;
- (BOOL)isViewLoaded;
/// Nil as long as the view is not loaded.
- (NSView *)viewIfLoaded;
@end

// TextPlaceholders.mm
@interface NSTextField (TNPlaceholders)
/// Shown while the field is empty and not being edited.
- (void)setPlaceholderString:(NSString *)text;
- (NSString *)placeholderString;
@end

// Alerts.mm
@interface NSAlert (TNSheets)
/// Runs the alert for the whole application; the handler may be nil.
- (void)beginSheetModalForWindow:(NSWindow *)window
               completionHandler:(void (^)(NSModalResponse answer))handler;
@end

// FolderLocations.mm
@interface NSFileManager (TNGroupContainers)
/// Created when missing; nil for an identifier that is no file name.
- (NSURL *)containerURLForSecurityApplicationGroupIdentifier:(NSString *)identifier;
@end

// SuiteDefaults.mm
@interface NSUserDefaults (TNSuites)
/// Nil without a name. All handles of a name share their state.
- (instancetype)initWithSuiteName:(NSString *)name;
@end

// ProcessInformation.mm
typedef struct {
    NSInteger majorVersion;
    NSInteger minorVersion;
    NSInteger patchVersion;
} NSOperatingSystemVersion;

@interface NSProcessInfo (TNOperatingSystemVersion)
/// The kernel's version.
- (NSOperatingSystemVersion)operatingSystemVersion;
- (BOOL)isOperatingSystemAtLeastVersion:(NSOperatingSystemVersion)version;
@end
