#import "front/CellFactory.h"

#import "adapters/foundation/ImageAccess.h"
#import "adapters/foundation/StringConversion.h"
#import "front/CellContainerView.h"
#import "front/CellControls.h"
#import "front/LayoutDirection.h"
#import "front/RuleTextField.h"
#import "front/Selectors.h"

#include "ui/CellView.h"
#include "ui/RowRemarks.h"

namespace tarnwick {
namespace {

NSRect rectOf(const Frame &frame) {
    return NSMakeRect(frame.x, frame.y, frame.width, frame.height);
}

NSTextField *makeTextField(const TextFieldCell &cell, id controller) {
    RuleTextField *field = [[[RuleTextField alloc] init] autorelease];
    [field setBezeled:NO];
    [field setDrawsBackground:NO];
    [field setEditable:cell.editable];
    // Else a drag across it would select its text, not take its row along.
    [field setSelectable:cell.editable];
    [[field cell] setLineBreakMode:NSLineBreakByTruncatingTail];
    if (cell.alignment == TextAlignment::centred) {
        [field setAlignment:NSTextAlignmentCenter];
    }
    if (cell.hasDelegate) {
        [field setDelegate:controller];
    }
    if (!cell.identifier.empty()) {
        [field setIdentifier:toNSString(cell.identifier)];
    }
    [field setStringValue:toNSString(cell.text)];
    return field;
}

NSButton *makeCheckBox(const CheckBoxCell &cell, RuleCategory category, id controller) {
    NSButton *box = [[[NSButton alloc] init] autorelease];
    [box setButtonType:NSButtonTypeSwitch];
    [box setTitle:@""];
    [box setState:cell.on ? NSControlStateValueOn : NSControlStateValueOff];
    [box setEnabled:cell.enabled];
    [box setTarget:controller];
    [box setAction:actionOf(category, cell.field)];
    return box;
}

NSImageView *makeImageView(const ImageCell &cell) {
    NSImageView *view = [[[CellImageView alloc] init] autorelease];
    [view setImageScaling:NSImageScaleProportionallyDown];
    [view setImage:imageOf(cell.image)];
    return view;
}

NSView *makeControl(const CellView &cell, RuleCategory category, id controller) {
    NSControl *control = nil;
    if (const auto *field = std::get_if<TextFieldCell>(&cell.control)) {
        control = makeTextField(*field, controller);
    } else if (const auto *box = std::get_if<CheckBoxCell>(&cell.control)) {
        control = makeCheckBox(*box, category, controller);
    } else if (const auto *image = std::get_if<ImageCell>(&cell.control)) {
        control = makeImageView(*image);
    }
    if (cell.tag) {
        [control setTag:*cell.tag];
    }
    if (cell.frame) {
        [control setFrame:rectOf(*cell.frame)];
    }
    return control;
}

} // namespace

NSView *makeCell(const CellView &cell, RuleCategory category, NSString *label, id controller) {
    NSView *control = makeControl(cell, category, controller);
    [control setAccessibilityLabel:label];
    if (cell.bare) {
        return control;
    }
    NSView *container = [[[CellContainerView alloc] initWithFrame:rectOf(cellContainerFrame)] autorelease];
    if (control) {
        [container addSubview:control];
        mirrorIfRightToLeft(container);
    }
    return container;
}

void remarkOn(NSView *cell, const CellRemark &remark) {
    NSView *control = [cell isKindOfClass:[NSControl class]] ? cell : [[cell subviews] firstObject];
    NSString *toolTip = toNSString(remark.toolTip);
    [control setAccessibilityHelp:remark.help.empty() ? nil : toNSString(remark.help)];
    if ([control isKindOfClass:[RuleTextField class]]) {
        RuleTextField *field = static_cast<RuleTextField *>(control);
        if (remark.isPath) {
            [[field cell] setLineBreakMode:NSLineBreakByTruncatingMiddle];
        }
        [field setWarns:remark.warns];
        [field setRemark:toolTip];
    } else {
        [control setToolTip:remark.toolTip.empty() ? nil : toolTip];
    }
}

} // namespace tarnwick
