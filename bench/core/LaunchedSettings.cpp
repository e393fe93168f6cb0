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

} // namespace tarnwick::bench
