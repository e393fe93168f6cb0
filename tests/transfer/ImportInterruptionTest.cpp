#include "prefs/RecordLayouts.h"
#include "tests/transfer/Machine.h"

#include <ostream>

namespace tarnwick::testing {
namespace {

const std::string templatesKey = "arrOfCreateNewFile";

/// What a killed program leaves.
struct Remains {
    PlistDictionary local;
    PlistDictionary shared;
    std::map<std::string, std::string> files;
    std::set<std::string> folders;
};

/// When a value that was set survives the end of the program: at once, as with a preferences daemon, or from
/// the next synchronisation on, as with files.
enum class Keeping { atOnce, whenSynchronised };

struct Import {
    const char* name;
    /// The list of the file and the content of its one file.
    RuleRecord record;
    const char* content;
};

void PrintTo(const Import& import, std::ostream* stream) {
    *stream << import.name;
}

RuleRecord templateRecord(const char* name, const char* enable) {
    return makeTemplateRecord(name, "txt", enable, RecordOrigin::user);
}

PlistDictionary documentOf(const RuleRecord& record, const char* content) {
    auto document = bareDocument();
    document.emplace(templatesKey, PlistArray{record.toPlist()});
    document.insert_or_assign("templateFiles",
        PlistDictionary{{std::string(record.text(field::displayName)) + ".txt", tiffOf(content)},
            {"txt.png", tiffOf("icon")}});
    return document;
}

std::vector<Remains> interrupted(Machine& machine, Keeping keeping, const PlistDictionary& document) {
    auto& platform = machine.platform;
    std::vector<Remains> moments;
    auto kept = platform.preferences.local;
    const auto snapshot = [&] {
        moments.push_back({keeping == Keeping::atOnce ? platform.preferences.local : kept,
            platform.preferences.shared, platform.files.files, platform.files.folders});
    };
    platform.log.observer = [&](const std::string& line) {
        snapshot();
        if (line == "local synchronise") {
            kept = platform.preferences.local;
        }
    };
    machine.import(document);
    snapshot();
    platform.log.observer = nullptr;
    return moments;
}

class ImportInterruptionTest : public ::testing::TestWithParam<std::tuple<Import, Keeping>> {};

TEST_P(ImportInterruptionTest, TheNextStartFinishesItOrLeavesTheOldStateWhole) {
    const auto& [import, keeping] = GetParam();
    Machine machine;
    machine.launch();
    machine.import(documentOf(templateRecord("Letter", "1"), "old"));
    const auto oldList = machine.platform.preferences.local.at(templatesKey);
    const auto oldFiles = machine.platform.contents.readTree(templateFolder);
    const auto document = documentOf(import.record, import.content);
    const auto moments = interrupted(machine, keeping, document);
    ASSERT_GT(moments.size(), 30U);
    std::size_t finished = 0;
    for (std::size_t moment = 0; moment < moments.size(); ++moment) {
        Machine next;
        next.platform.preferences.local = moments[moment].local;
        next.platform.preferences.shared = moments[moment].shared;
        next.platform.files.files = moments[moment].files;
        next.platform.files.folders = moments[moment].folders;
        next.launch();
        const auto& list = next.platform.preferences.local.at(templatesKey);
        const auto files = next.platform.contents.readTree(templateFolder);
        const auto isNew = list == document.at(templatesKey) && files == document.at("templateFiles");
        finished += isNew ? 1 : 0;
        EXPECT_TRUE(isNew || (list == oldList && files == oldFiles)) << moment;
        EXPECT_EQ(next.platform.preferences.local.count("pendingTemplateFiles"), 0U) << moment;
        EXPECT_EQ(next.platform.files.namesIn("/container/Templates"),
            (std::vector<std::string>{"CreateNewFile", "FunctionIcon", "OthersMenuItemIcon"}))
            << moment;
    }
    EXPECT_GT(finished, 5U);
    EXPECT_LT(finished, moments.size());
}

INSTANTIATE_TEST_SUITE_P(Of, ImportInterruptionTest,
    ::testing::Combine(::testing::Values(Import{"OtherFiles", templateRecord("Memo", "1"), "new"},
                           Import{"TheSameNames", templateRecord("Letter", "0"), "new"},
                           Import{"TheSameList", templateRecord("Letter", "1"), "new"}),
        ::testing::Values(Keeping::atOnce, Keeping::whenSynchronised)),
    [](const auto& info) {
        return std::string(std::get<Import>(info.param).name) +
               (std::get<Keeping>(info.param) == Keeping::atOnce ? "KeptAtOnce" : "KeptWhenSynchronised");
    });

} // namespace
} // namespace tarnwick::testing
