#include "tests/gui/Driver.h"
#include "tests/gui/Menus.h"
#include "tests/support/Categories.h"

#include <gtest/gtest.h>

namespace tarnwick::gui {
namespace {

/// Run in German.
TEST(KeyNames, AreThoseOfTheUsersLanguage) {
    const auto items = openMenuOfCell(testing::templates, 0, "NewFileDisplayName");
    EXPECT_EQ(itemTitled(items, "Umbenennen").keys, "Eingabe");
    EXPECT_EQ(itemTitled(items, "Im Hauptmen\u00FC anzeigen").keys, "Umschalt+Alt+M");
    EXPECT_EQ(itemTitled(items, "Nach unten bewegen").keys, "AltGr+Alt+Pfeil ab");
    EXPECT_EQ(itemTitled(items, "Entfernen").keys, "R\u00FCcktaste");
}

} // namespace
} // namespace tarnwick::gui
