#include "ui/MenuPreview.h"

#include "platform/ApplicationBundle.h"
#include "prefs/GroupContainer.h"
#include "prefs/LocalPreferences.h"
#include "prefs/RuleList.h"
#include "ui/RuleColumns.h"
#include "ui/RuleRows.h"

#include <array>
#include <iterator>

namespace tarnwick {

/// Which rules stand together. An empty switch: they always do.
struct MenuPreview::Section {
    RuleCategory category;
    std::string_view title;
    std::string_view switchKey;
    std::string_view icon;
};

namespace {

constexpr PerCategory<std::string_view> iconSwitches{"enableIconOfCreateNewFile", "enableIconOfSendFilesTo",
    "enableIconOfCommonPath", "enableIconOfCustomIcon", "enableIconOfOthers"};

constexpr std::string_view nothingOffered = "Nothing is offered here";
constexpr std::string_view arrangement = "The Finder decides how this is arranged";

void append(std::vector<PreviewItem>& items, std::vector<PreviewItem> more) {
    items.insert(items.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
}

} // namespace

std::vector<PreviewItem> MenuPreview::items() const {
    static constexpr std::array sections{
        Section{RuleCategory::createNewFile, "New File", "", "createNewFile"},
        Section{RuleCategory::copyFilesTo, "Copy to", "enableCopyFilesTo", "copyFilesTo"},
        Section{RuleCategory::copyFilesTo, "Move to", "enableMoveFilesTo", "moveFilesTo"},
        Section{RuleCategory::commonPath, "Common Folders", "enableCommonPath", "commonPath"},
        Section{RuleCategory::customIcon, "Custom Icons", "", "customIcon"},
    };
    auto items = templatesOfMainMenu();
    for (const auto& facts : sections) {
        if (facts.switchKey.empty() || local_.flag(facts.switchKey)) {
            items.push_back(section(facts));
        }
    }
    items.emplace_back();
    auto others = rules(RuleCategory::others);
    if (others.empty()) {
        others.push_back(remark("No further items are offered"));
    }
    append(items, std::move(others));
    items.emplace_back();
    items.push_back(remark(arrangement));
    return items;
}

ImagePointer MenuPreview::icon(const PreviewItem& item) const {
    if (!item.hasIcon) {
        return nullptr;
    }
    if (item.kind == PreviewItem::Kind::section) {
        const auto folder = GroupContainer(folders_).functionIconFolder();
        return folder ? images_.fromFile(
                            std::string(*folder).append("/").append(item.sectionIcon).append(".png"))
                      : nullptr;
    }
    const auto* column = columnOf(item.category, ColumnRole::icon);
    const auto cell = rows_.cell(item.category, column->identifier, static_cast<long>(item.row));
    const auto* image = std::get_if<ImageCell>(&cell.control);
    return image ? image->image : nullptr;
}

PreviewItem MenuPreview::section(const Section& facts) const {
    PreviewItem item{.kind = PreviewItem::Kind::section,
        .title = bundle_.localized(facts.title),
        .hasIcon = local_.flag(iconSwitches[facts.category]),
        .category = facts.category,
        .sectionIcon = facts.icon,
        .items = rules(facts.category)};
    if (item.items.empty()) {
        item.items.push_back(remark(nothingOffered));
    }
    return item;
}

std::vector<PreviewItem> MenuPreview::rules(RuleCategory category) const {
    std::vector<PreviewItem> items;
    for (const auto row : lists_[category].enabledRows()) {
        items.push_back(rule(category, row));
    }
    return items;
}

std::vector<PreviewItem> MenuPreview::templatesOfMainMenu() const {
    constexpr auto category = RuleCategory::createNewFile;
    std::vector<PreviewItem> items;
    for (const auto row : lists_[category].enabledRows()) {
        if (lists_[category][row].flag(field::enableMainMenu)) {
            items.push_back(rule(category, row));
        }
    }
    if (!items.empty()) {
        items.emplace_back();
    }
    return items;
}

PreviewItem MenuPreview::rule(RuleCategory category, std::size_t row) const {
    const auto* column = columnOf(category, ColumnRole::name);
    const auto cell = rows_.cell(category, column->identifier, static_cast<long>(row));
    const auto* name = std::get_if<TextFieldCell>(&cell.control);
    return {.kind = PreviewItem::Kind::rule,
        .title = name ? name->text : std::string(),
        .hasIcon = local_.flag(iconSwitches[category]),
        .category = category,
        .row = row};
}

PreviewItem MenuPreview::remark(std::string_view text) const {
    return {.kind = PreviewItem::Kind::remark, .title = bundle_.localized(text)};
}

} // namespace tarnwick
