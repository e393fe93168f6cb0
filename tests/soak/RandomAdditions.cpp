#include "adapters/foundation/Adapters.h"
#include "platform/Images.h"
#include "tests/soak/EditingApplication.h"
#include "tests/soak/RandomEdits.h"

#include <array>
#include <fstream>
#include <memory>

namespace tarnwick::soak {
namespace {

/// The lists stay of a size.
constexpr std::size_t longestList = 40;

void copyFile(const std::string& from, const std::string& to) {
    std::ofstream(to, std::ios::binary) << std::ifstream(from, std::ios::binary).rdbuf();
}

} // namespace

std::string RandomEdits::makeTemplate() {
    const auto name = freshName();
    const auto path = sources_ + "/" + name + ".txt";
    std::ofstream file(path);
    for (int line = 0; line < 20'000; ++line) {
        file << name << "\n";
    }
    model_.addTemplate(name, "txt");
    return path;
}

std::string RandomEdits::makePicture() {
    // The last of them is no picture: nothing is added for it.
    const auto source = sources_ + "/picture-" + std::to_string(pick(5)) + ".png";
    if (!std::ifstream(source)) {
        return "";
    }
    const auto name = freshName() + ".png";
    copyFile(source, sources_ + "/" + name);
    const auto image = makeImages()->fromFile(sources_ + "/" + name);
    model_.addIcon(name, image ? image->tiff() : PlistData());
    return sources_ + "/" + name;
}

PlistData RandomEdits::pictureOfAction(const std::string& name) const {
    for (const auto& record : model_.factory[RuleCategory::others]) {
        if (testing::textIn(record, "Action") == name) {
            const auto* data = record.at("icon").data();
            return data ? *data : PlistData();
        }
    }
    return {};
}

std::string RandomEdits::makeAction() {
    // An action is known by its picture's name; for another nothing is added.
    constexpr std::array<const char*, 5> names{
        "Copy Path", "Open in iTerm2", "Hidden Selected Files", "Translate by Google", "No Action"};
    const std::string name = names[pick(names.size())];
    const auto picture = pictureOfAction(name);
    if (picture.empty() && name != names.back()) {
        return "";
    }
    model_.addAction(name, picture);
    return sources_ + "/" + name + ".png";
}

std::string RandomEdits::makeItem(RuleCategory category) {
    switch (category) {
    case RuleCategory::createNewFile:
        return makeTemplate();
    case RuleCategory::customIcon:
        return makePicture();
    case RuleCategory::others:
        return makeAction();
    default:
        break;
    }
    const auto name = freshName();
    model_.addFolder(category, sources_, name);
    return sources_ + "/" + name;
}

void RandomEdits::add(RuleCategory category) {
    if (list(category).size() > longestList) {
        return;
    }
    std::vector<std::string> paths;
    for (auto left = 1 + pick(3); left > 0; --left) {
        if (auto path = makeItem(category); !path.empty()) {
            paths.push_back(std::move(path));
        }
    }
    if (paths.empty()) {
        return;
    }
    // Further items are chosen only, not dropped.
    if (category != RuleCategory::others && pick(3) == 0) {
        const auto isFolder = category == RuleCategory::copyFilesTo || category == RuleCategory::commonPath;
        std::vector<DroppedItem> items;
        for (const auto& path : paths) {
            items.push_back({path, isFolder});
        }
        return perform("drop-in", category, true, true, [&] { controller().addDropped(category, items); });
    }
    answerPanelsWith(paths);
    perform("add", category, true, true, [&] { controller().add(category); });
}

} // namespace tarnwick::soak
