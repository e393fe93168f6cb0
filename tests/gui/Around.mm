#include "tests/gui/Around.h"

#include "tests/gui/Foreign.h"
#include "tests/gui/SettingsWindow.h"

#import "adapters/foundation/StringConversion.h"

#import <AppKit/AppKit.h>

#include <cstdlib>
#include <fstream>

namespace tarnwick::gui {

void setSystemState(const std::string &answers) {
    const std::string path = sandboxFolder() + "/system-state.plist";
    std::ofstream(path) << "{" << answers << "}";
    setenv("TARNWICK_SYSTEM_STATE", path.c_str(), 1);
}

namespace {

NSView *noticeWith(const std::string &text) {
    NSString *wanted = toNSString(text);
    return firstView([settingsWindow() contentView], [wanted](NSView *view) {
        return [view isKindOfClass:[NSTextField class]] &&
               [[static_cast<NSTextField *>(view) stringValue] isEqualToString:wanted];
    });
}

} // namespace

NoticePlace placeOfNotice(const std::string &text) {
    NSView *label = noticeWith(text);
    const NSRect line = [[label superview] bounds];
    return {NSHeight([label frame]), NSHeight(line), NSMidY([label frame]) - NSMidY(line)};
}

bool showsNotice(const std::string &text) {
    return noticeWith(text) != nil;
}

std::string toolTipOfButton(const std::string &title) {
    return toString([visibleButton([settingsWindow() contentView], toNSString(title)) toolTip]);
}

} // namespace tarnwick::gui
