#include "tests/model/PageFacts.h"
#include "tests/model/RandomWalk.h"

#include <algorithm>

namespace tarnwick::testing {
namespace {

/// Names of factory templates, of nothing, and of places outside the template folder.
constexpr std::array<const char*, 8> awkwardNames{
    "TXT", "Word", "Memo", "Memo", "", ".", "../Outside", "a/b"};
constexpr std::array<const char*, 4> fileNames{"TXT", "Memo", "Letter", "Archive.tar"};
constexpr std::array<const char*, 4> extensions{"txt", "docx", "gz", ""};

} // namespace

void RandomWalk::step() {
    const auto category = allRuleCategories[static_cast<std::size_t>(pick(5))];
    switch (pick(18)) {
    case 0:
        return asStep([=, this] { add(category); });
    case 1:
        return asStep([=, this] { remove(category); });
    case 2:
        return asStep([=, this] { pick(12) == 0 ? reset(category) : enableAll(category); });
    case 3:
    case 4:
        return asStep([=, this] { toggle(category); });
    case 5:
    case 6:
        return asStep([=, this] { drop(category); });
    case 7:
        return asStep([=, this] { rename(category); });
    case 8:
        return asStep([this] { editNote(); });
    case 9:
        return choosePath();
    case 10:
    case 11:
        return undo();
    case 12:
    case 13:
    case 14:
        return asStep([=, this] { command(category); });
    case 15:
        return asStep([=, this] { find(category); });
    default:
        return redo();
    }
}

void RandomWalk::noteSaved(RuleCategory category, bool saved) {
    stored_[category] = stored_[category] || saved;
    published_[category] = published_[category] || saved;
}

void RandomWalk::add(RuleCategory category) {
    controller_.add(category);
    if (pick(4) == 0) {
        return platform_.panels.cancel();
    }
    const auto name = flip() ? freshName() : std::string(fileNames[static_cast<std::size_t>(pick(3))]);
    const std::string extension = extensions[static_cast<std::size_t>(pick(extensions.size()))];
    const auto readable = pick(4) != 0;
    auto tiff = tiffOf(readable ? "tiff of " + name : "");
    switch (category) {
    case RuleCategory::createNewFile: {
        const auto path = "/home/" + name + (extension.empty() ? "" : ".") + extension;
        platform_.files.files[path] = "a template";
        platform_.panels.confirm({path});
        return noteSaved(category, model_.addTemplate(name, extension));
    }
    case RuleCategory::copyFilesTo:
    case RuleCategory::commonPath:
        platform_.panels.confirm({"/home/" + name});
        return noteSaved(category, model_.addFolder(category, "/home", name));
    case RuleCategory::customIcon:
        platform_.images.pictureFiles["/home/" + name + ".png"] = readable ? "tiff of " + name : "";
        platform_.panels.confirm({"/home/" + name + ".png"});
        return noteSaved(category, model_.addIcon(name + ".png", tiff));
    case RuleCategory::others:
        break;
    }
    platform_.images.missingNames.clear();
    if (!readable) {
        platform_.images.missingNames.insert(name);
    }
    platform_.panels.confirm({"/home/" + name + ".png"});
    noteSaved(category, model_.addAction(name, tiff));
}

void RandomWalk::remove(RuleCategory category) {
    auto& table = window_.table(category);
    const auto row = std::min(anyRow(category), rows(category) - 1);
    table.selected = row;
    controller_.remove(category);
    noteSaved(category, model_.remove(category, row));
    // An empty list is published whether or not there was anything to remove.
    published_[category] = published_[category] || rows(category) == 0;
    const auto newFirst = row == 0 && rows(category) > 0 ? 0 : -1;
    EXPECT_EQ(table.selected, row > 0 ? row - 1 : newFirst);
}

void RandomWalk::reset(RuleCategory category) {
    if (haveReset[category]) {
        controller_.reset(category);
        noteSaved(category, model_.reset(category));
    }
}

void RandomWalk::toggle(RuleCategory category) {
    const auto row = anyRow(category);
    const auto on = flip();
    if (category == RuleCategory::createNewFile && pick(4) == 0) {
        controller_.set(RuleCategory::createNewFile, row, field::enableMainMenu, on);
        return noteSaved(category, model_.set(category, row, "enableMainMenu", on));
    }
    if (haveRowSwitches[category]) {
        controller_.set(category, row, field::enable, on);
        noteSaved(category, model_.set(category, row, "enable", on));
    }
}

void RandomWalk::enableAll(RuleCategory category) {
    if (haveEnableAll[category]) {
        const auto on = flip();
        platform_.preferences.userSets(factsOf(category).enableAllKey, on);
        controller_.enableAll(category);
        noteSaved(category, model_.enableAll(category, on));
    }
}

void RandomWalk::drop(RuleCategory category) {
    const auto from = anyRow(category);
    const auto to = pick(rows(category) + 3) - 1;
    controller_.acceptDrop(category, category, from, to);
    noteSaved(category, model_.drop(category, from, to));
}

void RandomWalk::rename(RuleCategory category) {
    const auto row = anyRow(category);
    const auto text =
        flip() ? freshName() : std::string(awkwardNames[static_cast<std::size_t>(pick(awkwardNames.size()))]);
    controller_.textEdited(nameFields[category], row, text);
    noteSaved(category, model_.rename(category, row, nameMarks[category], text));
}

void RandomWalk::editNote() {
    const auto row = anyRow(RuleCategory::others);
    const auto text = freshName();
    controller_.textEdited("OthersNote", row, text);
    noteSaved(RuleCategory::others, model_.editNote(row, text));
}

void RandomWalk::choosePath() {
    const auto row = anyRow(RuleCategory::copyFilesTo);
    controller_.selectPath(RuleCategory::copyFilesTo, row);
    if (flip()) {
        // The list may change while the chooser is open.
        asStep([this] { remove(RuleCategory::copyFilesTo); });
    }
    if (pick(4) == 0) {
        return platform_.panels.cancel();
    }
    const auto path = "/chosen/" + freshName();
    asStep([&] {
        platform_.panels.confirm({path});
        noteSaved(RuleCategory::copyFilesTo, model_.choosePath(row, path));
    });
}

} // namespace tarnwick::testing
