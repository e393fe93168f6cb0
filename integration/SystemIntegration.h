#pragma once

#include "integration/FinderExtension.h"
#include "integration/RestartRequest.h"
#include "integration/ScriptHelper.h"
#include "integration/SystemTools.h"

namespace tarnwick {

struct Ports;
struct Preferences;

/// The program's dealings with the system around it, wired together.
struct SystemIntegration {
    SystemIntegration(const Ports& ports, Preferences& preferences);
    SystemIntegration(const SystemIntegration&) = delete;
    SystemIntegration& operator=(const SystemIntegration&) = delete;

    FinderExtension finderExtension;
    RestartRequest restartRequest;
    ScriptHelper scriptHelper;
    SystemTools tools;
};

} // namespace tarnwick
