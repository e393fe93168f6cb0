#include "bench/core/LaunchedSettings.h"

#include "tests/support/LongList.h"

#include <string>

namespace tarnwick::bench {

LaunchedSettings::LaunchedSettings(std::size_t records, std::size_t imageBytes)
    : window_(platform_.log), controller_(platform_.ports()) {
    const auto list = testing::makeLongList(records, imageBytes);
    platform_.preferences.local.insert_or_assign(
        std::string(factsOf(list.category()).listKey), list.toPlist());
    controller_.connect(window_.outlets());
    window_.table(list.category()).rowCount = [this] {
        return controller_.numberOfRows(RuleCategory::customIcon);
    };
    controller_.awakeFromNib();
    platform_.runLoop.runMain();
    forgetCalls();
}

} // namespace tarnwick::bench
