#include "tests/editing/OrderOfEffects.h"

#include <ostream>

namespace tarnwick::testing {
namespace {

Lines published(const std::string& list) {
    return {"shared open H7Q2ZK5RX9.org.halvane.Tarnwick", "shared set " + list, "shared synchronise"};
}

Lines published(const std::string& list, const std::string& flag, bool allEnabled) {
    return Lines(allEnabled ? 1 : 2, "local set " + flag) + published(list);
}

} // namespace

void PrintTo(const Effects& effects, std::ostream* stream) {
    *stream << effects.name;
}

std::string nameOf(const ::testing::TestParamInfo<Effects>& info) {
    return info.param.name;
}

OrderOfEffectsTest::OrderOfEffectsTest() {
    for (const auto category : {RuleCategory::copyFilesTo, RuleCategory::commonPath}) {
        std::vector<RuleRecord> folders;
        for (const auto* name : {"A", "B", "C"}) {
            folders.push_back(makeRecord({{"enable", 1}, {"realPath", name}, {"displayName", name}}));
        }
        storeList(category, folders);
    }
    launch();
    platform_.files.files["/home/Letter.txt"] = "letter";
    platform_.images.pictureFiles["/home/Blue.png"] = "tiff of blue";
}

void OrderOfEffectsTest::add(RuleCategory category, std::vector<std::string> paths) {
    editing_.adding.add(category);
    platform_.panels.confirm(std::move(paths));
}

void OrderOfEffectsTest::remove(RuleCategory category, long row) {
    tables_.table(category).selected = row;
    editing_.removing.remove(category);
}

void OrderOfEffectsTest::drop(RuleCategory category) {
    editing_.reordering.acceptDrop(category, category, 2, 0);
}

void OrderOfEffectsTest::edit(std::string_view identifier) {
    editing_.textEditing.endEditing(identifier, 0, "New");
}

Lines operator+(Lines first, const Lines& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

Lines stored(const std::string& list) {
    return {"local set " + list, "local synchronise"};
}

Lines noted() {
    return {"local set pendingTemplateFiles"};
}

Lines forgotten() {
    return {"local remove pendingTemplateFiles"};
}

Lines held(const std::string& path) {
    return {"create folder " + heldFolder, "move " + path + " -> " + heldFolder + "/1"};
}

Lines publishedTemplates() {
    return published("arrOfCreateNewFile", "enableAllOfCreateNewFiles", false);
}

Lines publishedTargets() {
    return published("arrOfCopyFilesTo");
}

Lines publishedPaths() {
    return published("arrOfCommonPath");
}

Lines publishedIcons(bool allEnabled) {
    return published("arrOfCustomIcon", "enableAllOfCustomIcon", allEnabled);
}

Lines publishedOthers(bool allEnabled) {
    return published("arrOfOthers", "enableAllOfOthers", allEnabled);
}

} // namespace tarnwick::testing
