// Missing: a panel about the application as it is on macOS, as of GNUstep GUI 0.29, whose panel shows a mark
// of its own behind the texts, an unknown author and the name of the theme. Here it is the icon, the name,
// the version and the copyright of the bundle, the last two in the user's language where InfoPlist.strings
// has them.

#import <AppKit/AppKit.h>

#import "gnustep/runtime/MethodReplacement.h"

#include <algorithm>
#include <cmath>

/// Escape closes it.
@interface TNAboutPanel : NSPanel
@end

namespace {

constexpr CGFloat margin = 28;
constexpr CGFloat gap = 12;
constexpr CGFloat iconSide = 96;
constexpr CGFloat smallestWidth = 300;

NSString *valueOf(NSString *key) {
    id value = [[[NSBundle mainBundle] infoDictionary] objectForKey:key];
    return [value isKindOfClass:[NSString class]] ? value : @"";
}

NSString *versionText() {
    NSString *format = [[NSBundle mainBundle] localizedStringForKey:@"Version %@" value:nil table:nil];
    return [format stringByReplacingOccurrencesOfString:@"%@"
                                             withString:valueOf(@"CFBundleShortVersionString")];
}

NSString *copyrightText() {
    return [[NSBundle mainBundle] localizedStringForKey:@"NSHumanReadableCopyright"
                                                  value:valueOf(@"Copyright")
                                                  table:@"InfoPlist"];
}

NSTextField *makeLine(NSString *text, NSFont *font) {
    NSTextField *line = [[[NSTextField alloc] initWithFrame:NSZeroRect] autorelease];
    [line setStringValue:text];
    [line setFont:font];
    [line setAlignment:NSCenterTextAlignment];
    [line setEditable:NO];
    [line setSelectable:NO];
    [line setBezeled:NO];
    [line setDrawsBackground:NO];
    [line sizeToFit];
    return line;
}

NSImageView *makeIcon() {
    NSImageView *view =
        [[[NSImageView alloc] initWithFrame:NSMakeRect(0, 0, iconSide, iconSide)] autorelease];
    [view setImageScaling:NSImageScaleProportionallyUpOrDown];
    [view setImage:[NSApp applicationIconImage]];
    [view setAccessibilityLabel:valueOf(@"CFBundleName")];
    return view;
}

/// From the top downwards.
NSPanel *makePanel() {
    NSArray *views = [NSArray arrayWithObjects:makeIcon(),
                              makeLine(valueOf(@"CFBundleName"), [NSFont boldSystemFontOfSize:16]),
                              makeLine(versionText(), [NSFont systemFontOfSize:12]),
                              makeLine(copyrightText(), [NSFont systemFontOfSize:11]), nil];
    CGFloat width = smallestWidth;
    CGFloat height = 2 * margin - gap;
    for (NSView *view in views) {
        width = std::max(width, std::ceil(NSWidth([view frame])) + 2 * margin);
        height += NSHeight([view frame]) + gap;
    }
    NSPanel *panel = [[TNAboutPanel alloc] initWithContentRect:NSMakeRect(0, 0, width, std::ceil(height))
                                                     styleMask:NSTitledWindowMask | NSClosableWindowMask
                                                       backing:NSBackingStoreBuffered
                                                         defer:YES];
    [panel setReleasedWhenClosed:NO];
    [panel setTitle:valueOf(@"CFBundleName")];
    CGFloat top = height - margin;
    for (NSView *view in views) {
        const NSSize size = [view frame].size;
        const bool isText = [view isKindOfClass:[NSTextField class]];
        top -= size.height;
        [view setFrame:NSMakeRect(isText ? 0 : std::floor((width - size.width) / 2), std::floor(top),
                           isText ? width : size.width, size.height)];
        [[panel contentView] addSubview:view];
        top -= gap;
    }
    return panel;
}

void showPanel(id, SEL, id sender) {
    // For the life of the process, as the toolkit's is.
    static NSPanel *const panel = makePanel();
    [panel center];
    [panel makeKeyAndOrderFront:sender];
}

} // namespace

@implementation TNAboutPanel

- (void)keyDown:(NSEvent *)event {
    constexpr unichar escape = 0x1B;
    NSString *characters = [event characters];
    if ([characters length] == 1 && [characters characterAtIndex:0] == escape) {
        [self performClose:self];
    } else {
        [super keyDown:event];
    }
}

@end

@interface NSApplication (TNAboutPanel)
@end

@implementation NSApplication (TNAboutPanel)

+ (void)load {
    TNReplaceMethod(self, @selector(orderFrontStandardAboutPanel:), showPanel);
}

@end
