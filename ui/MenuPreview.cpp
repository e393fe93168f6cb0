#include "ui/MenuPreview.h"

#include "platform/ApplicationBundle.h"
#include "prefs/GroupContainer.h"
#include "prefs/LocalPreferences.h"
#include "prefs/RuleList.h"
#include "ui/RuleColumns.h"
#include "ui/RuleRows.h"
#include "ui/WindowLayout.h"

#include <algorithm>
#include <iterator>

namespace tarnwick {

namespace {

constexpr std::string_view nothingOffered = "Nothing is offered here";
constexpr std::string_view arrangement = "The Finder decides how this is arranged";

void append(std::vector<PreviewItem>& items, std::vector<PreviewItem> more) {
    items.insert(items.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
}

} // namespace

std::vector<PreviewItem> MenuPreview::items() const {
    auto items = templatesOfMainMenu();
    std::vector<PreviewItem> atFoot;
    for (const auto page : allPages) {
        const auto& layout = layoutOf(page);
        for (const auto& facts : layout.sections) {
            if (facts.switchKey.empty() || local_.flag(facts.switchKey)) {
                items.push_back(section(*layout.category, facts));
            }
        }
        if (layout.category && layout.sections.empty()) {
            append(atFoot, rules(*layout.category));
        }
    }
    items.emplace_back();
    if (atFoot.empty()) {
        atFoot.push_back(remark("No further items are offered"));
    }
    append(items, std::move(atFoot));
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

PreviewItem MenuPreview::section(RuleCategory category, const MenuSection& facts) const {
    PreviewItem item{.kind = PreviewItem::Kind::section,
        .title = bundle_.localized(facts.title),
        .hasIcon = hasIcons(category),
        .category = category,
        .sectionIcon = facts.icon,
        .items = rules(category)};
    if (item.items.empty()) {
        item.items.push_back(remark(nothingOffered));
    }
    return item;
}

bool MenuPreview::hasIcons(RuleCategory category) const {
    const auto switches = layoutOf(pageOf(category)).switches;
    return std::any_of(switches.begin(), switches.end(),
        [this](const auto& facts) { return facts.showsIcons && local_.flag(facts.key); });
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
        .hasIcon = hasIcons(category),
        .category = category,
        .row = row};
}

PreviewItem MenuPreview::remark(std::string_view text) const {
    return {.kind = PreviewItem::Kind::remark, .title = bundle_.localized(text)};
}

} // namespace tarnwick
