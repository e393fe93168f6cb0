#include "ui/RowLabels.h"

#include "platform/ApplicationBundle.h"

#include <array>

namespace tarnwick {
namespace {

/// Keys of the localisation table; the placeholder stands for the row.
struct ColumnLabel {
    std::string_view column;
    std::string_view label;
};

constexpr std::string_view offerLabel = "Offer %@ in the menu";
constexpr std::string_view nameLabel = "Name of %@";
constexpr std::string_view iconLabel = "Icon of %@";
constexpr std::string_view rowLabel = "row %@";
constexpr std::string_view placeholder = "%@";

constexpr std::array<ColumnLabel, 17> labels{{
    {"Enable", offerLabel},
    {"NewFileIcon", iconLabel},
    {"NewFileDisplayName", nameLabel},
    {"Extension", "Extension of %@"},
    {"EnableMainMenu", "Offer %@ in the main menu"},
    {"SendFileIcon", iconLabel},
    {"Note", nameLabel},
    {"realPath", "Folder of %@"},
    {"commonPathIcon", iconLabel},
    {"commonPathDisplayName", nameLabel},
    {"Icon", iconLabel},
    {"CustomIconName", nameLabel},
    {"Size", "Size of %@"},
    {"OthersEnable", offerLabel},
    {"OthersIcon", iconLabel},
    {"OthersDisplayName", nameLabel},
    {"OthersNote", "Note of %@"},
}};

std::string filled(std::string format, std::string_view text) {
    const auto position = format.find(placeholder);
    return position == std::string::npos ? format : format.replace(position, placeholder.size(), text);
}

std::string rowName(const ApplicationBundle& bundle, std::string_view name, long row, bool isRepeated) {
    if (!name.empty() && !isRepeated) {
        return std::string(name);
    }
    auto number = filled(bundle.localized(rowLabel), std::to_string(row + 1));
    return name.empty() ? number : std::string(name).append(" (").append(number).append(")");
}

} // namespace

std::string rowControlLabel(const ApplicationBundle& bundle, std::string_view column, std::string_view name,
    long row, bool isRepeated) {
    for (const auto& entry : labels) {
        if (entry.column == column) {
            return filled(bundle.localized(entry.label), rowName(bundle, name, row, isRepeated));
        }
    }
    return {};
}

} // namespace tarnwick
