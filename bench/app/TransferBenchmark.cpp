// Settings as a file over the real adapters: what an export and an import of many records take, until all of
// it is on the disk. Only the window and the panels are in memory. TransferBenchmark [RECORDS]

#include "adapters/foundation/Adapters.h"
#include "adapters/foundation/SystemAdapters.h"
#include "platform/ApplicationBundle.h"
#include "platform/DistributedNotifications.h"
#include "platform/FileContents.h"
#include "platform/FileManager.h"
#include "platform/Images.h"
#include "platform/KnownFolders.h"
#include "platform/RunLoop.h"
#include "prefs/RecordLayouts.h"
#include "tests/adapters/Pool.h"
#include "tests/support/SettingsFixture.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

using namespace tarnwick;

constexpr int turns = 5;

template <typename Work>
double milliseconds(const Work& work) {
    const tarnwick::testing::Pool pool;
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

/// With so many folders to copy to.
PlistValue enlarged(const PlistValue& document, long records) {
    auto changed = *document.dictionary();
    PlistArray folders;
    for (long number = 0; number < records; ++number) {
        const auto path = "/Users/anna/Documents/A folder of many, number " + std::to_string(number);
        folders.push_back(makeFolderRecord(path, "Folder " + std::to_string(number)).toPlist());
    }
    changed.insert_or_assign("arrOfCopyFilesTo", std::move(folders));
    return changed;
}

} // namespace

int main(int argc, char* argv[]) {
    const auto records = argc > 1 ? std::atol(argv[1]) : 10'000;
    prepareProcess(argc, argv);
    const tarnwick::testing::Pool pool;
    tarnwick::testing::InMemoryPlatform inMemory;
    const auto preferences = makePreferenceStores();
    const auto files = makeFileManager();
    const auto contents = makeFileContents();
    const auto folders = makeKnownFolders();
    const auto images = makeImages();
    auto ports = inMemory.ports();
    const Ports real{*preferences, *files, *contents, *folders, ports.bundle, *images, ports.panels,
        ports.workspace, ports.userScripts, ports.notifications, ports.runLoop, ports.log, ports.process,
        ports.undoHistory};
    tarnwick::testing::InMemoryWindow window(inMemory.log, inMemory.preferences);
    SettingsController controller(real, window);
    controller.awakeFromNib();
    inMemory.runLoop.runMain();

    const auto path = std::string(std::getenv("TARNWICK_USER_FOLDER")) + "/settings.plist";
    const auto exporting = [&] {
        controller.transfer().exportSettings();
        inMemory.panels.confirm({path});
    };
    const auto importing = [&] {
        controller.transfer().importSettings();
        inMemory.panels.confirm({path});
    };
    const auto put = [&](const PlistValue& document) {
        if (contents->writeList(path, document) != ListFileWriting::done) {
            std::perror(path.c_str());
            std::exit(EXIT_FAILURE);
        }
    };
    exporting();
    const auto few = std::get<PlistValue>(contents->readList(path));
    const auto many = enlarged(few, records);
    std::printf("%ld records   import ms   export ms\n", records);
    for (int turn = 0; turn < turns; ++turn) {
        put(many);
        const auto imported = milliseconds(importing);
        const auto exported = milliseconds(exporting);
        std::printf("%20.0f%12.0f\n", imported, exported);
        if (std::get<PlistValue>(contents->readList(path)).dictionary()->at("arrOfCopyFilesTo") !=
            many.dictionary()->at("arrOfCopyFilesTo")) {
            std::fprintf(stderr, "what was exported is not what was imported\n");
            return EXIT_FAILURE;
        }
        put(few);
        importing();
    }
    return EXIT_SUCCESS;
}
