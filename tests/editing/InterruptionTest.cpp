#include "tests/support/EditingFixture.h"

#include <algorithm>
#include <functional>
#include <ostream>

namespace tarnwick::testing {
namespace {

/// What a killed program leaves: the stores and the files.
struct Remains {
    PlistDictionary local;
    PlistDictionary shared;
    std::map<std::string, std::string> files;
    std::set<std::string> folders;
};

/// When a value that was set survives the end of the program: at once, as with a preferences daemon, or from
/// the next synchronisation on, as with files.
enum class Keeping { atOnce, whenSynchronised };

const char* wordsOf(Keeping keeping) {
    return keeping == Keeping::atOnce ? "KeptAtOnce" : "KeptWhenSynchronised";
}

void PrintTo(Keeping keeping, std::ostream* stream) {
    *stream << wordsOf(keeping);
}

/// A window that the tests look over the shoulder of.
class Window : public EditingFixture {
public:
    Window() = default;
    explicit Window(const Remains& remains) {
        platform_.preferences.local = remains.local;
        platform_.preferences.shared = remains.shared;
        platform_.files.files = remains.files;
        platform_.files.folders = remains.folders;
        platform_.process.number = 101;
    }

    void TestBody() override {}
    using EditingFixture::launch;

    [[nodiscard]] RuleEditing& editing() { return editing_; }
    void choose(const std::vector<std::string>& paths) { platform_.panels.confirm(paths); }
    void select(long row) { tables_.table(RuleCategory::createNewFile).selected = row; }
    void undo() { platform_.undoHistory.undo(); }
    void redo() { platform_.undoHistory.redo(); }
    /// The temporary folder lies on a volume of its own.
    void keepTemporaryFilesElsewhere() { platform_.files.volumes.insert("/tmp"); }
    [[nodiscard]] bool isAnythingHeld() const { return !platform_.files.namesIn("/tmp").empty(); }
    [[nodiscard]] std::string contentOf(const std::string& name) const {
        const auto found = platform_.files.files.find(templateFolder + "/" + name);
        return found == platform_.files.files.end() ? "" : found->second;
    }
    void addFile(const std::string& path) { platform_.files.files[path] = "content of " + path; }

    /// What would remain, had the program been killed at each step of `work`, the end included.
    std::vector<Remains> interrupted(Keeping keeping, const std::function<void(Window&)>& work) {
        std::vector<Remains> moments;
        auto kept = platform_.preferences.local;
        const auto snapshot = [&] {
            const auto& local = keeping == Keeping::atOnce ? platform_.preferences.local : kept;
            moments.push_back(
                {local, platform_.preferences.shared, platform_.files.files, platform_.files.folders});
        };
        platform_.log.observer = [&](const std::string& line) {
            snapshot();
            if (line == "local synchronise") {
                kept = platform_.preferences.local;
            }
        };
        work(*this);
        snapshot();
        platform_.log.observer = nullptr;
        return moments;
    }

    [[nodiscard]] PlistArray storedTemplates() const { return localList(RuleCategory::createNewFile); }
    [[nodiscard]] bool isNotePending() const {
        return platform_.preferences.local.count("pendingTemplateFiles") != 0;
    }
    /// Files of the folder that are no record's template and no icon.
    [[nodiscard]] std::set<std::string> strangers() const {
        const auto all = platform_.files.namesIn(templateFolder);
        std::set<std::string> names(all.begin(), all.end());
        for (const auto& name : templateNames()) {
            names.erase(name);
        }
        std::erase_if(names,
            [](const auto& name) { return name.size() > 4 && name.substr(name.size() - 4) == ".png"; });
        return names;
    }
    /// Records' templates that are not in the folder.
    [[nodiscard]] std::set<std::string> missing() const {
        auto names = templateNames();
        for (const auto& name : platform_.files.namesIn(templateFolder)) {
            names.erase(name);
        }
        return names;
    }

private:
    [[nodiscard]] std::set<std::string> templateNames() const {
        const auto list = storedTemplates();
        const auto names = texts(list, "displayName");
        const auto extensions = texts(list, "extension");
        std::set<std::string> files;
        for (std::size_t row = 0; row < names.size(); ++row) {
            files.insert(names[row] + "." + extensions[row]);
        }
        return files;
    }
};

struct Work {
    const char* name;
    /// Before the interruptions.
    void (*prepare)(Window& window);
    void (*run)(Window& window);
};

void PrintTo(const Work& work, std::ostream* stream) {
    *stream << work.name;
}

void addLetters(Window& window) {
    window.editing().adding.add(RuleCategory::createNewFile);
    window.choose({"/home/Letter.txt", "/home/Memo.md"});
}

void launchWithLetters(Window& window) {
    window.addFile("/home/Letter.txt");
    window.addFile("/home/Memo.md");
    window.launch();
    addLetters(window);
}

void removeLetter(Window& window) {
    window.select(15);
    window.editing().removing.remove(RuleCategory::createNewFile);
}

void renameLetter(Window& window) {
    window.editing().textEditing.endEditing("NewFileDisplayName", 15, "Renamed");
}

void resetTemplates(Window& window) {
    window.editing().resetting.reset(RuleCategory::createNewFile);
}

/// A launch with letters in which `edit` was made, and taken back.
template <void (*edit)(Window&)>
void launchAndEdit(Window& window) {
    launchWithLetters(window);
    edit(window);
}
template <void (*edit)(Window&)>
void launchAndTakeBack(Window& window) {
    launchAndEdit<edit>(window);
    window.undo();
}
template <void (*edit)(Window&)>
void launchAndEditElsewhere(Window& window) {
    window.keepTemporaryFilesElsewhere();
    launchAndEdit<edit>(window);
}
void undo(Window& window) {
    window.undo();
}
void redo(Window& window) {
    window.redo();
}

class InterruptionTest : public ::testing::TestWithParam<std::tuple<Work, Keeping>> {};

TEST_P(InterruptionTest, TheNextStartLeavesNoTemplateFileToNobodyAndNoRecordWithoutItsFile) {
    const auto& [work, keeping] = GetParam();
    Window window;
    work.prepare(window);
    const auto before = window.storedTemplates();
    const auto moments = window.interrupted(keeping, work.run);
    const auto after = window.storedTemplates();
    ASSERT_GT(moments.size(), 5U);
    for (std::size_t moment = 0; moment < moments.size(); ++moment) {
        Window next(moments[moment]);
        next.launch();
        EXPECT_EQ(next.strangers(), std::set<std::string>()) << moment;
        EXPECT_EQ(next.missing(), std::set<std::string>()) << moment;
        EXPECT_FALSE(next.isNotePending()) << moment;
        EXPECT_FALSE(next.isAnythingHeld()) << moment;
        EXPECT_TRUE(
            next.contentOf("Memo.md").empty() || next.contentOf("Memo.md") == "content of /home/Memo.md")
            << moment;
        const auto list = next.storedTemplates();
        EXPECT_TRUE(list == before || list == after) << moment;
    }
}

INSTANTIATE_TEST_SUITE_P(Of, InterruptionTest,
    ::testing::Combine(
        ::testing::Values(Work{"TheFirstLaunch", [](Window&) {}, [](Window& window) { window.launch(); }},
            Work{"Adding",
                [](Window& window) {
                    window.addFile("/home/Letter.txt");
                    window.addFile("/home/Memo.md");
                    window.launch();
                },
                addLetters},
            Work{"Removing", launchWithLetters, removeLetter},
            Work{"Renaming", launchWithLetters, renameLetter},
            Work{"Resetting", launchWithLetters, resetTemplates},
            Work{"UndoingAnAddition", launchWithLetters, undo},
            Work{"RedoingAnAddition",
                [](Window& window) {
                    launchWithLetters(window);
                    window.undo();
                },
                redo},
            Work{"UndoingARemoval", launchAndEdit<removeLetter>, undo},
            Work{"UndoingARemovalElsewhere", launchAndEditElsewhere<removeLetter>, undo},
            Work{"RedoingARemoval", launchAndTakeBack<removeLetter>, redo},
            Work{"UndoingARename", launchAndEdit<renameLetter>, undo},
            Work{"RedoingARename", launchAndTakeBack<renameLetter>, redo},
            Work{"UndoingAReset", launchAndEdit<resetTemplates>, undo},
            Work{"UndoingAResetElsewhere", launchAndEditElsewhere<resetTemplates>, undo},
            Work{"RedoingAReset", launchAndTakeBack<resetTemplates>, redo}),
        ::testing::Values(Keeping::atOnce, Keeping::whenSynchronised)),
    [](const auto& info) {
        return std::string(std::get<Work>(info.param).name) + wordsOf(std::get<Keeping>(info.param));
    });

} // namespace
} // namespace tarnwick::testing
