// The whole launch over arbitrary stores: it survives, loses nothing that was stored, and a second one over
// what it left changes nothing.

#include "tests/fuzz/Driving.h"
#include "tests/fuzz/FuzzInput.h"
#include "tests/fuzz/Require.h"

#include <string>

namespace {

using namespace tarnwick;

constexpr const char* templateFolder = "/container/Templates/CreateNewFile";

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

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    fuzz::FuzzInput input(bytes, size);
    testing::InMemoryPlatform platform;
    damagePlatform(platform, input);
    platform.preferences.local = input.store();
    platform.preferences.shared = input.store();
    const auto before = platform.preferences.local;
    // Without its files the template list starts anew, by design.
    const auto templatesStartAnew = platform.folders.container && !platform.files.exists(templateFolder);

    fuzz::Program first(platform);
    first.launch();
    first.showEverything();
    const auto& local = platform.preferences.local;
    for (const auto& facts : ruleCategoryFacts) {
        const auto stored = before.find(facts.listKey);
        if (stored == before.end() || (facts.category == RuleCategory::createNewFile && templatesStartAnew)) {
            continue;
        }
        fuzz::require(
            fuzz::keepsEverything(local, facts.listKey, stored->second), "a stored list loses nothing");
    }
    for (const auto& [key, value] : before) {
        fuzz::require(local.count(key) == 1, "no value is removed");
    }

    // A folder that could not be made is tried again, and its templates begin anew with it.
    const auto localAfter = local;
    const auto sharedAfter = platform.preferences.shared;
    fuzz::Program second(platform);
    second.launch();
    fuzz::require(platform.preferences.local == localAfter, "a second launch stores nothing new");
    fuzz::require(platform.preferences.shared == sharedAfter, "a second launch publishes nothing new");
    return 0;
}
