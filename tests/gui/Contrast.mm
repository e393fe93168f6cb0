#include "tests/gui/Contrast.h"

#include "tests/gui/Pixels.h"
#include "tests/gui/SettingsWindow.h"

#import "adapters/foundation/StringConversion.h"
#import "gnustep/include/TNTheme.h"

#import <AppKit/AppKit.h>

#include <algorithm>

namespace tarnwick::gui {
namespace {

constexpr double forText = 4.5;
/// Also for pictures, and for the borders of what can be used.
constexpr double forLargeText = 3;

bool isLarge(NSFont *font) {
    constexpr CGFloat large = 18;
    constexpr CGFloat largeWhenBold = 14;
    const bool isBold = [[NSFontManager sharedFontManager] fontNamed:[font fontName]
                                                           hasTraits:NSBoldFontMask];
    return [font pointSize] >= (isBold ? largeWhenBold : large);
}

/// What the toolkit's scrollers say of themselves is of no use: they are always enabled, and keep their
/// proportion.
bool hasSomethingToScroll(NSScroller *scroller) {
    if (![[scroller superview] isKindOfClass:[NSScrollView class]]) {
        return [scroller knobProportion] < 1;
    }
    auto *view = static_cast<NSScrollView *>([scroller superview]);
    const NSSize whole = [[view documentView] frame].size;
    const NSSize seen = [[view contentView] bounds].size;
    return scroller == [view verticalScroller] ? whole.height > seen.height : whole.width > seen.width;
}

/// The toolkit gives a default button an empty one.
bool hasPicture(NSButton *button) {
    return [[button image] size].width > 1;
}

class Measuring {
public:
    explicit Measuring(NSWindow *window) : pixels_(window) {}

    void measure(NSView *view) {
        if ([view isHiddenOrHasHiddenAncestor] || NSIsEmptyRect([view visibleRect])) {
            return;
        }
        if ([view isKindOfClass:[NSTextField class]]) {
            measureField(static_cast<NSTextField *>(view));
        } else if ([view isKindOfClass:[NSButton class]]) {
            measureButton(static_cast<NSButton *>(view));
        } else if ([view isKindOfClass:[NSScroller class]]) {
            measureScroller(static_cast<NSScroller *>(view));
        } else if ([view isKindOfClass:[NSTableHeaderView class]]) {
            measureTitles(static_cast<NSTableHeaderView *>(view));
        } else if ([view isKindOfClass:[NSScrollView class]]) {
            measureBorder(view, [view bounds], "list");
        } else if ([view isKindOfClass:[NSMenuView class]]) {
            measureMenuBar(static_cast<NSMenuView *>(view));
        }
        for (NSView *inner in [view subviews]) {
            measure(inner);
        }
    }

    [[nodiscard]] std::vector<Contrast> take() { return std::move(found_); }

private:
    static NSRect inWindow(NSView *view, NSRect rect) {
        return NSIntegralRect([view convertRect:NSIntersectionRect(rect, [view visibleRect]) toView:nil]);
    }

    void add(const char *kind, NSString *what, double measured, double wanted) {
        found_.push_back({kind, toString(what), measured, wanted});
    }

    void addText(NSString *text, NSFont *font, NSView *view, NSRect rect) {
        const NSRect place = inWindow(view, rect);
        if ([text length] > 0 && NSWidth(place) > 1 && NSHeight(place) > 8) {
            const bool large = isLarge(font);
            add(large ? "large text" : "text", text, pixels_.contrastIn(place),
                large ? forLargeText : forText);
        }
    }

    /// From outside to inside across the left edge, wherever in the rectangle that is.
    void measureBorder(NSView *view, NSRect rect, const char *what) {
        constexpr CGFloat outside = 4;
        const NSRect line = [view convertRect:NSMakeRect(NSMinX(rect), NSMidY(rect), NSWidth(rect), 1)
                                       toView:nil];
        add("border", toNSString(what),
            pixels_.edgeOf(NSMakePoint(NSMinX(line) - outside, NSMinY(line)), NSWidth(line) + outside),
            forLargeText);
    }

    void measureField(NSTextField *field) {
        if ([field currentEditor]) {
            addText([field stringValue], [field font], field, NSInsetRect([field bounds], 4, 3));
            return;
        }
        addText([field stringValue], [field font], field, NSInsetRect([field bounds], 2, 1));
        if ([field isBezeled]) {
            measureBorder(field, [field bounds], "field");
        }
    }

    void measureButton(NSButton *button) {
        NSButtonCell *cell = [button cell];
        const NSRect bounds = [button bounds];
        if ([button imagePosition] == NSImageOnly && hasPicture(button)) {
            add("picture", [button accessibilityLabel],
                pixels_.contrastIn(inWindow(button, NSInsetRect(bounds, 4, 4))), forLargeText);
            return;
        }
        NSAttributedString *title = [button attributedTitle];
        NSFont *font = [title length] > 0
                           ? [title attribute:NSFontAttributeName atIndex:0 effectiveRange:nullptr]
                           : [button font];
        const bool isBox = TNIsCheckBox(cell);
        const CGFloat imageWidth = [button image] ? [[button image] size].width : 0;
        const NSRect picture = NSMakeRect(NSMinX(bounds), NSMidY(bounds) - 8, imageWidth, 16);
        constexpr CGFloat side = 8;
        NSRect text = NSInsetRect(bounds, isBox ? 0 : side, 4);
        text.origin.x += imageWidth;
        text.size.width -= imageWidth;
        addText([button title], font, button, text);
        if (isBox) {
            measureBox(button, picture);
        } else if (hasPicture(button)) {
            add("picture", [button title], pixels_.contrastIn(inWindow(button, NSInsetRect(picture, 8, 0))),
                forLargeText);
        } else if ([button isEnabled]) {
            measureBorder(button, bounds, "button");
        }
    }

    void measureBox(NSButton *box, NSRect picture) {
        const bool isOff = [box state] == NSControlStateValueOff;
        const bool isAlone = [[box title] length] == 0;
        measureBorder(box, isAlone ? [box bounds] : picture, isOff ? "box that is off" : "box");
        // Those without a title have the same picture, somewhere in more room.
        if (!isOff && !isAlone) {
            add("mark", [box title], pixels_.contrastIn(inWindow(box, NSInsetRect(picture, 3, 4))),
                forLargeText);
        }
    }

    void measureScroller(NSScroller *scroller) {
        const NSRect knob = [scroller rectForPart:NSScrollerKnob];
        if (hasSomethingToScroll(scroller)) {
            const NSSize size = [scroller bounds].size;
            const NSRect line = size.width > size.height ? NSMakeRect(NSMidX(knob), 0, 1, size.height)
                                                         : NSMakeRect(0, NSMidY(knob), size.width, 1);
            const NSRect place = [scroller convertRect:line toView:nil];
            add("knob", @"scroller", pixels_.contrastIn(place, pixels_.colourAt(place.origin)), forLargeText);
        }
    }

    void measureTitles(NSTableHeaderView *header) {
        NSArray *columns = [[header tableView] tableColumns];
        for (NSUInteger index = 0; index < [columns count]; ++index) {
            NSCell *cell = [[columns objectAtIndex:index] headerCell];
            addText([cell stringValue], [cell font], header,
                NSInsetRect([header headerRectOfColumn:static_cast<NSInteger>(index)], 1, 2));
        }
    }

    void measureMenuBar(NSMenuView *view) {
        for (NSInteger index = 0; index < static_cast<NSInteger>([[view menu] numberOfItems]); ++index) {
            addText([[[view menu] itemAtIndex:index] title], [NSFont menuFontOfSize:0], view,
                NSInsetRect([view rectOfItemAtIndex:index], 1, 4));
        }
    }

    Pixels pixels_;
    std::vector<Contrast> found_;
};

} // namespace

std::vector<Contrast> contrasts() {
    @autoreleasepool {
        NSWindow *window = [NSApp keyWindow] ? [NSApp keyWindow] : settingsWindow();
        Measuring measuring(window);
        measuring.measure([[window contentView] superview]);
        return measuring.take();
    }
}

double contrastOfRing() {
    @autoreleasepool {
        constexpr CGFloat outside = 10;
        NSWindow *window = settingsWindow();
        id responder = [window firstResponder];
        if ([responder isKindOfClass:[NSText class]]) {
            responder = [responder delegate];
        } else if ([responder isKindOfClass:[NSTableView class]]) {
            responder = [responder enclosingScrollView];
        }
        if (![responder isKindOfClass:[NSView class]]) {
            return 1;
        }
        const NSRect place = [responder convertRect:[responder bounds] toView:nil];
        return Pixels(window).edgeOf(NSMakePoint(NSMinX(place) - outside, NSMidY(place)), outside);
    }
}

double saturationOfSelection(RuleCategory category) {
    @autoreleasepool {
        NSTableView *table = tableOf(category);
        const NSRect row = [table convertRect:[table rectOfRow:[table selectedRow]] toView:nil];
        const unsigned colour = Pixels(settingsWindow()).groundOf(row);
        const auto part = [colour](unsigned shift) { return static_cast<double>(colour >> shift & 0xFF); };
        const auto [low, high] = std::minmax({part(16), part(8), part(0)});
        return high == 0 ? 0 : (high - low) / high;
    }
}

std::string tooLow(const std::vector<Contrast> &all) {
    std::string found;
    for (const auto &one : all) {
        if (one.measured < one.wanted) {
            found += one.kind + " \"" + one.what + "\": " + std::to_string(one.measured) + "\n";
        }
    }
    return found;
}

} // namespace tarnwick::gui
