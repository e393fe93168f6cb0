#pragma once

#include "platform/Images.h"
#include "prefs/RuleCategory.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

class ApplicationBundle;
class KnownFolders;
class LocalPreferences;
class RuleLists;
class RuleRows;
struct MenuSection;

/// An item of the menu that the Finder is given.
struct PreviewItem {
    enum class Kind {
        rule,
        section,
        /// Says something and does nothing.
        remark,
        separator
    };

    Kind kind = Kind::separator;
    std::string title;
    bool hasIcon = false;
    /// Of the rule, or of those in the section.
    RuleCategory category = RuleCategory::others;
    /// A rule's place in its list.
    std::size_t row = 0;
    /// A section's icon among those that the extension is given.
    std::string_view sectionIcon;
    /// Never empty in a section.
    std::vector<PreviewItem> items;

    bool operator==(const PreviewItem&) const = default;
};

/// The menu as it comes of what is published just now: the enabled rules of each list, by the publisher's own
/// filter, and the switches. Neither what was published before nor any file is read for it, but the icons
/// when they are asked for; nothing is ever written.
class MenuPreview {
public:
    MenuPreview(const RuleLists& lists, const LocalPreferences& local, const RuleRows& rows,
        const KnownFolders& folders, const ApplicationBundle& bundle, Images& images)
        : lists_(lists), local_(local), rows_(rows), folders_(folders), bundle_(bundle), images_(images) {}

    [[nodiscard]] std::vector<PreviewItem> items() const;
    /// Null where it has none.
    [[nodiscard]] ImagePointer icon(const PreviewItem& item) const;

private:
    [[nodiscard]] PreviewItem section(RuleCategory category, const MenuSection& facts) const;
    [[nodiscard]] bool hasIcons(RuleCategory category) const;
    [[nodiscard]] std::vector<PreviewItem> rules(RuleCategory category) const;
    [[nodiscard]] std::vector<PreviewItem> templatesOfMainMenu() const;
    [[nodiscard]] PreviewItem rule(RuleCategory category, std::size_t row) const;
    [[nodiscard]] PreviewItem remark(std::string_view text) const;

    const RuleLists& lists_;
    const LocalPreferences& local_;
    const RuleRows& rows_;
    const KnownFolders& folders_;
    const ApplicationBundle& bundle_;
    Images& images_;
};

} // namespace tarnwick
