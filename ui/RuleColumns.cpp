#include "ui/RuleColumns.h"

#include <algorithm>
#include <array>

namespace tarnwick {
namespace {

constexpr std::string_view offer = "Offer %@ in the menu";
constexpr std::string_view name = "Name of %@";
constexpr std::string_view icon = "Icon of %@";
constexpr std::string_view folder = "Folder of %@";

constexpr bool flexible = true;
constexpr bool fixed = false;
constexpr bool centred = true;
constexpr bool atTheLeft = false;

constexpr std::array createNewFileColumns{
    Column{"Enable", "", 34, offer, &RuleCells::enableBox, fixed, atTheLeft, ColumnRole::enableSwitch},
    Column{"NewFileIcon", "", 44, icon, &RuleCells::templateIcon},
    Column{
        "NewFileDisplayName", "Name", 260, name, &RuleCells::wideName, flexible, atTheLeft, ColumnRole::name},
    Column{"Extension", "Extension", 110, "Extension of %@", &RuleCells::extension},
    Column{"EnableMainMenu", "Main Menu", 92, "Offer %@ in the main menu", &RuleCells::mainMenuBox, fixed,
        centred},
};

constexpr std::array copyFilesToColumns{
    Column{"Enable", "", 34, offer, &RuleCells::bareEnableBox, fixed, atTheLeft, ColumnRole::enableSwitch},
    Column{"SendFileIcon", "", 40, icon, &RuleCells::folderIcon},
    Column{"Note", "Name", 200, name, &RuleCells::name, flexible, atTheLeft, ColumnRole::name},
    Column{"realPath", "Folder", 280, folder, &RuleCells::path, flexible},
};

constexpr std::array commonPathColumns{
    Column{"commonPathIcon", "", 40, icon, &RuleCells::folderIcon},
    Column{
        "commonPathDisplayName", "Name", 200, name, &RuleCells::name, flexible, atTheLeft, ColumnRole::name},
    Column{"realPath", "Folder", 280, folder, &RuleCells::path, flexible},
};

constexpr std::array customIconColumns{
    Column{"Enable", "", 34, offer, &RuleCells::enableBox, fixed, atTheLeft, ColumnRole::enableSwitch},
    Column{"Icon", "", 44, icon, &RuleCells::recordIcon},
    Column{"CustomIconName", "Name", 300, name, &RuleCells::name, flexible, atTheLeft, ColumnRole::name},
    Column{"Size", "Size", 112, "Size of %@", &RuleCells::size, fixed, centred},
};

constexpr std::array othersColumns{
    Column{"OthersEnable", "", 34, offer, &RuleCells::enableBox, fixed, atTheLeft, ColumnRole::enableSwitch},
    Column{"OthersIcon", "", 52, icon, &RuleCells::actionIcon},
    Column{"OthersDisplayName", "Name", 240, name, &RuleCells::name, flexible, atTheLeft, ColumnRole::name},
    Column{"OthersNote", "Note", 200, "Note of %@", &RuleCells::note, flexible},
};

constexpr PerCategory<std::span<const Column>> columns{
    createNewFileColumns, copyFilesToColumns, commonPathColumns, customIconColumns, othersColumns};

template <typename Matches>
const Column* firstColumn(RuleCategory category, const Matches& matches) {
    const auto all = columns[category];
    const auto found = std::find_if(all.begin(), all.end(), matches);
    return found == all.end() ? nullptr : &*found;
}

} // namespace

std::span<const Column> columnsOf(RuleCategory category) {
    return columns[category];
}

const Column* columnOf(RuleCategory category, std::string_view identifier) {
    return firstColumn(
        category, [identifier](const Column& column) { return column.identifier == identifier; });
}

const Column* columnOf(RuleCategory category, ColumnRole role) {
    return firstColumn(category, [role](const Column& column) { return column.role == role; });
}

} // namespace tarnwick
