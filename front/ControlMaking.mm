#import "front/ControlMaking.h"

#import "adapters/foundation/StringConversion.h"

#include <algorithm>

namespace tarnwick {
namespace {

constexpr CGFloat minimumButtonWidth = 84;
constexpr CGFloat buttonHeight = 28;

} // namespace

NSString *localizedText(std::string_view key) {
    return [[NSBundle mainBundle] localizedStringForKey:toNSString(key) value:@"" table:nil];
}

NSTextField *makeLabel(NSString *text, NSFont *font, NSColor *color, bool wraps) {
    NSTextField *label = [[[NSTextField alloc] init] autorelease];
    [label setBezeled:NO];
    [label setBordered:NO];
    [label setDrawsBackground:NO];
    [label setEditable:NO];
    [label setSelectable:NO];
    [label setFont:font];
    [label setTextColor:color];
    [[label cell] setWraps:wraps];
    [[label cell] setLineBreakMode:wraps ? NSLineBreakByWordWrapping : NSLineBreakByTruncatingTail];
    [label setStringValue:text];
    return label;
}

NSColor *secondaryTextColor() {
    return [NSColor secondaryLabelColor];
}

NSButton *makePushButton(NSString *title, id target, SEL action) {
    NSButton *button = [[[NSButton alloc] init] autorelease];
    preparePushButton(button, title, target, action);
    return button;
}

void preparePushButton(NSButton *button, NSString *title, id target, SEL action) {
    [button setBezelStyle:NSBezelStyleRounded];
    [button setTitle:title];
    [button setTarget:target];
    [button setAction:action];
    // How much room a title needs at its sides differs from system to system.
    [button sizeToFit];
    [button setFrameSize:NSMakeSize(std::max(minimumButtonWidth, NSWidth([button frame])), buttonHeight)];
}

NSImage *resourceImage(std::string_view name) {
    return [NSImage imageNamed:toNSString(name)];
}

} // namespace tarnwick
