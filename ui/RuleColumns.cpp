#include "ui/RuleColumns.h"

#include <algorithm>
#include <array>

namespace tarnwick {
namespace {

constexpr Frame nameFrame{0, 0, 300, 23};
constexpr Frame wideFrame{0, 0, 500, 23};
constexpr Frame sizeFrame{0, 0, 100, 23};
constexpr Frame checkBoxFrame{6, 5, 20, 20};
constexpr Frame mainMenuFrame{35, 5, 20, 20};
constexpr Frame iconFrame{8, 1, 28, 28};
constexpr Frame folderIconFrame{5, 1, 28, 28};
constexpr Frame actionIconFrame{20, 5, 20, 20};

constexpr Column iconColumn(
    std::string_view identifier, double width, RuleCells::Maker cell, const Frame& frame) {
    return {.identifier = identifier,
        .width = width,
        .label = "Icon of %@",
        .cell = cell,
        .frame = frame,
        .role = ColumnRole::icon};
}

/// The switch at the head of a row, as far from the edge where the cell is the bare box as elsewhere.
constexpr Column enableColumn(std::string_view identifier, std::optional<Frame> frame) {
    constexpr double width = 34;
    const double room = frame ? 0 : checkBoxFrame.x;
    return {.identifier = identifier,
        .width = width - room,
        .roomBefore = room,
        .label = "Offer %@ in the menu",
        .cell = &RuleCells::checkBox,
        .frame = frame,
        .field = field::enable,
        .role = ColumnRole::enableSwitch};
}

constexpr Column nameColumn(RuleCategory category, double width, const Frame& frame) {
    return {.identifier = factsOf(category).nameIdentifier,
        .title = "Name",
        .width = width,
        .label = "Name of %@",
        .cell = &RuleCells::name,
        .frame = frame,
        .flexible = true,
        .isSearched = true,
        .role = ColumnRole::name};
}

constexpr Column pathColumn{.identifier = "realPath",
    .title = "Folder",
    .width = 280,
    .label = "Folder of %@",
    .cell = &RuleCells::path,
    .frame = wideFrame,
    .flexible = true,
    .isSearched = true,
    .showsPath = true};

constexpr std::array createNewFileColumns{
    enableColumn("Enable", checkBoxFrame),
    iconColumn("NewFileIcon", 44, &RuleCells::templateIcon, iconFrame),
    nameColumn(RuleCategory::createNewFile, 260, wideFrame),
    Column{.identifier = "Extension",
        .title = "Extension",
        .width = 110,
        .label = "Extension of %@",
        .cell = &RuleCells::extension,
        .frame = nameFrame,
        .isSearched = true},
    Column{.identifier = "EnableMainMenu",
        .title = "Main Menu",
        .width = 86,
        .label = "Offer %@ in the main menu",
        .cell = &RuleCells::checkBox,
        .frame = mainMenuFrame,
        .field = field::enableMainMenu,
        .centredTitle = true,
        .role = ColumnRole::mainMenuSwitch},
};

constexpr std::array copyFilesToColumns{
    enableColumn("Enable", std::nullopt),
    iconColumn("SendFileIcon", 40, &RuleCells::folderIcon, folderIconFrame),
    nameColumn(RuleCategory::copyFilesTo, 200, nameFrame),
    pathColumn,
};

constexpr std::array commonPathColumns{
    iconColumn("commonPathIcon", 40, &RuleCells::folderIcon, folderIconFrame),
    nameColumn(RuleCategory::commonPath, 200, nameFrame),
    pathColumn,
};

constexpr std::array customIconColumns{
    enableColumn("Enable", checkBoxFrame),
    iconColumn("Icon", 44, &RuleCells::recordIcon, iconFrame),
    nameColumn(RuleCategory::customIcon, 300, nameFrame),
    Column{.identifier = "Size",
        .title = "Size",
        .width = 112,
        .label = "Size of %@",
        .cell = &RuleCells::size,
        .frame = sizeFrame,
        .centredTitle = true},
};

constexpr std::array othersColumns{
    enableColumn("OthersEnable", checkBoxFrame),
    iconColumn("OthersIcon", 52, &RuleCells::recordIcon, actionIconFrame),
    nameColumn(RuleCategory::others, 254, nameFrame),
    Column{.identifier = "OthersNote",
        .title = "Note",
        .width = 256,
        .label = "Note of %@",
        .cell = &RuleCells::note,
        .frame = nameFrame,
        .flexible = true,
        .isSearched = true,
        .role = ColumnRole::note},
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
