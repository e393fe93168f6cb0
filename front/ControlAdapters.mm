#import "front/ControlAdapters.h"

#import "adapters/foundation/StringConversion.h"
#import "front/KeyViewLoop.h"

#import <QuartzCore/QuartzCore.h>

#include <algorithm>

namespace tarnwick {
namespace {

NSColor *colorOf(const Colour &colour) {
    return [NSColor colorWithDeviceRed:colour.red green:colour.green blue:colour.blue alpha:colour.alpha];
}

/// The first table below a view; nil when there is none.
NSTableView *tableIn(NSView *view) {
    for (NSView *inner in [view subviews]) {
        NSTableView *found =
            [inner isKindOfClass:[NSTableView class]] ? static_cast<NSTableView *>(inner) : tableIn(inner);
        if (found) {
            return found;
        }
    }
    return nil;
}

class AppKitTable final : public TableControl {
public:
    explicit AppKitTable(NSTableView *table) : table_(table) {}

    void reloadData() override { [table_ reloadData]; }
    long selectedRow() const override { return [table_ selectedRow]; }
    long numberOfRows() const override { return [table_ numberOfRows]; }
    void selectRow(long row) override {
        if (row >= 0 && row < [table_ numberOfRows]) {
            [table_ selectRowIndexes:[NSIndexSet indexSetWithIndex:static_cast<NSUInteger>(row)]
                byExtendingSelection:NO];
            [table_ scrollRowToVisible:row];
        }
    }
    void deselectAll() override { [table_ deselectAll:nil]; }
    void setDraggingSourceOperationMask(std::uint32_t mask, DragScope scope) override {
        [table_ setDraggingSourceOperationMask:mask forLocal:scope == DragScope::insideApplication];
    }
    void registerForDraggedType(std::string_view type) override {
        [table_ registerForDraggedTypes:[NSArray arrayWithObject:toNSString(type)]];
    }

private:
    NSTableView *table_;
};

class AppKitButton final : public ButtonControl {
public:
    explicit AppKitButton(NSButton *button) : button_(button) {}

    void setEnabled(bool enabled) override { [button_ setEnabled:enabled]; }
    void setHidden(bool hidden) override { [button_ setHidden:hidden]; }
    void setBackground(const Colour &colour) override {
        [[button_ layer] setBackgroundColor:[colorOf(colour) CGColor]];
        [button_ setNeedsDisplay:YES];
    }
    void setTitleColour(const Colour &colour) override {
        NSMutableParagraphStyle *style = [[[NSMutableParagraphStyle alloc] init] autorelease];
        [style setAlignment:NSTextAlignmentCenter];
        NSDictionary *attributes =
            [NSDictionary dictionaryWithObjectsAndKeys:colorOf(colour), NSForegroundColorAttributeName, style,
                          NSParagraphStyleAttributeName, [button_ font], NSFontAttributeName, nil];
        [button_ setAttributedTitle:[[[NSAttributedString alloc] initWithString:[button_ title]
                                                                     attributes:attributes] autorelease]];
    }

private:
    NSButton *button_;
};

class AppKitLabel final : public LabelControl {
public:
    explicit AppKitLabel(NSTextField *label) : label_(label) {}
    void setText(std::string_view text) override { [label_ setStringValue:toNSString(text)]; }

private:
    NSTextField *label_;
};

class AppKitTabs final : public TabControl {
public:
    explicit AppKitTabs(NSTabView *tabView) : tabView_(tabView) {}
    /// The keyboard goes to the page's table.
    void selectTab(int index) override {
        NSTabViewItem *item = [tabView_ tabViewItemAtIndex:index];
        [tabView_ selectTabViewItem:item];
        linkKeyViews(tabView_);
        [[tabView_ window] makeFirstResponder:tableIn([item view])];
    }

private:
    NSTabView *tabView_;
};

/// The table that a view stands in; nil when it stands in none.
NSTableView *tableAround(NSView *view) {
    while (view && ![view isKindOfClass:[NSTableView class]]) {
        view = [view superview];
    }
    return static_cast<NSTableView *>(view);
}

class AppKitRowEditing final : public RowEditing {
public:
    explicit AppKitRowEditing(NSTabView *tabView) : tabView_(tabView) {}
    /// The keyboard goes back to the table.
    void end() override {
        id editor = [[tabView_ window] firstResponder];
        if (![editor isKindOfClass:[NSText class]] || ![editor isFieldEditor] ||
            ![[editor delegate] isKindOfClass:[NSTextField class]]) {
            return;
        }
        if (NSTableView *table = tableAround(static_cast<NSTextField *>([editor delegate]))) {
            [[tabView_ window] makeFirstResponder:table];
        }
    }

private:
    NSTabView *tabView_;
};

class AppKitWindow final : public WindowControl {
public:
    explicit AppKitWindow(NSWindow *window) : window_(window) {}

    void setMovableByBackground(bool movable) override { [window_ setMovableByWindowBackground:movable]; }
    void setBackground(const Colour &colour) override { setLayerBackground(colorOf(colour)); }
    void setTextBackground() override { setLayerBackground([NSColor textBackgroundColor]); }
    void activateApplication() override {
        [window_ makeKeyAndOrderFront:nil];
        [NSApp activateIgnoringOtherApps:YES];
    }

private:
    void setLayerBackground(NSColor *color) {
        [[[window_ contentView] layer] setBackgroundColor:[color CGColor]];
        [[window_ contentView] setNeedsDisplay:YES];
    }

    NSWindow *window_;
};

} // namespace

std::unique_ptr<TableControl> makeTableControl(NSTableView *table) {
    return std::make_unique<AppKitTable>(table);
}

std::unique_ptr<ButtonControl> makeButtonControl(NSButton *button) {
    return std::make_unique<AppKitButton>(button);
}

std::unique_ptr<LabelControl> makeLabelControl(NSTextField *label) {
    return std::make_unique<AppKitLabel>(label);
}

std::unique_ptr<TabControl> makeTabControl(NSTabView *tabView) {
    return std::make_unique<AppKitTabs>(tabView);
}

std::unique_ptr<RowEditing> makeRowEditing(NSTabView *tabView) {
    return std::make_unique<AppKitRowEditing>(tabView);
}

std::unique_ptr<WindowControl> makeWindowControl(NSWindow *window) {
    return std::make_unique<AppKitWindow>(window);
}

Outlets ControlAdapters::outlets() const {
    Outlets outlets;
    outlets.version = version.get();
    outlets.tabView = tabView.get();
    const auto fill = [](auto &targets, const auto &sources) {
        for (std::size_t index = 0; index < std::min(targets.size(), sources.size()); ++index) {
            targets[index] = sources[index].get();
        }
    };
    fill(outlets.pageButtons, pageButtons);
    fill(outlets.tables, tables);
    fill(outlets.removeButtons, removeButtons);
    outlets.rowEditing = rowEditing.get();
    outlets.restartFinderButton = restartFinderButton.get();
    outlets.helpButton = helpButton.get();
    return outlets;
}

} // namespace tarnwick
