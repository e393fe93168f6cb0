#pragma once

#include "prefs/RuleCategory.h"
#include "prefs/RuleRecord.h"

#include <vector>

namespace tarnwick {

class FactoryLists;
class FileManager;
class IconFolders;
class KnownFolders;
class LocalPreferences;
class PreferenceStores;
class RuleLists;
class RulePublisher;
class SharedPreferences;
class SystemLog;
class TemplateRecovery;

/// Brings the preferences into a usable state each time the window is loaded, before any page is shown. No
/// step reports an error to the user.
class PreferenceLoading {
public:
    PreferenceLoading(PreferenceStores& stores, FileManager& files, const KnownFolders& folders,
        SystemLog& log, LocalPreferences& local, RuleLists& lists, RulePublisher& publisher,
        FactoryLists& factory, TemplateRecovery& recovery, IconFolders& icons)
        : stores_(stores), files_(files), folders_(folders), log_(log), local_(local), lists_(lists),
          publisher_(publisher), factory_(factory), recovery_(recovery), icons_(icons) {}

    /// Opens both stores, keeps unreadable originals aside, seeds the switches, builds the feature array on
    /// the first run, puts back template files that an earlier process was about to, lays out the templates
    /// when their folder is missing, and rebuilds the two icon folders; in this order. Neither store is
    /// synchronised for the seeding.
    void prepareStoresAndFolders();

    /// Loads CopyFilesTo, CommonPath and CreateNewFile; finishes what an earlier process began with template
    /// files; adds the image-to-icon feature to an older feature array; loads CustomIcon and Others, each
    /// reset when it has no records; adds the editor items that an older Others list lacks, in memory only;
    /// in this order.
    void loadLists();

private:
    void seedSwitches(SharedPreferences& shared);
    void buildFeatureArray();
    void ensureTemplates();
    void load(RuleCategory category);
    [[nodiscard]] std::vector<RuleRecord> storedRecords(RuleCategory category) const;
    void addImageToIconFeature();
    void addMissingEditors();

    PreferenceStores& stores_;
    FileManager& files_;
    const KnownFolders& folders_;
    SystemLog& log_;
    LocalPreferences& local_;
    RuleLists& lists_;
    RulePublisher& publisher_;
    FactoryLists& factory_;
    TemplateRecovery& recovery_;
    IconFolders& icons_;
};

} // namespace tarnwick
