// The whole launch over arbitrary stores: it survives, loses nothing that was stored, and a second one over
// what it left changes nothing.

#include "prefs/GroupContainer.h"
#include "prefs/PreferenceKeys.h"
#include "prefs/RuleRecord.h"
#include "tests/fuzz/Driving.h"
#include "tests/fuzz/FuzzInput.h"
#include "tests/fuzz/Require.h"

#include <array>
#include <set>
#include <string>
#include <string_view>

namespace {

using namespace tarnwick;

using testing::templateFolder;

const std::string outsider = templateFolder + "/../keep";

void damagePlatform(testing::InMemoryPlatform& platform, fuzz::FuzzInput& input) {
    platform.images.missingNames.clear();
    switch (input.pick(6)) {
    case 0:
        platform.folders.container.reset();
        break;
    case 1:
        platform.files.folders.insert(templateFolder);
        break;
    case 2:
        platform.files.failing = {templateFolder, "/container/Templates/FunctionIcon"};
        break;
    case 3:
        platform.files.files.clear();
        break;
    case 4:
        platform.images.missingNames = {"Cut", "VSCode", "Book"};
        break;
    default:
        break;
    }
}

/// What an interrupted process may have left to do, sound or not, and files that it may concern.
void leaveWork(testing::InMemoryPlatform& platform, fuzz::FuzzInput& input) {
    constexpr std::array<std::string_view, 10> words{
        "move", "remove", "copy", "lay out", "TXT.txt", "Memo.txt", "txt", "..", "../keep", ""};
    PlistArray note;
    for (auto count = input.pick(5); count > 0 && !input.atEnd(); --count) {
        note.emplace_back(words[static_cast<std::size_t>(input.pick(static_cast<long>(words.size())))]);
    }
    if (!note.empty()) {
        platform.preferences.local.insert_or_assign(std::string(key::pendingTemplateFiles), std::move(note));
    }
    if (platform.files.exists(templateFolder)) {
        for (const auto* name : {"/TXT.txt", "/Memo.txt", "/txt", "/../keep"}) {
            platform.files.files[templateFolder + name] = name;
        }
    }
}

/// The files of the stored templates that lie in their folder.
std::set<std::string> templatesInPlace(const testing::InMemoryPlatform& platform) {
    std::set<std::string> files;
    const auto stored = platform.preferences.local.find(factsOf(RuleCategory::createNewFile).listKey);
    const auto* elements = stored == platform.preferences.local.end() ? nullptr : stored->second.array();
    for (const auto& element : elements ? *elements : PlistArray()) {
        if (auto fields = element.sharedDictionary()) {
            auto path = templateFolder + "/" + templateFileName(RuleRecord(std::move(fields)));
            if (platform.files.exists(path)) {
                files.insert(std::move(path));
            }
        }
    }
    return files;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    fuzz::FuzzInput input(bytes, size);
    testing::InMemoryPlatform platform;
    damagePlatform(platform, input);
    platform.preferences.local = input.store();
    platform.preferences.shared = input.store();
    leaveWork(platform, input);
    const auto before = platform.preferences.local;
    const auto sharedBefore = platform.preferences.shared;
    // Without its files the template list starts anew, by design.
    const auto templatesStartAnew = platform.folders.container && !platform.files.exists(templateFolder);
    const auto templatesBefore = templatesInPlace(platform);
    const auto hadOutsider = platform.files.exists(outsider);

    fuzz::Program first(platform);
    first.launch();
    first.showEverything();
    const auto& local = platform.preferences.local;
    for (const auto category : allRuleCategories) {
        const auto& facts = factsOf(category);
        const auto stored = before.find(facts.listKey);
        if (stored == before.end() || (category == RuleCategory::createNewFile && templatesStartAnew)) {
            continue;
        }
        fuzz::require(
            fuzz::keepsEverything(local, facts.listKey, stored->second), "a stored list loses nothing");
    }
    for (const auto& [key, value] : before) {
        fuzz::require(local.count(key) == 1 || key == key::pendingTemplateFiles, "no value is removed");
    }
    if (const auto features = sharedBefore.find(key::enabledFeatures);
        features != sharedBefore.end() && !features->second.array()) {
        fuzz::require(
            fuzz::keepsEverything(local, key::enabledFeatures, features->second), "nor are the features");
    }
    for (const auto& path : templatesBefore) {
        fuzz::require(platform.files.exists(path), "no template loses its file");
    }
    fuzz::require(!hadOutsider || platform.files.exists(outsider), "no file outside their folder is touched");

    // A folder that could not be made is tried again, and its templates begin anew with it.
    const auto localAfter = local;
    const auto sharedAfter = platform.preferences.shared;
    fuzz::Program second(platform);
    second.launch();
    fuzz::require(platform.preferences.local == localAfter, "a second launch stores nothing new");
    fuzz::require(platform.preferences.shared == sharedAfter, "a second launch publishes nothing new");
    return 0;
}
