#include "ui/RowViews.h"

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

CellView nameCell(std::string text, std::string_view identifier, std::size_t row, bool editable = true,
    Frame frame = nameFrame) {
    return {TextFieldCell{
                .text = std::move(text), .editable = editable, .hasDelegate = true, .identifier = identifier},
        frame, tagOf(row)};
}

CellView checkBox(bool on, RowSwitchAction action, std::size_t row, Frame frame = checkBoxFrame) {
    return {CheckBoxCell{.on = on, .action = action}, frame, tagOf(row)};
}

CellView imageCell(ImagePointer image, Frame frame) {
    return {ImageCell{std::move(image)}, frame, std::nullopt};
}

CellView plainTextCell(TextFieldCell field, Frame frame) {
    return {std::move(field), frame, std::nullopt};
}

/// Width, then height, without decimals; empty without an image.
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

CellView RowViews::tableViewForCreateNewFile(std::string_view column, std::size_t row) const {
    const auto& record = lists_[RuleCategory::createNewFile][row];
    if (column == "Extension") {
        return {TextFieldCell{.text = std::string(record.text(field::extension))}, nameFrame, tagOf(row)};
    }
    if (column == "NewFileDisplayName") {
        return nameCell(nameText(record, field::modified), "NewFileDisplayName", row, true, wideFrame);
    }
    if (column == "Enable") {
        return checkBox(record.isEnabled(), RowSwitchAction::onOffcheckedStateChangedOfCreateNewFile, row);
    }
    if (column == "NewFileIcon") {
        return imageCell(templateIcon(record), iconFrame);
    }
    if (column == "EnableMainMenu") {
        return checkBox(record.flag(field::enableMainMenu),
            RowSwitchAction::onOffEnableMainMenuStateChangedOfCreateNewFile, row, mainMenuFrame);
    }
    return {};
}

CellView RowViews::tableViewForCopyTo(std::string_view column, std::size_t row) const {
    const auto& record = lists_[RuleCategory::copyFilesTo][row];
    if (column == "Note") {
        return nameCell(folderLabel(platform_, record), "Note", row);
    }
    if (column == "realPath") {
        return pathCell(record);
    }
    if (column == "Enable") {
        return {CheckBoxCell{
                    .on = record.isEnabled(), .action = RowSwitchAction::onOffcheckedStateChangedOfCopyTo},
            std::nullopt, tagOf(row), true};
    }
    if (column == "SendFileIcon") {
        return fileIconCell(record);
    }
    return {};
}

CellView RowViews::tableViewForCommonPath(std::string_view column, std::size_t row) const {
    const auto& record = lists_[RuleCategory::commonPath][row];
    if (column == "commonPathDisplayName") {
        return nameCell(folderLabel(platform_, record), "commonPathDisplayName", row);
    }
    if (column == "realPath") {
        return pathCell(record);
    }
    if (column == "commonPathIcon") {
        return fileIconCell(record);
    }
    return {};
}

CellView RowViews::tableViewForCustomIcon(std::string_view column, std::size_t row) const {
    const auto& record = lists_[RuleCategory::customIcon][row];
    if (column == "CustomIconName") {
        return nameCell(nameText(record, field::modified), "CustomIconName", row);
    }
    if (column == "Icon") {
        return imageCell(imageFromRecord(record), iconFrame);
    }
    if (column == "Enable") {
        return checkBox(record.isEnabled(), RowSwitchAction::onOffcheckedStateChangedOfCustomIcon, row);
    }
    if (column == "Size") {
        return plainTextCell(
            {.text = sizeText(imageFromRecord(record)), .alignment = TextAlignment::centred}, sizeFrame);
    }
    return {};
}

CellView RowViews::tableViewForOthers(std::string_view column, std::size_t row) const {
    const auto& record = lists_[RuleCategory::others][row];
    const auto locked = record.hasFixedAction();
    if (column == "OthersDisplayName") {
        return nameCell(nameText(record, field::nameModified), "OthersDisplayName", row, !locked);
    }
    if (column == "OthersIcon") {
        return imageCell(imageFromRecord(record), actionIconFrame);
    }
    if (column == "OthersEnable") {
        return {CheckBoxCell{.on = locked || record.isEnabled(),
                    .enabled = !locked,
                    .action = RowSwitchAction::onOffcheckedStateChangedOfOthers},
            checkBoxFrame, tagOf(row)};
    }
    if (column == "OthersNote") {
        // Once the note is edited the cell shows the name, on purpose.
        auto text = record.flag(field::noteModified) ? std::string(record.text(field::displayName))
                                                     : localized(record.text(field::note));
        return nameCell(std::move(text), "OthersNote", row, !locked);
    }
    return {};
}

std::string RowViews::nameText(const RuleRecord& record, std::string_view mark) const {
    const auto name = record.text(field::displayName);
    return record.flag(mark) ? std::string(name) : localized(name);
}

std::string RowViews::localized(std::string_view key) const {
    return key.empty() ? std::string() : platform_.bundle.localized(key);
}

ImagePointer RowViews::templateIcon(const RuleRecord& record) const {
    const auto folder = GroupContainer(platform_.folders).templateFolder();
    if (!folder) {
        return nullptr;
    }
    const auto extension = record.text(field::extension);
    if (auto image =
            platform_.images.fromFile(std::string(*folder).append("/").append(extension).append(".png"))) {
        return image;
    }
    return platform_.images.iconOfFile(*folder + "/" + templateFileName(record));
}

ImagePointer RowViews::imageFromRecord(const RuleRecord& record) const {
    const auto data = record.data(field::icon);
    return data.empty() ? nullptr : platform_.images.fromData(data);
}

CellView RowViews::pathCell(const RuleRecord& record) const {
    return plainTextCell({.text = shortenedPath(platform_, record)}, wideFrame);
}

CellView RowViews::fileIconCell(const RuleRecord& record) const {
    return imageCell(platform_.images.iconOfFile(std::string(record.text(field::realPath))), folderIconFrame);
}

} // namespace tarnwick
