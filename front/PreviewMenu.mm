#import "front/PreviewMenu.h"

#import "adapters/foundation/ImageAccess.h"
#import "adapters/foundation/StringConversion.h"
#import "front/SettingsViewController+Actions.h"

namespace {

constexpr CGFloat iconSize = 16;

} // namespace

@implementation PreviewedRule

- (instancetype)initWithItem:(const tarnwick::PreviewItem &)item
                     preview:(const tarnwick::MenuPreview &)preview
                  controller:(id)controller {
    self = [super initWithTitle:tarnwick::toNSString(item.title)
                         action:@selector(showPreviewedRule:)
                  keyEquivalent:@""];
    if (self) {
        _item = item;
        _preview = &preview;
        [self setTarget:controller];
        if (item.hasIcon) {
            [self setImage:[self imageDrawnLater]];
        }
    }
    return self;
}

/// An image that somebody keeps for longer does not ask an item that is gone to draw it.
- (void)dealloc {
    NSImage *image = [self image];
    for (NSImageRep *drawing in [[[image representations] copy] autorelease]) {
        [image removeRepresentation:drawing];
    }
    [super dealloc];
}

- (const tarnwick::PreviewItem &)item {
    return _item;
}

/// Thousands of icons take their time to be read and drawn, and few of them come in sight.
- (NSImage *)imageDrawnLater {
    NSCustomImageRep *drawing = [[[NSCustomImageRep alloc] initWithDrawSelector:@selector(drawIcon:)
                                                                       delegate:self] autorelease];
    const NSSize size = NSMakeSize(iconSize, iconSize);
    [drawing setSize:size];
    NSImage *image = [[[NSImage alloc] initWithSize:size] autorelease];
    [image addRepresentation:drawing];
    return image;
}

- (void)drawIcon:(NSCustomImageRep *)drawing {
    [tarnwick::imageOf(_preview->icon(_item)) drawInRect:NSMakeRect(0, 0, iconSize, iconSize)
                                                fromRect:NSZeroRect
                                               operation:NSCompositingOperationSourceOver
                                                fraction:1];
}

@end

namespace tarnwick {
namespace {

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
        return [[[PreviewedRule alloc] initWithItem:item preview:preview controller:controller] autorelease];
    case PreviewItem::Kind::section:
    case PreviewItem::Kind::remark: {
        NSMenuItem *shown = [[[NSMenuItem alloc] initWithTitle:toNSString(item.title)
                                                        action:nullptr
                                                 keyEquivalent:@""] autorelease];
        if (item.kind == PreviewItem::Kind::section) {
            showIcon(shown, preview.icon(item));
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
    for (const auto &item : items) {
        [menu addItem:makeItem(preview, item, controller)];
    }
    return menu;
}

} // namespace tarnwick
