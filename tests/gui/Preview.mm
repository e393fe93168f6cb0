#include "tests/gui/Preview.h"

#include "tests/gui/SettingsWindow.h"

#import "adapters/foundation/StringConversion.h"
#import "front/SettingsViewController+Actions.h"
#import "tests/driving/Driving.h"

namespace tarnwick::gui {
namespace {

void postKeys(const std::u16string &keys) {
    for (const auto key : keys) {
        const auto unit = static_cast<unichar>(key);
        driving::postKey(settingsWindow(), [NSString stringWithCharacters:&unit length:1]);
    }
}

} // namespace

void clickPreviewAndType(const std::u16string &keys) {
    @autoreleasepool {
        NSButton *button = [settingsController() previewButton];
        driving::postClicks(settingsWindow(), driving::middleOf(button));
        postKeys(keys);
        driving::settle();
    }
}

void pressPreviewKeysAndType(const std::u16string &keys) {
    @autoreleasepool {
        driving::postKey(settingsWindow(), @"P", NSEventModifierFlagCommand | NSEventModifierFlagShift);
        postKeys(keys);
        driving::settle();
    }
}

} // namespace tarnwick::gui
