#pragma once

#include "prefs/FactoryLists.h"
#include "prefs/HeldFiles.h"
#include "prefs/IconFolders.h"
#include "prefs/LocalPreferences.h"
#include "prefs/PreferenceLoading.h"
#include "prefs/RuleList.h"
#include "prefs/RulePublisher.h"
#include "prefs/TemplateFiles.h"
#include "prefs/TemplateFolder.h"
#include "prefs/TemplateRecovery.h"

namespace tarnwick {

struct Ports;

/// The lists, the stores and what keeps them in order, wired together. One serves the process.
struct Preferences {
    explicit Preferences(const Ports& ports);
    Preferences(const Preferences&) = delete;
    Preferences& operator=(const Preferences&) = delete;

    LocalPreferences local;
    RuleLists lists;
    RulePublisher publisher;
    HeldFiles held;
    TemplateFolder templateFolder;
    TemplateFiles templateFiles;
    TemplateRecovery recovery;
    FactoryLists factory;
    IconFolders icons;
    PreferenceLoading loading;
};

} // namespace tarnwick
