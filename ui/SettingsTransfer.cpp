#include "ui/SettingsTransfer.h"

#include "editing/ListEditor.h"
#include "platform/ApplicationBundle.h"
#include "platform/Clock.h"
#include "platform/Panels.h"
#include "platform/Ports.h"
#include "platform/PropertyListFiles.h"
#include "prefs/Preferences.h"

#include <optional>
#include <utility>

namespace tarnwick {
namespace {

constexpr std::string_view fileType = "plist";

} // namespace

SettingsTransfer::SettingsTransfer(const Ports& ports, const Preferences& preferences, ListEditor& editor)
    : exporting_(preferences.local, ports.files, ports.trees, ports.folders, ports.bundle, ports.clock),
      panels_(ports.panels), files_(ports.listFiles), bundle_(ports.bundle), clock_(ports.clock),
      editor_(editor) {}

void SettingsTransfer::exportSettings() {
    editor_.endEditing();
    const SavePanelRequest request{
        .name = "Tarnwick Settings " + clock_.today() + "." + std::string(fileType),
        .fileType = std::string(fileType)};
    panels_.choosePlace(request, [this](const std::optional<std::string>& path) {
        if (path) {
            exportTo(*path);
        }
    });
}

void SettingsTransfer::exportTo(const std::string& path) {
    editor_.endEditing();
    const auto exported = exporting_.collect();
    switch (files_.write(path, exported.document)) {
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
        std::string names;
        for (const auto& name : exported.leftOut) {
            names.append(names.empty() ? "" : "\n").append(name);
        }
        say(bundle_.localized(
                "The settings were exported without these template files, which cannot be read:"),
            std::move(names));
    }
}

void SettingsTransfer::say(std::string message, std::string information) {
    panels_.runAlert({.style = AlertStyle::warning,
        .messageText = std::move(message),
        .informativeText = std::move(information),
        .buttons = {bundle_.localized("OK")}});
}

} // namespace tarnwick
