#include "ui/RuleCells.h"

#include "platform/ApplicationBundle.h"
#include "platform/Images.h"
#include "prefs/GroupContainer.h"
#include "prefs/RuleList.h"
#include "ui/EnabledRules.h"
#include "ui/FolderLabel.h"
#include "ui/RuleColumns.h"

#include <cstdio>

namespace tarnwick {
namespace {

std::optional<long> tagOf(std::size_t row) {
    return static_cast<long>(row);
}

/// A text that the user may edit, unless the record is fixed.
CellView editableText(std::string text, const Column& column, const RuleList& list, std::size_t row) {
    return {TextFieldCell{.text = std::move(text),
                .editable = !list.isFixed(row),
                .hasDelegate = true,
                .identifier = column.identifier},
        column.frame, tagOf(row)};
}

CellView picture(ImagePointer image, const Column& column) {
    return {ImageCell{std::move(image)}, column.frame, std::nullopt};
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

CellView RuleCells::name(const Column& column, const RuleList& list, std::size_t row) const {
    return editableText(shownName(list, row), column, list, row);
}

CellView RuleCells::note(const Column& column, const RuleList& list, std::size_t row) const {
    const auto& record = list[row];
    // Once the note is edited the cell shows the name, on purpose.
    auto text = record.flag(field::noteModified) ? std::string(record.text(field::displayName))
                                                 : localized(record.text(field::note));
    return editableText(std::move(text), column, list, row);
}

CellView RuleCells::extension(const Column& column, const RuleList& list, std::size_t row) const {
    return {TextFieldCell{.text = std::string(list[row].text(field::extension))}, column.frame, tagOf(row)};
}

CellView RuleCells::path(const Column& column, const RuleList& list, std::size_t row) const {
    return {TextFieldCell{.text = shortenedPath(folders_, list[row])}, column.frame, std::nullopt};
}

CellView RuleCells::size(const Column& column, const RuleList& list, std::size_t row) const {
    return {TextFieldCell{.text = sizeText(imageFromRecord(list[row])), .alignment = TextAlignment::centred},
        column.frame, std::nullopt};
}

CellView RuleCells::checkBox(const Column& column, const RuleList& list, std::size_t row) const {
    return {
        CheckBoxCell{
            .on = isShownOn(list, row, column.field), .enabled = !list.isFixed(row), .field = column.field},
        column.frame, tagOf(row), !column.frame};
}

CellView RuleCells::templateIcon(const Column& column, const RuleList& list, std::size_t row) const {
    const auto folder = GroupContainer(folders_).templateFolder();
    const auto& record = list[row];
    const auto extension = record.text(field::extension);
    // Without both it would be that of the folder.
    const bool hasName = !extension.empty() || !record.text(field::displayName).empty();
    if (!folder || !hasName) {
        return picture(nullptr, column);
    }
    auto image = images_.fromFile(std::string(*folder).append("/").append(extension).append(".png"));
    return picture(image ? image : images_.iconOfFile(*folder + "/" + templateFileName(record)), column);
}

CellView RuleCells::folderIcon(const Column& column, const RuleList& list, std::size_t row) const {
    const std::string path(list[row].text(field::realPath));
    return picture(path.empty() ? nullptr : images_.iconOfFile(path), column);
}

CellView RuleCells::recordIcon(const Column& column, const RuleList& list, std::size_t row) const {
    return picture(imageFromRecord(list[row]), column);
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
