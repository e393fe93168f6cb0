#pragma once

#include "integration/SystemIntegration.h"
#include "tests/support/PrefsFixture.h"

namespace tarnwick::testing {

/// The program's dealings with the system over the in-memory platform.
class IntegrationFixture : public PrefsFixture {
protected:
    SystemIntegration integration_{platform_.ports(), preferences_};
};

} // namespace tarnwick::testing
