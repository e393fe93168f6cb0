#include "tests/gui/Panels.h"

#include <gtest/gtest.h>

namespace tarnwick::gui {
namespace {

/// Run in German.
TEST(PanelTexts, AreThoseOfTheWindowsLanguageAlsoWhereTheToolkitHasItsOwn) {
    EXPECT_EQ(panelText("OK"), "OK");
    EXPECT_EQ(panelText("Save"), "Sichern");
    EXPECT_EQ(panelText("Show Hidden Files"), "Ausgeblendete Dateien anzeigen");
}

} // namespace
} // namespace tarnwick::gui
