#pragma once

#include "platform/Platform.h"
#include "prefs/RuleCategory.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tarnwick {

class FactoryLists;
class LocalPreferences;
class RuleLists;
class RulePublisher;
class SharedPreferences;

/// Brings the preferences into a usable state each time the window is loaded, before any page is shown. No
/// step reports an error to the user.
class PreferenceLoading {
public:
    PreferenceLoading(const Platform& platform, LocalPreferences& local, RuleLists& lists,
        RulePublisher& publisher, FactoryLists& factory)
        : platform_(platform), local_(local), lists_(lists), publisher_(publisher), factory_(factory) {}

    /// Opens both stores, keeps unreadable originals aside, seeds the switches, builds the feature array on
    /// the first run, lays out the templates when their folder is missing, and rebuilds the two icon folders;
    /// in this order. Neither store is synchronised for the seeding.
    void prepareStoresAndFolders();

    /// Loads CopyFilesTo, CommonPath and CreateNewFile; finishes what an earlier process began with template
    /// files; adds the image-to-icon feature to an older feature array; loads CustomIcon and Others, each
    /// reset when it has no records; adds the editor items that an older Others list lacks, in memory only;
    /// in this order.
    void loadLists();

    /// Observes the mirrored switches, in their order.
    void observeMirroredKeys();

private:
    void seedSwitches(SharedPreferences& shared);
    void buildFeatureArray();
    void ensureTemplates(const std::optional<std::string>& folder);
    /// How many of the icons are not in the folder afterwards.
    std::size_t rebuildIconFolder(const std::string& folder, std::span<const std::string_view> names);
    void load(RuleCategory category);
    void addImageToIconFeature();
    void addMissingEditors();

    Platform platform_;
    LocalPreferences& local_;
    RuleLists& lists_;
    RulePublisher& publisher_;
    FactoryLists& factory_;
};

} // namespace tarnwick
