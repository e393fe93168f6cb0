#include "tests/model/RuleModel.h"

#include <algorithm>

namespace tarnwick::testing {
namespace {

std::string fileOf(const PlistDictionary& record) {
    return textIn(record, "displayName") + "." + textIn(record, "extension");
}

bool staysInFolder(const std::string& file) {
    return file != "." && file != ".." && file.find('/') == std::string::npos;
}

} // namespace

std::string textIn(const PlistDictionary& record, std::string_view field) {
    const auto found = record.find(field);
    return found == record.end() || !found->second.string() ? std::string() : *found->second.string();
}

bool isOn(const PlistDictionary& record) {
    return isSet(record, "enable");
}

bool isSet(const PlistDictionary& record, std::string_view field) {
    const auto found = record.find(field);
    return found != record.end() && (found->second == PlistValue(1) || found->second == PlistValue(true) ||
                                        found->second == PlistValue("1"));
}

bool isFixed(const PlistDictionary& record) {
    const auto action = textIn(record, "Action");
    return action == "Change to QR Code" || action == "Translate by Google" || action == "Translate by Baidu";
}

bool RuleModel::holds(RuleCategory category, long row) const {
    return row >= 0 && row < static_cast<long>(list(category).size());
}

bool RuleModel::makeFile(const std::string& name) {
    return failing.count(name) == 0 && files.insert(name).second;
}

void RuleModel::layOutFiles() {
    files.clear();
    for (const auto& record : factory[RuleCategory::createNewFile]) {
        makeFile(fileOf(record));
        makeFile(textIn(record, "extension") + ".png");
    }
}

void RuleModel::addMissingEditors() {
    auto& others = list(RuleCategory::others);
    const auto has = [](const Records& records, const std::string& action) {
        return std::any_of(records.begin(), records.end(),
            [&action](const auto& record) { return textIn(record, "Action") == action; });
    };
    const auto before = others;
    const auto& all = factory[RuleCategory::others];
    for (std::size_t place = 0; place < all.size(); ++place) {
        const auto action = textIn(all[place], "Action");
        const auto isEditor =
            action == "Open in VSCode" || action == "Open in Sublime Text" || action == "Open in Emacs";
        if (isEditor && !has(before, action)) {
            others.insert(others.begin() + static_cast<long>(std::min(place, others.size())), all[place]);
        }
    }
}

bool RuleModel::addTemplate(const std::string& name, const std::string& extension) {
    if (makeFile(extension.empty() ? name : name + "." + extension)) {
        list(RuleCategory::createNewFile)
            .push_back({{"enable", "1"}, {"displayName", name}, {"extension", extension}, {"modified", "1"}});
    }
    return true;
}

bool RuleModel::addFolder(RuleCategory category, const std::string& parent, const std::string& name) {
    list(category).push_back({{"enable", 1}, {"realPath", parent + "/" + name}, {"displayName", name}});
    return true;
}

bool RuleModel::addIcon(const std::string& fileName, const PlistData& tiff) {
    if (!tiff.empty()) {
        list(RuleCategory::customIcon)
            .push_back({{"enable", 1}, {"icon", tiff}, {"displayName", fileName}, {"modified", "1"}});
    }
    return true;
}

bool RuleModel::addAction(const std::string& name, const PlistData& tiff) {
    if (!tiff.empty()) {
        list(RuleCategory::others)
            .push_back({{"enable", 1}, {"icon", tiff}, {"displayName", name}, {"nameModified", "0"},
                {"noteModified", "0"}, {"Action", name}, {"Note", ""}});
    }
    return true;
}

bool RuleModel::remove(RuleCategory category, long row) {
    if (!holds(category, row)) {
        return false;
    }
    if (category == RuleCategory::createNewFile) {
        if (const auto file = fileOf(record(category, row)); staysInFolder(file)) {
            files.erase(file);
        }
    }
    list(category).erase(list(category).begin() + row);
    return true;
}

bool RuleModel::set(RuleCategory category, long row, const std::string& field, bool on) {
    if (!holds(category, row)) {
        return false;
    }
    auto& changed = record(category, row);
    if (!isFixed(changed)) {
        const auto allowed = textIn(changed, "realPath") != "Undefined";
        changed.insert_or_assign(field, on && allowed ? 1 : 0);
    }
    return true;
}

bool RuleModel::enableAll(RuleCategory category, bool on) {
    for (auto& record : list(category)) {
        record.insert_or_assign("enable", isFixed(record) ? PlistValue(1) : PlistValue(on));
    }
    return true;
}

bool RuleModel::drop(RuleCategory category, long from, long to) {
    const auto counted = list(category == RuleCategory::others ? RuleCategory::customIcon : category).size();
    if (!holds(category, from) || to < 0 || isFixed(record(category, from))) {
        return false;
    }
    auto rest = list(category);
    const auto moved = record(category, from);
    rest.erase(rest.begin() + from);
    const auto place = to == static_cast<long>(counted) ? to - 1 : to;
    if (place < 0 || place > static_cast<long>(rest.size())) {
        return false;
    }
    rest.insert(rest.begin() + place, moved);
    list(category) = rest;
    return true;
}

bool RuleModel::rename(RuleCategory category, long row, const std::string& mark, const std::string& text) {
    if (!holds(category, row)) {
        return false;
    }
    auto& changed = record(category, row);
    const auto oldFile = fileOf(changed);
    if (!mark.empty()) {
        changed.insert_or_assign(mark, "1");
    }
    changed.insert_or_assign("displayName", text);
    const auto newFile = fileOf(changed);
    if (category == RuleCategory::createNewFile && staysInFolder(oldFile) && staysInFolder(newFile) &&
        files.count(oldFile) != 0 && makeFile(newFile)) {
        files.erase(oldFile);
    }
    return true;
}

bool RuleModel::editNote(long row, const std::string& text) {
    if (!holds(RuleCategory::others, row)) {
        return false;
    }
    record(RuleCategory::others, row).insert_or_assign("noteModified", "1");
    record(RuleCategory::others, row).insert_or_assign("Note", text);
    return true;
}

bool RuleModel::choosePath(long row, const std::string& path) {
    if (!holds(RuleCategory::copyFilesTo, row)) {
        return false;
    }
    record(RuleCategory::copyFilesTo, row).insert_or_assign("realPath", path);
    record(RuleCategory::copyFilesTo, row).insert_or_assign("displayName", "");
    return true;
}

bool RuleModel::reset(RuleCategory category) {
    if (category == RuleCategory::commonPath) {
        return false;
    }
    list(category) = factory[category];
    if (category == RuleCategory::createNewFile) {
        layOutFiles();
    }
    return true;
}

} // namespace tarnwick::testing
