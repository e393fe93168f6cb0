#import "front/MoreAppsPage.h"

#import "front/ControlMaking.h"
#import "front/LinkButton.h"
#import "front/PageFrame.h"
#import "front/SettingsViewController+Actions.h"
#import "front/SettingsViewController+System.h"

#include "ui/WindowLayout.h"

namespace tarnwick {
namespace {

constexpr CGFloat tileHeight = 84;
constexpr CGFloat tilePadding = 16;
constexpr CGFloat imageSize = 52;
constexpr CGFloat nameHeight = 20;
constexpr CGFloat descriptionHeight = 34;
constexpr CGFloat textLeft = tilePadding + imageSize + tilePadding;

NSView *makeTile(const AppTile &facts, CGFloat width, SettingsViewController *controller) {
    NSBox *tile = [[[NSBox alloc] initWithFrame:NSMakeRect(0, 0, width, tileHeight)] autorelease];
    [tile setTitlePosition:NSNoTitle];
    [tile setContentViewMargins:NSMakeSize(0, 0)];
    NSView *content = [tile contentView];
    const CGFloat contentWidth = NSWidth([content bounds]);
    const CGFloat middle = NSHeight([content bounds]) / 2;

    NSImageView *picture = [[[NSImageView alloc]
        initWithFrame:NSMakeRect(tilePadding, middle - imageSize / 2, imageSize, imageSize)] autorelease];
    [picture setImage:resourceImage(facts.image)];
    [picture setImageScaling:NSImageScaleProportionallyUpOrDown];
    [picture setAccessibilityLabel:localizedText(facts.name)];
    [content addSubview:picture];

    NSButton *button = [LinkButton buttonWithTitle:localizedText(facts.buttonTitle)
                                           address:facts.address
                                            target:controller
                                            action:@selector(openLink:)];
    // Two of the buttons bear the same title.
    [button setAccessibilityLabel:[NSString stringWithFormat:@"%@, %@", localizedText(facts.name),
                                            localizedText(facts.buttonTitle)]];
    const CGFloat buttonLeft = contentWidth - tilePadding - NSWidth([button frame]);
    [button setFrameOrigin:NSMakePoint(buttonLeft, middle - NSHeight([button frame]) / 2)];
    [button setAutoresizingMask:NSViewMinXMargin];
    [content addSubview:button];

    const auto addText = [&](NSTextField *label, CGFloat bottom, CGFloat height) {
        [label setFrame:NSMakeRect(textLeft, bottom, buttonLeft - textLeft - tilePadding, height)];
        [label setAutoresizingMask:NSViewWidthSizable];
        [content addSubview:label];
    };
    addText(
        makeLabel(localizedText(facts.name), [NSFont boldSystemFontOfSize:14], [NSColor controlTextColor]),
        middle + 3, nameHeight);
    // Two lines, which it takes in a narrow window.
    addText(
        makeLabel(localizedText(facts.description), [NSFont systemFontOfSize:12], secondaryTextColor(), true),
        middle + 1 - descriptionHeight, descriptionHeight);
    return tile;
}

} // namespace

NSView *makeMoreAppsPage(const PageLayout &layout, NSSize size, SettingsViewController *controller) {
    NSView *page = [[[NSView alloc] initWithFrame:NSMakeRect(0, 0, size.width, size.height)] autorelease];
    [page setAutoresizingMask:NSViewWidthSizable | NSViewHeightSizable];
    PageFrame column(page, size);
    column.addHeading(layout);
    for (const auto &tile : appTiles()) {
        column.add(makeTile(tile, column.width(), controller), tileHeight);
        column.skip(tilePadding);
    }
    return page;
}

} // namespace tarnwick
