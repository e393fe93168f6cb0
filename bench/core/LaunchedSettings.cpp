#include "bench/core/LaunchedSettings.h"

#include "tests/support/LongList.h"

#include <string>

namespace tarnwick::bench {

LaunchedSettings::LaunchedSettings(std::size_t records, std::size_t imageBytes) {
    const auto list = testing::makeLongList(records, imageBytes);
    platform_.preferences.local.insert_or_assign(
        std::string(factsOf(list.category()).listKey), list.toPlist());
    window_.table(list.category()).rowCount = [this] {
        return controller_.rows().count(RuleCategory::customIcon);
    };
    controller_.awakeFromNib();
    platform_.runLoop.runMain();
    forgetCalls();
}

void LaunchedSettings::switchAll(bool on) {
    platform_.preferences.userSets(factsOf(RuleCategory::customIcon).enableAllKey, on);
    controller_.enableAll(RuleCategory::customIcon);
}

void LaunchedSettings::removeRow(long row) {
    window_.table(RuleCategory::customIcon).selected = row;
    controller_.remove(RuleCategory::customIcon);
}

void LaunchedSettings::addPicture() {
    platform_.images.pictureFiles["/home/Blue.png"] = "tiff of blue";
    controller_.add(RuleCategory::customIcon);
    platform_.panels.confirm({"/home/Blue.png"});
}

void LaunchedSettings::forgetCalls() {
    forgetLog();
    forgetSteps();
}

} // namespace tarnwick::bench
