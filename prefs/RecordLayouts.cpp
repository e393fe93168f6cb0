#include "prefs/RecordLayouts.h"

#include <initializer_list>
#include <string>
#include <utility>

namespace tarnwick {
namespace {

RuleRecord record(std::initializer_list<std::pair<std::string_view, PlistValue>> fields) {
    PlistDictionary dictionary;
    for (const auto& [key, value] : fields) {
        dictionary.emplace(key, value);
    }
    return RuleRecord(std::move(dictionary));
}

std::string_view modifiedFlag(RecordOrigin origin) {
    return origin == RecordOrigin::user ? "1" : "0";
}

} // namespace

RuleRecord makeTemplateRecord(
    std::string_view displayName, std::string_view extension, std::string_view enable, RecordOrigin origin) {
    return record({{field::enable, enable}, {field::displayName, displayName}, {field::extension, extension},
        {field::modified, modifiedFlag(origin)}});
}

RuleRecord makeFolderRecord(std::string_view realPath, std::string_view displayName) {
    return record({{field::enable, 1}, {field::realPath, realPath}, {field::displayName, displayName}});
}

RuleRecord makeIconRecord(PlistData tiff, std::string_view displayName, RecordOrigin origin) {
    return record({{field::enable, 1}, {field::icon, std::move(tiff)}, {field::displayName, displayName},
        {field::modified, modifiedFlag(origin)}});
}

RuleRecord makeActionRecord(PlistData tiff, std::string_view action, std::string_view note) {
    return record({{field::enable, 1}, {field::icon, std::move(tiff)}, {field::displayName, action},
        {field::nameModified, "0"}, {field::noteModified, "0"}, {field::action, action},
        {field::note, note}});
}

} // namespace tarnwick
