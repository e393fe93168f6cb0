#include "ui/SettingsTransfer.h"

#include "editing/ListEditor.h"
#include "platform/ApplicationBundle.h"
#include "platform/FileContents.h"
#include "platform/Panels.h"
#include "platform/Ports.h"
#include "platform/RunLoop.h"
#include "prefs/HomeFolder.h"
#include "prefs/Preferences.h"
#include "transfer/UnderstandSettings.h"
#include "ui/TransferTexts.h"
#include "values/PathText.h"

#include <optional>
#include <utility>

namespace tarnwick {
namespace {

constexpr std::string_view fileType = "plist";

ImportFault faultOf(ListFileFault fault) {
    switch (fault) {
    case ListFileFault::unreadable:
        break;
    case ListFileFault::notRegular:
        return ImportFault::notRegular;
    case ListFileFault::tooLarge:
        return ImportFault::tooLarge;
    case ListFileFault::empty:
        return ImportFault::empty;
    case ListFileFault::foreign:
        return ImportFault::foreign;
    case ListFileFault::damaged:
        return ImportFault::damaged;
    }
    return ImportFault::unreadable;
}

} // namespace

SettingsTransfer::SettingsTransfer(const Ports& ports, Preferences& preferences, ListEditor& editor,
    RuleTables& tables, const StepNames& names)
    : exporting_(preferences.local, ports.files, ports.contents, ports.folders, ports.bundle, ports.runLoop),
      importing_(preferences.local, ports.contents, preferences.held, editor, tables, names),
      lists_(preferences.lists), panels_(ports.panels), contents_(ports.contents), images_(ports.images),
      bundle_(ports.bundle), clock_(ports.runLoop), editor_(editor),
      folder_(homeSubfolder(ports.folders, "Documents")) {}

void SettingsTransfer::exportSettings() {
    exportSettings([] {});
}

void SettingsTransfer::exportSettings(std::function<void()> then) {
    editor_.endEditing();
    const SavePanelRequest request{
        .name = bundle_.localized("Tarnwick Settings") + " " + clock_.today() + "." + std::string(fileType),
        .fileType = std::string(fileType),
        .message = bundle_.localized("Choose where the file with all your settings goes."),
        .prompt = bundle_.localized("Export"),
        .startFolder = folder_};
    panels_.choosePlace(request, [this, then = std::move(then)](const std::optional<std::string>& path) {
        if (path) {
            folder_ = withoutLastPathComponent(*path);
            exportTo(*path);
        }
        then();
    });
}

void SettingsTransfer::exportTo(const std::string& path) {
    editor_.endEditing();
    const auto exported = exporting_.collect();
    switch (contents_.writeList(path, exported.document)) {
    case ListFileWriting::done:
        break;
    case ListFileWriting::tooLarge:
        say(bundle_.localized("The settings were not exported."),
            bundle_.localized("They are larger than 512 MB and could not be imported again."));
        return;
    case ListFileWriting::failed:
        say(bundle_.localized("The settings were not exported."),
            bundle_.localized("The file cannot be written there."));
        return;
    }
    if (!exported.leftOut.empty()) {
        say(bundle_.localized(
                "The settings were exported without these template files, which cannot be read:"),
            leftOutFiles(exported.leftOut, bundle_));
    }
}

void SettingsTransfer::importSettings() {
    editor_.endEditing();
    panels_.choose({.allowedFileTypes = {std::string(fileType)},
                       .startFolder = folder_,
                       .prompt = bundle_.localized("Import"),
                       .message = bundle_.localized("Choose a file of settings that Tarnwick has exported.")},
        [this](const OpenPanelAnswer& answer) {
            if (answer.confirmed && !answer.paths.empty()) {
                folder_ = withoutLastPathComponent(answer.paths.front());
                importFrom(answer.paths.front());
            }
        });
}

void SettingsTransfer::importFrom(const std::string& path) {
    const auto content = contents_.readList(path);
    if (const auto* fault = std::get_if<ListFileFault>(&content)) {
        refuse(faultOf(*fault));
        return;
    }
    auto understood = understandSettings(*std::get_if<PlistValue>(&content), images_);
    if (const auto* fault = std::get_if<ImportFault>(&understood)) {
        refuse(*fault);
        return;
    }
    ask(std::make_shared<const ImportPlan>(std::move(*std::get_if<ImportPlan>(&understood))));
}

void SettingsTransfer::ask(const std::shared_ptr<const ImportPlan>& plan) {
    // What is being edited counts among what there is, and an edit that went on would end in another rule.
    editor_.endEditing();
    const auto present =
        PerCategory<std::size_t>::madeBy([this](RuleCategory category) { return lists_[category].size(); });
    const auto answer = panels_.runAlert({.style = AlertStyle::warning,
        .messageText = bundle_.localized("Import these settings?"),
        .informativeText = importSummary(*plan, present, bundle_),
        .buttons = {bundle_.localized("Import"), bundle_.localized("Cancel"),
            bundle_.localized("Export First\u2026")}});
    if (answer == alertFirstButton) {
        if (!importing_.apply(*plan)) {
            refuse(ImportFault::notStored);
        }
    } else if (answer == alertFirstButton + 2) {
        exportSettings([this, plan] { ask(plan); });
    }
}

void SettingsTransfer::refuse(ImportFault fault) {
    say(bundle_.localized("Nothing was imported, and nothing has changed."), faultText(fault, bundle_));
}

void SettingsTransfer::say(std::string message, std::string information) {
    panels_.runAlert({.style = AlertStyle::warning,
        .messageText = std::move(message),
        .informativeText = std::move(information),
        .buttons = {bundle_.localized("OK")}});
}

} // namespace tarnwick
