#import "front/PreviewMenu.h"

#import "adapters/foundation/ImageAccess.h"
#import "adapters/foundation/StringConversion.h"
#import "front/SettingsViewController+Actions.h"

#include "ui/MenuPreview.h"

@implementation PreviewedRule

- (instancetype)initWithItem:(const tarnwick::PreviewItem &)item controller:(id)controller {
    self = [super initWithTitle:tarnwick::toNSString(item.title)
                         action:@selector(showPreviewedRule:)
                  keyEquivalent:@""];
    if (self) {
        _category = item.category;
        _row = static_cast<long>(item.row);
        [self setTarget:controller];
    }
    return self;
}

- (tarnwick::RuleCategory)category {
    return _category;
}

- (long)row {
    return _row;
}

@end

namespace tarnwick {
namespace {

constexpr CGFloat iconSize = 16;
/// Nobody looks through more of them, and each takes its time to be read and drawn.
constexpr NSInteger mostIcons = 200;

void showIcon(NSMenuItem *shown, const ImagePointer &icon) {
    if (NSImage *image = [[imageOf(icon) copy] autorelease]) {
        [image setSize:NSMakeSize(iconSize, iconSize)];
        [shown setImage:image];
    }
}

NSMenuItem *makeItem(const MenuPreview &preview, const PreviewItem &item, id controller) {
    switch (item.kind) {
    case PreviewItem::Kind::separator:
        break;
    case PreviewItem::Kind::rule:
        return [[[PreviewedRule alloc] initWithItem:item controller:controller] autorelease];
    case PreviewItem::Kind::section:
    case PreviewItem::Kind::remark: {
        NSMenuItem *shown = [[[NSMenuItem alloc] initWithTitle:toNSString(item.title)
                                                        action:nullptr
                                                 keyEquivalent:@""] autorelease];
        if (item.kind == PreviewItem::Kind::section) {
            [shown setSubmenu:makePreviewMenu(preview, item.items, controller)];
        } else {
            [shown setEnabled:NO];
        }
        return shown;
    }
    }
    return static_cast<NSMenuItem *>([NSMenuItem separatorItem]);
}

} // namespace

NSMenu *makePreviewMenu(const MenuPreview &preview, const std::vector<PreviewItem> &items, id controller) {
    NSMenu *menu = [[[NSMenu alloc] initWithTitle:@""] autorelease];
    NSInteger icons = 0;
    for (const auto &item : items) {
        NSMenuItem *shown = makeItem(preview, item, controller);
        if (item.hasIcon && icons < mostIcons) {
            showIcon(shown, preview.icon(item));
            ++icons;
        }
        [menu addItem:shown];
    }
    return menu;
}

} // namespace tarnwick
