#pragma once

#include "tests/support/EditingFixture.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tarnwick::testing {

/// All that undo must bring back: the lists in memory and as stored, what is published of them, the flags
/// that go with them, and everything in the container.
struct EverythingKept {
    std::vector<PlistValue> lists;
    std::map<std::string, PlistValue> stored;
    std::map<std::string, PlistValue> published;
    std::map<std::string, std::string> files;
    std::set<std::string> folders;

    bool operator==(const EverythingKept&) const = default;
};

/// Lists whose records hold every kind of flag, lack some fields and hold others that nobody knows; a
/// template that is a package.
class UndoFixture : public EditingFixture {
protected:
    UndoFixture() {
        const PlistDictionary unknown{{"nested", PlistArray{1, true, "1", 1.0}}};
        for (const auto category : allRuleCategories) {
            storeList(category,
                {makeRecord({{"enable", "1"}, {"displayName", "A"}, {"extension", "x"}, {"modified", "0"},
                     {"realPath", "/a"}, {"Action", "a"}, {"Note", "one"}, {"mine", unknown}}),
                    makeRecord({{"enable", true}, {"displayName", "B"}, {"extension", "x"},
                        {"realPath", "/b"}, {"icon", tiffOf("tiff of b")}}),
                    makeRecord({{"displayName", "C"}, {"extension", "x"}, {"realPath", "Undefined"}}),
                    makeRecord({{"enable", 0}, {"displayName", "D"}, {"extension", "pages"}, {"modified", 7},
                        {"Note", 3}, {"realPath", "/d"}})});
        }
        for (const auto* name : {"A.x", "B.x", "C.x", "D.pages/Contents/index", "Stranger", "x.png"}) {
            platform_.files.files[templateFolder + "/" + name] = "content of " + std::string(name);
        }
        for (const auto* name : {"", "/D.pages", "/D.pages/Contents", "/D.pages/Empty"}) {
            platform_.files.createFolder(templateFolder + name);
        }
        platform_.files.files["/home/New.txt"] = "new";
        platform_.files.files["/home/Other.txt"] = "other";
        platform_.images.pictureFiles["/home/Blue.png"] = "tiff of blue";
        launch();
        for (const auto category : allRuleCategories) {
            // An Others list of before the editors is completed in memory; a start leaves it at that.
            preferences_.local.store(list(category));
            editing_.editor.publish(category);
        }
        platform_.log.clear();
    }

    void add(RuleCategory category, std::vector<std::string> paths) {
        editing_.adding.add(category);
        platform_.panels.confirm(std::move(paths));
    }
    void remove(RuleCategory category, long row) {
        tables_.table(category).selected = row;
        editing_.removing.remove(category);
    }
    void enableAll(RuleCategory category, bool on) {
        platform_.preferences.userSets(factsOf(category).enableAllKey, on);
        editing_.toggling.enableAll(category);
    }
    void undo() { platform_.undoHistory.undo(); }
    void redo() { platform_.undoHistory.redo(); }
    [[nodiscard]] std::vector<std::string> steps() const { return platform_.undoHistory.undoNames(); }
    [[nodiscard]] std::string contentOf(const std::string& name) const {
        const auto found = platform_.files.files.find(templateFolder + "/" + name);
        return found == platform_.files.files.end() ? "(none)" : found->second;
    }

    [[nodiscard]] EverythingKept everything() {
        EverythingKept kept;
        for (const auto category : allRuleCategories) {
            const auto& facts = factsOf(category);
            kept.lists.push_back(list(category).toPlist());
            for (const auto key : {facts.listKey, facts.enableAllKey}) {
                kept.stored.emplace(key, local(key));
            }
            kept.published.emplace(facts.listKey, shared(facts.listKey));
        }
        kept.stored.emplace("note", local("pendingTemplateFiles"));
        const auto isKept = [](const std::string& path) { return path.starts_with("/container"); };
        for (const auto& file : platform_.files.files) {
            if (isKept(file.first)) {
                kept.files.insert(file);
            }
        }
        for (const auto& path : platform_.files.folders) {
            if (isKept(path)) {
                kept.folders.insert(path);
            }
        }
        return kept;
    }
};

} // namespace tarnwick::testing
