#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

class KnownFolders;
class RuleRecord;

/// Paths inside the folder that the application shares with the Finder extension, asked of the platform anew
/// at each call. Nothing when the platform grants no such folder.
class GroupContainer {
public:
    explicit GroupContainer(const KnownFolders& folders) : folders_(folders) {}

    /// One file per CreateNewFile record, and one icon per extension.
    [[nodiscard]] std::optional<std::string> templateFolder() const;
    /// The icons of the menu's sections.
    [[nodiscard]] std::optional<std::string> functionIconFolder() const;
    /// The icons of the fixed Others items.
    [[nodiscard]] std::optional<std::string> othersIconFolder() const;

private:
    [[nodiscard]] std::optional<std::string> folder(std::string_view relativePath) const;

    const KnownFolders& folders_;
};

/// "<displayName>.<extension>": the name of a record's template file. A record without extension gets a bare
/// trailing dot.
[[nodiscard]] std::string templateFileName(std::string_view displayName, std::string_view extension);
[[nodiscard]] std::string templateFileName(const RuleRecord& record);

} // namespace tarnwick
