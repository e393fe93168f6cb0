#pragma once

#include "tests/support/EditingFixture.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace tarnwick::testing {

using Lines = std::vector<std::string>;

class OrderOfEffectsTest;

/// An edit and all that the platform is asked to do for it, in order.
struct Effects {
    const char* name;
    void (*edit)(OrderOfEffectsTest& window);
    Lines expected;
};

void PrintTo(const Effects& effects, std::ostream* stream);
[[nodiscard]] std::string nameOf(const ::testing::TestParamInfo<Effects>& info);

/// Three folders in each of the two folder lists, the factory rows in the other three.
class OrderOfEffectsTest : public EditingFixture, public ::testing::WithParamInterface<Effects> {
public:
    OrderOfEffectsTest();

    void add(RuleCategory category, std::vector<std::string> paths);
    /// Removes the given row of a table.
    void remove(RuleCategory category, long row);
    /// Drops the third row above the first.
    void drop(RuleCategory category);
    /// Ends the editing of a field in the first row with the text "New".
    void edit(std::string_view identifier);
    [[nodiscard]] RuleEditing& editing() { return editing_; }
};

[[nodiscard]] Lines operator+(Lines first, const Lines& second);

/// The list written into the application's own preferences, then synchronised.
[[nodiscard]] Lines stored(const std::string& list);

/// What is about to happen to template files, noted and forgotten.
[[nodiscard]] Lines noted();
[[nodiscard]] Lines forgotten();

/// The first file that is taken away, to where undo finds it.
[[nodiscard]] Lines held(const std::string& path);

/// What publishing each list asks for. An enable-all flag is written true, and false once more when a record
/// is off, as some factory templates are.
[[nodiscard]] Lines publishedTemplates();
[[nodiscard]] Lines publishedTargets();
[[nodiscard]] Lines publishedPaths();
[[nodiscard]] Lines publishedIcons(bool allEnabled = true);
[[nodiscard]] Lines publishedOthers(bool allEnabled = true);

} // namespace tarnwick::testing
