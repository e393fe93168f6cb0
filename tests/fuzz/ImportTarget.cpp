// Files of settings: bytes of any form, and documents of which any part may be anything. A file is refused
// and nothing changes, or it is imported: then it stays in its places, and what is exported says the same
// again.

#include "adapters/foundation/Adapters.h"
#include "platform/FileContents.h"
#include "prefs/PreferenceKeys.h"
#include "tests/adapters/Pool.h"
#include "tests/fuzz/Driving.h"
#include "tests/fuzz/FuzzInput.h"
#include "tests/fuzz/Require.h"
#include "transfer/SettingsDocument.h"

#include <fstream>
#include <string>
#include <unistd.h>

namespace {

using namespace tarnwick;
using namespace tarnwick::fuzz;

const std::string temporary = "/tmp/";

PlistValue anyDocument(FuzzInput& input) {
    PlistDictionary document{{"application", applicationIdentifier}, {"format", settingsFormat}};
    PlistDictionary switches;
    for (auto count = input.pick(5); count > 0; --count) {
        const auto key = input.text();
        switches.insert_or_assign(key, input.value(1));
    }
    document.emplace("switches", std::move(switches));
    PlistDictionary files;
    for (auto count = input.pick(5); count > 0; --count) {
        const auto name = input.text();
        const auto extension = input.text();
        files.insert_or_assign(extension.empty() ? name : name + "." + extension, input.value(3));
    }
    document.emplace("templateFiles", std::move(files));
    for (const auto category : allRuleCategories) {
        if (input.pick(4) != 0) {
            document.emplace(factsOf(category).listKey, input.list());
        }
    }
    for (auto count = input.pick(3); count > 0; --count) {
        const auto key = input.text();
        document.insert_or_assign(key, input.value(2));
    }
    return document;
}

/// As a person would find it in a file.
ListFileContent contentOf(const std::uint8_t* bytes, std::size_t size) {
    if (bytes[0] == 'V') {
        FuzzInput input(bytes + 1, size - 1);
        return anyDocument(input);
    }
    static const auto contents = makeFileContents();
    static const auto path = "/tmp/tarnwick-import-" + std::to_string(getpid());
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes), static_cast<std::streamsize>(size));
    auto content = contents->readList(path);
    unlink(path.c_str());
    return content;
}

/// All that an import may touch, and all that it may not, but for what is held for undo.
struct Disk {
    explicit Disk(const testing::InMemoryPlatform& platform)
        : local(platform.preferences.local), shared(platform.preferences.shared),
          files(platform.files.files) {
        std::erase_if(files, [](const auto& file) { return file.first.starts_with(temporary); });
    }
    bool operator==(const Disk&) const = default;

    PlistDictionary local;
    PlistDictionary shared;
    std::map<std::string, std::string> files;
};

PlistValue exported(Program& program, testing::InMemoryPlatform& platform) {
    program.controller().transfer().exportSettings();
    platform.panels.confirm({"/exported"});
    auto document = *platform.contents.listAt("/exported");
    platform.files.erase("/exported");
    return document;
}

void import(Program& program, testing::InMemoryPlatform& platform, const ListFileContent& content) {
    platform.panels.alerts.clear();
    platform.panels.requests.clear();
    platform.panels.saveRequests.clear();
    platform.systemLog.lines.clear();
    platform.contents.putList("/import", content);
    program.controller().transfer().importSettings();
    platform.panels.confirm({"/import"});
    platform.files.erase("/import");
    platform.log.clear();
}

void checkPlaces(const Disk& before, const Disk& after) {
    const auto others = [](std::map<std::string, std::string> files) {
        std::erase_if(
            files, [](const auto& file) { return file.first.starts_with(testing::templateFolder + "/"); });
        return files;
    };
    require(others(before.files) == others(after.files), "only the template folder changes");
    for (const auto category : allRuleCategories) {
        const auto stored = after.local.find(factsOf(category).listKey);
        require(stored != after.local.end() && stored->second.array(), "each list is stored");
    }
    require(after.local.count("pendingTemplateFiles") == 0, "nothing is left to do");
}

/// A launched application whose lists are all stored.
struct Launched {
    Launched() {
        program.launch();
        const PlistDictionary bare{{"application", applicationIdentifier}, {"format", settingsFormat},
            {"switches", PlistDictionary()}, {"templateFiles", PlistDictionary()}};
        import(program, platform, PlistValue(bare));
    }

    /// What would pile up from run to run.
    void forget() {
        platform.undoHistory.replaceAll({});
        platform.files.erase("/tmp");
    }

    testing::InMemoryPlatform platform;
    Program program{platform};
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const tarnwick::testing::Pool pool;
    if (size == 0) {
        return 0;
    }
    static Launched launched;
    auto& platform = launched.platform;
    auto& program = launched.program;
    launched.forget();
    const Disk before(platform);
    const auto documentBefore = exported(program, platform);
    import(program, platform, contentOf(bytes, size));
    const Disk after(platform);
    if (platform.panels.alerts.back().messageText != "Import these settings?") {
        require(after == before, "what is refused changes nothing");
        return 0;
    }
    checkPlaces(before, after);
    const auto document = exported(program, platform);
    platform.undoHistory.undo();
    require(exported(program, platform) == documentBefore, "an import can be taken back");
    platform.undoHistory.redo();
    require(exported(program, platform) == document, "and repeated");
    import(program, platform, document);
    require(exported(program, platform) == document, "what was imported is exported again");
    return 0;
}
