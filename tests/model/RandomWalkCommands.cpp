#include "tests/model/PageFacts.h"
#include "tests/model/RandomWalk.h"

#include <algorithm>

namespace tarnwick::testing {
namespace {

constexpr std::array commands{Command::rename, Command::editNote, Command::turnOnOrOff,
    Command::showInMainMenu, Command::chooseFolder, Command::showInFinder, Command::openTemplate,
    Command::moveUp, Command::moveDown, Command::moveUp, Command::moveDown, Command::removeRule,
    Command::addRule, Command::resetList, Command::enableAll};

/// Parts of names, extensions and folders, and what is in none of them.
constexpr std::array<const char*, 10> soughtTexts{
    "n1", "N", "txt", "DOCX", "memo", "o", "/home", "~/d", "e ", "nowhere"};

bool choosesFolders(RuleCategory category) {
    return category == RuleCategory::copyFilesTo || category == RuleCategory::commonPath;
}

bool hasFolder(const PlistDictionary& record) {
    const auto path = textIn(record, "realPath");
    return !path.empty() && path != "Undefined";
}

bool isProtected(const PlistDictionary& record) {
    return isFixed(record) || textIn(record, "Action").ends_with(" by Snapfin");
}

std::string lowered(std::string text) {
    for (auto& character : text) {
        if (character >= 'A' && character <= 'Z') {
            character = static_cast<char>(character - 'A' + 'a');
        }
    }
    return text;
}

/// Of the hits, the first one that comes next, or else the first of all.
template <class Condition>
long firstOf(const std::vector<long>& hits, Condition comesNext, long otherwise) {
    const auto next = std::find_if(hits.begin(), hits.end(), comesNext);
    const auto none = hits.empty() ? otherwise : hits.front();
    return next == hits.end() ? none : *next;
}

} // namespace

void RandomWalk::selectAnyRow(RuleCategory category) {
    window_.table(category).selected = std::min(anyRow(category), rows(category) - 1);
    controller_.tableClicked(category);
}

bool RandomWalk::mayMove(RuleCategory category, long from, long to) const {
    if (!model_.holds(category, from)) {
        return false;
    }
    auto moved = model_;
    // Which one of equal records it is.
    moved.list(category)[static_cast<std::size_t>(from)].insert_or_assign("moved", true);
    const auto before = moved.list(category);
    return moved.drop(category, from, to) && moved.list(category) != before;
}

bool RandomWalk::isPossible(RuleCategory category, Command command) const {
    const auto row = window_.selectedRow(category);
    const auto holds = model_.holds(category, row);
    const auto record = holds ? model_.list(category)[static_cast<std::size_t>(row)] : PlistDictionary();
    const auto isTemplate = category == RuleCategory::createNewFile;
    switch (command) {
    case Command::rename:
        return holds && !isFixed(record);
    case Command::editNote:
        return holds && category == RuleCategory::others && !isFixed(record);
    case Command::turnOnOrOff:
        return holds && haveRowSwitches[category] && !isFixed(record) &&
               (isOn(record) || textIn(record, "realPath") != "Undefined");
    case Command::showInMainMenu:
        return holds && isTemplate;
    case Command::chooseFolder:
        return holds && choosesFolders(category);
    case Command::showInFinder:
    case Command::openTemplate:
        if (isTemplate) {
            return holds &&
                   model_.files.contains(textIn(record, "displayName") + "." + textIn(record, "extension"));
        }
        return holds && command == Command::showInFinder && choosesFolders(category) && hasFolder(record);
    case Command::moveUp:
        return mayMove(category, row, row - 1);
    case Command::moveDown:
        return mayMove(category, row, row + 1);
    case Command::removeRule:
        return holds && !isProtected(record);
    case Command::resetList:
        return haveReset[category];
    case Command::enableAll:
        return haveEnableAll[category];
    default:
        return command == Command::addRule;
    }
}

void RandomWalk::command(RuleCategory category) {
    selectAnyRow(category);
    auto command = commands[static_cast<std::size_t>(pick(commands.size()))];
    if (command == Command::resetList && pick(8) != 0) {
        command = Command::enableAll;
    }
    const auto expected = isPossible(category, command);
    EXPECT_EQ(controller_.commands().state(category, command).isPossible(), expected)
        << factsOf(category).listKey << " " << static_cast<int>(command) << " of row "
        << window_.selectedRow(category);
    const auto row = window_.selectedRow(category);
    const auto areAllOn = local(factsOf(category).enableAllKey) == PlistValue(true);
    controller_.commands().perform(category, command);
    if (expected) {
        noteSaved(category, follow(category, command, row, areAllOn));
    }
}

bool RandomWalk::follow(RuleCategory category, Command command, long row, bool areAllOn) {
    const auto turn = [&](const std::string& field) {
        const auto& record = model_.list(category)[static_cast<std::size_t>(row)];
        return model_.set(category, row, field, !isSet(record, field));
    };
    switch (command) {
    case Command::turnOnOrOff:
        return turn("enable");
    case Command::showInMainMenu:
        return turn("enableMainMenu");
    case Command::moveUp:
        return model_.drop(category, row, row - 1);
    case Command::moveDown:
        return model_.drop(category, row, row + 1);
    case Command::removeRule:
        return model_.remove(category, row);
    case Command::resetList:
        return model_.reset(category);
    case Command::enableAll:
        return model_.enableAll(category, !areAllOn);
    case Command::addRule:
    case Command::chooseFolder:
        platform_.panels.cancel();
        return false;
    default:
        return false;
    }
}

std::vector<std::string> RandomWalk::searchedTexts(RuleCategory category) const {
    std::vector<std::string> texts;
    for (long row = 0; row < rows(category); ++row) {
        std::string all;
        for (const auto& column : columnsOf(category)) {
            const auto cell = controller_.rows().cell(category, column.identifier, row);
            const auto* text = std::get_if<TextFieldCell>(&cell.control);
            if (text && column.identifier != "Size") {
                all += lowered(text->text) + "\n";
            }
        }
        texts.push_back(all);
    }
    return texts;
}

void RandomWalk::find(RuleCategory category) {
    selectAnyRow(category);
    auto& finding = controller_.finding();
    const auto texts = searchedTexts(category);
    const auto before = window_.selectedRow(category);
    if (pick(3) == 0) {
        const std::string typed = soughtTexts[static_cast<std::size_t>(pick(5))];
        EXPECT_TRUE(finding.typed(category, typed, typing_ += 60));
        const auto found = std::find_if(texts.begin(), texts.end(),
            [&](const std::string& text) { return text.starts_with(lowered(typed)); });
        EXPECT_EQ(window_.selectedRow(category), found == texts.end() ? before : found - texts.begin());
        return;
    }
    std::vector<long> hits;
    const auto isNew = sought_.empty() || flip();
    if (isNew) {
        sought_ = soughtTexts[static_cast<std::size_t>(pick(soughtTexts.size()))];
    }
    for (std::size_t row = 0; row < texts.size(); ++row) {
        if (texts[row].find(lowered(sought_)) != std::string::npos) {
            hits.push_back(static_cast<long>(row));
        }
    }
    long expected = before;
    if (isNew) {
        finding.lookFor(category, sought_);
        expected = firstOf(
            hits, [&](long hit) { return hit >= before; }, before);
    } else if (flip()) {
        finding.step(category, SearchStep::next);
        expected = firstOf(
            hits, [&](long hit) { return hit > before; }, before);
    } else {
        finding.step(category, SearchStep::previous);
        std::reverse(hits.begin(), hits.end());
        expected = firstOf(
            hits, [&](long hit) { return hit < before; }, before);
        std::reverse(hits.begin(), hits.end());
    }
    EXPECT_EQ(window_.selectedRow(category), expected) << sought_ << " from row " << before;
    const auto place = std::find(hits.begin(), hits.end(), expected);
    if (place != hits.end()) {
        EXPECT_EQ(finding.count(category), std::to_string(place - hits.begin() + 1)
                                               .append(" of ")
                                               .append(std::to_string(hits.size()))
                                               .append(" found"));
    }
}

} // namespace tarnwick::testing
