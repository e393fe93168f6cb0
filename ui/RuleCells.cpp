#include "ui/RuleCells.h"

#include "platform/ApplicationBundle.h"
#include "platform/Images.h"
#include "prefs/GroupContainer.h"
#include "prefs/RuleList.h"
#include "ui/FolderLabel.h"

#include <cstdio>

namespace tarnwick {
namespace {

constexpr Frame nameFrame{0, 0, 300, 23};
constexpr Frame wideFrame{0, 0, 500, 23};
constexpr Frame sizeFrame{0, 0, 100, 23};
constexpr Frame checkBoxFrame{6, 5, 20, 20};
constexpr Frame mainMenuFrame{35, 5, 20, 20};
constexpr Frame iconFrame{8, 1, 28, 28};
constexpr Frame folderIconFrame{5, 1, 28, 28};
constexpr Frame actionIconFrame{20, 5, 20, 20};

long tagOf(std::size_t row) {
    return static_cast<long>(row);
}

/// A text that the user may edit, unless the record is fixed.
CellView editableText(
    std::string text, std::string_view column, const RuleList& list, std::size_t row, const Frame& frame) {
    return {TextFieldCell{.text = std::move(text),
                .editable = !list.isFixed(row),
                .hasDelegate = true,
                .identifier = column},
        frame, tagOf(row)};
}

CellView plainText(TextFieldCell field, const Frame& frame) {
    return {std::move(field), frame, std::nullopt};
}

CellView picture(ImagePointer image, const Frame& frame) {
    return {ImageCell{std::move(image)}, frame, std::nullopt};
}

/// Empty without an image.
std::string sizeText(const ImagePointer& image) {
    if (!image) {
        return {};
    }
    const auto size = image->size();
    char text[64];
    std::snprintf(text, sizeof text, "%.f x %.f", size.width, size.height);
    return text;
}

} // namespace

CellView RuleCells::name(std::string_view column, const RuleList& list, std::size_t row) const {
    return editableText(shownName(list, row), column, list, row, nameFrame);
}

CellView RuleCells::wideName(std::string_view column, const RuleList& list, std::size_t row) const {
    return editableText(shownName(list, row), column, list, row, wideFrame);
}

CellView RuleCells::note(std::string_view column, const RuleList& list, std::size_t row) const {
    const auto& record = list[row];
    // Once the note is edited the cell shows the name, on purpose.
    auto text = record.flag(field::noteModified) ? std::string(record.text(field::displayName))
                                                 : localized(record.text(field::note));
    return editableText(std::move(text), column, list, row, nameFrame);
}

CellView RuleCells::extension(std::string_view, const RuleList& list, std::size_t row) const {
    return {TextFieldCell{.text = std::string(list[row].text(field::extension))}, nameFrame, tagOf(row)};
}

CellView RuleCells::path(std::string_view, const RuleList& list, std::size_t row) const {
    return plainText({.text = shortenedPath(folders_, list[row])}, wideFrame);
}

CellView RuleCells::size(std::string_view, const RuleList& list, std::size_t row) const {
    return plainText(
        {.text = sizeText(imageFromRecord(list[row])), .alignment = TextAlignment::centred}, sizeFrame);
}

CellView RuleCells::enableBox(std::string_view, const RuleList& list, std::size_t row) const {
    const auto isFixed = list.isFixed(row);
    return {
        CheckBoxCell{.on = isFixed || list[row].isEnabled(), .enabled = !isFixed}, checkBoxFrame, tagOf(row)};
}

CellView RuleCells::bareEnableBox(std::string_view, const RuleList& list, std::size_t row) const {
    return {CheckBoxCell{.on = list[row].isEnabled()}, std::nullopt, tagOf(row), true};
}

CellView RuleCells::mainMenuBox(std::string_view, const RuleList& list, std::size_t row) const {
    return {CheckBoxCell{.on = list[row].flag(field::enableMainMenu), .turns = RowSwitch::enableMainMenu},
        mainMenuFrame, tagOf(row)};
}

CellView RuleCells::templateIcon(std::string_view, const RuleList& list, std::size_t row) const {
    const auto folder = GroupContainer(folders_).templateFolder();
    if (!folder) {
        return picture(nullptr, iconFrame);
    }
    const auto& record = list[row];
    const auto extension = record.text(field::extension);
    auto image = images_.fromFile(std::string(*folder).append("/").append(extension).append(".png"));
    return picture(image ? image : images_.iconOfFile(*folder + "/" + templateFileName(record)), iconFrame);
}

CellView RuleCells::folderIcon(std::string_view, const RuleList& list, std::size_t row) const {
    return picture(images_.iconOfFile(std::string(list[row].text(field::realPath))), folderIconFrame);
}

CellView RuleCells::recordIcon(std::string_view, const RuleList& list, std::size_t row) const {
    return picture(imageFromRecord(list[row]), iconFrame);
}

CellView RuleCells::actionIcon(std::string_view, const RuleList& list, std::size_t row) const {
    return picture(imageFromRecord(list[row]), actionIconFrame);
}

std::string RuleCells::shownName(const RuleList& list, std::size_t row) const {
    const auto& record = list[row];
    const auto mark = factsOf(list.category()).nameMark;
    if (mark.empty()) {
        return folderLabel(folders_, bundle_, record);
    }
    const auto name = record.text(field::displayName);
    return record.flag(mark) ? std::string(name) : localized(name);
}

std::string RuleCells::localized(std::string_view key) const {
    return key.empty() ? std::string() : bundle_.localized(key);
}

ImagePointer RuleCells::imageFromRecord(const RuleRecord& record) const {
    const auto data = record.data(field::icon);
    return data.empty() ? nullptr : images_.fromData(data);
}

} // namespace tarnwick
