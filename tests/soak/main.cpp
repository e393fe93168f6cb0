// Edits at random until it is killed. Before each edit a line in the journal says what the lists and the
// template folder will be after it, by the rules of the tests' own model; after it another line says that it
// is done.

#include "platform/PreferenceStore.h"
#include "platform/PropertyLists.h"
#include "platform/appkit/Adapters.h"
#include "prefs/PreferenceKeys.h"
#include "tests/soak/Canonical.h"
#include "tests/soak/EditingApplication.h"

#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <fstream>
#include <memory>
#include <random>
#include <unistd.h>

namespace {

using namespace tarnwick;
using testing::RuleModel;

RuleModel::Records recordsIn(const std::optional<PlistValue>& stored) {
    RuleModel::Records records;
    if (const auto* elements = stored ? stored->array() : nullptr) {
        for (const auto& element : *elements) {
            if (const auto* fields = element.dictionary()) {
                records.push_back(*fields);
            }
        }
    }
    return records;
}

std::set<std::string> namesIn(const std::string& folder) {
    std::set<std::string> names;
    if (auto* directory = opendir(folder.c_str())) {
        while (const auto* entry = readdir(directory)) {
            const std::string name = entry->d_name;
            if (name != "." && name != "..") {
                names.insert(name);
            }
        }
        closedir(directory);
    }
    return names;
}

std::string setting(const char* name, const char* otherwise) {
    const auto* value = std::getenv(name);
    return value ? value : otherwise;
}

/// One random edit after another.
class Editor {
public:
    Editor(std::string sandbox, unsigned seed) : sandbox_(std::move(sandbox)), random_(seed) {
        journal_ = open((sandbox_ + "/" + setting("TARNWICK_SOAK_JOURNAL", "journal")).c_str(),
            O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    }

    bool edit() {
        if (!ready_) {
            readState();
            useGivenName();
            write("ready");
            ready_ = true;
        }
        if (count_ == most_) {
            return false;
        }
        editOneOf(lists_.empty()
                      ? allRuleCategories[pick(5)]
                      : allRuleCategories[static_cast<std::size_t>(lists_[pick(lists_.size())] - '0')]);
        return true;
    }

private:
    /// With a file "name" beside the stores, that is what the first row of every list is called.
    void useGivenName() {
        std::ifstream file(sandbox_ + "/name", std::ios::binary);
        if (!file) {
            return;
        }
        const std::string name{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
        for (const auto* field : {"NewFileDisplayName", "Note", "commonPathDisplayName", "CustomIconName",
                 "OthersDisplayName", "OthersNote"}) {
            soak::controller().controlTextShouldEndEditing(field, 0, name);
        }
    }

    void editOneOf(RuleCategory category) {
        ++count_;
        switch (pick(7)) {
        case 0:
        case 1:
            return add(category);
        case 2:
            return remove(category);
        case 3:
            return toggle(category);
        case 4:
            return enableAll(category);
        case 5:
            return drop(category);
        default:
            return pick(12) == 0 ? reset(category) : rename(category);
        }
    }

    std::size_t pick(std::size_t below) { return random_() % below; }
    RuleModel::Records& list(RuleCategory category) { return model_.list(category); }

    void readState() {
        const auto stores = makePreferenceStores([](std::string_view) {});
        const auto local = stores->openStandardDomain();
        const auto factory = makePropertyLists()->read(sandbox_ + "/factory.plist");
        for (const auto& facts : ruleCategoryFacts) {
            const auto index = static_cast<std::size_t>(facts.category);
            model_.lists[index] = recordsIn(local->value(facts.listKey));
            if (const auto* values = factory ? factory->dictionary() : nullptr) {
                if (const auto found = values->find(facts.listKey); found != values->end()) {
                    model_.factory[index] = recordsIn(found->second);
                }
            }
        }
        auto& targets = model_.factory[1];
        targets.clear();
        for (const auto* name : {"Downloads", "Pictures", "Music", "Movies"}) {
            targets.push_back({{"enable", 1}, {"displayName", ""},
                {"realPath", "/Users/" + soak::userName() + "/" + name}});
        }
        canReset_ = factory.has_value();
        model_.files = namesIn(sandbox_ + "/library/Group Containers/" + std::string(applicationGroup) +
                               "/Templates/CreateNewFile");
    }

    void write(const std::string& line) {
        const auto whole = line + "\n";
        if (::write(journal_, whole.data(), whole.size()) < 0) {
            std::abort();
        }
    }

    static std::string sum(const std::string& text) {
        return std::to_string(
            soak::checksum(reinterpret_cast<const std::uint8_t*>(text.data()), text.size()));
    }

    /// Journal: "edit NAME LIST SYNCHRONISES STORED PUBLISHED", the last two checksums; then the edit; then
    /// "done".
    template <class Edit>
    void perform(const char* name, RuleCategory category, bool synchronises, bool saved, const Edit& edit) {
        if (!saved) {
            return;
        }
        const auto whole = soak::canonical(list(category), false);
        const auto enabled = soak::canonical(list(category), true);
        write(std::string("edit ") + name + " " + std::string(factsOf(category).listKey) +
              (synchronises ? " 1 " : " 0 ") + sum(whole) + " " + sum(enabled));
        edit();
        write("done");
    }

    std::string freshName() { return "N" + std::to_string(getpid()) + "-" + std::to_string(count_); }

    void add(RuleCategory category) {
        auto& controller = soak::controller();
        const auto name = freshName();
        const auto folder = sandbox_ + "/sources";
        // The lists stay of a size.
        if (list(category).size() > 40) {
            return;
        }
        switch (category) {
        case RuleCategory::createNewFile: {
            const auto path = folder + "/" + name + ".txt";
            std::ofstream file(path);
            for (int line = 0; line < 20'000; ++line) {
                file << name << "\n";
            }
            file.close();
            soak::answerPanelsWith(path);
            perform("add", category, true, model_.addTemplate(name, "txt"),
                [&] { controller.addCreateNewFileRule(); });
            return;
        }
        case RuleCategory::copyFilesTo:
            soak::answerPanelsWith(folder + "/" + name);
            return perform("add", category, true, model_.addFolder(category, folder, name),
                [&] { controller.addSendFilesToRule(); });
        case RuleCategory::commonPath:
            soak::answerPanelsWith(folder + "/" + name);
            return perform("add", category, true, model_.addFolder(category, folder, name),
                [&] { controller.addCommonPathRule(); });
        default:
            return;
        }
    }

    long row(RuleCategory category) { return static_cast<long>(pick(list(category).size())); }

    void remove(RuleCategory category) {
        if (list(category).size() < 10) {
            return;
        }
        const auto place = row(category);
        // The editors come back at the next launch, and the factory's icons are too few to spare.
        if (category == RuleCategory::others || category == RuleCategory::customIcon) {
            return;
        }
        soak::selectRow(category, place);
        perform("remove", category, true, model_.remove(category, place), [&] {
            auto& controller = soak::controller();
            if (category == RuleCategory::createNewFile) {
                controller.removeCreateNewFileRule();
            } else if (category == RuleCategory::copyFilesTo) {
                controller.removeCopyFilesToRule();
            } else {
                controller.removeCommondPathRule();
            }
        });
    }

    void toggle(RuleCategory category) {
        if (category == RuleCategory::commonPath || list(category).empty()) {
            return;
        }
        const auto place = row(category);
        const auto on = pick(2) == 0;
        perform("toggle", category, true, model_.set(category, place, "enable", on), [&] {
            auto& controller = soak::controller();
            if (category == RuleCategory::createNewFile) {
                controller.onOffcheckedStateChangedOfCreateNewFile(place, on);
            } else if (category == RuleCategory::copyFilesTo) {
                controller.onOffcheckedStateChangedOfCopyTo(place, on);
            } else if (category == RuleCategory::customIcon) {
                controller.onOffcheckedStateChangedOfCustomIcon(place, on);
            } else {
                controller.onOffcheckedStateChangedOfOthers(place, on);
            }
        });
    }

    void enableAll(RuleCategory category) {
        const auto key = factsOf(category).enableAllKey;
        if (key.empty()) {
            return;
        }
        const auto on = pick(2) == 0;
        soak::userSets(key, on);
        perform("enable-all", category, false, model_.enableAll(category, on), [&] {
            auto& controller = soak::controller();
            if (category == RuleCategory::createNewFile) {
                controller.enableAllOfCreateNewFilesClick();
            } else if (category == RuleCategory::customIcon) {
                controller.enableAllOfCustomIconClick();
            } else {
                controller.enableAllOfOthersClick();
            }
        });
    }

    void drop(RuleCategory category) {
        if (list(category).size() < 2) {
            return;
        }
        const auto from = row(category);
        const auto to = row(category);
        perform("drop", category, false, model_.drop(category, from, to),
            [&] { soak::controller().acceptDrop(category, category, from, to); });
    }

    void rename(RuleCategory category) {
        constexpr std::array<const char*, 5> fields{
            "NewFileDisplayName", "Note", "commonPathDisplayName", "CustomIconName", "OthersDisplayName"};
        constexpr std::array<const char*, 5> marks{"modified", "", "", "modified", "nameModified"};
        if (list(category).empty()) {
            return;
        }
        const auto place = row(category);
        const auto index = static_cast<std::size_t>(category);
        const auto name = freshName();
        perform("rename", category, true, model_.rename(category, place, marks[index], name),
            [&] { soak::controller().controlTextShouldEndEditing(fields[index], place, name); });
    }

    void reset(RuleCategory category) {
        if (!canReset_ || category == RuleCategory::commonPath) {
            return;
        }
        perform("reset", category, true, model_.reset(category), [&] {
            auto& controller = soak::controller();
            if (category == RuleCategory::createNewFile) {
                controller.resetCreateNewFileRule();
            } else if (category == RuleCategory::copyFilesTo) {
                controller.resetCopyFilesToRule();
            } else if (category == RuleCategory::customIcon) {
                controller.resetCustomIconRule();
            } else {
                controller.resetOthersRule();
            }
        });
    }

    std::string sandbox_;
    std::mt19937 random_;
    RuleModel model_;
    int journal_ = -1;
    bool canReset_ = false;
    bool ready_ = false;
    /// How many edits are tried (-1: no end), and in which lists (their numbers; empty: all).
    long most_ = std::atol(setting("TARNWICK_SOAK_EDITS", "-1").c_str());
    std::string lists_ = setting("TARNWICK_SOAK_LISTS", "");
    long count_ = 0;
};

} // namespace

int main(int argc, char* argv[]) {
    const auto editor = std::make_shared<Editor>(setting("TARNWICK_SANDBOX", ""),
        static_cast<unsigned>(std::atoi(setting("TARNWICK_SOAK_SEED", "1").c_str())));
    return tarnwick::soak::runApplication(argc, argv, [editor] { return editor->edit(); });
}
