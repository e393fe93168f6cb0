#pragma once

#include "prefs/RuleCategory.h"
#include "values/PlistValue.h"

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick::testing {

/// What the five lists and the template folder must hold after each edit, by plain rules of its own that
/// share no code with the program. An operation returns whether the edit is one that saves its list.
class RuleModel {
public:
    using Records = std::vector<PlistDictionary>;

    /// The lists a reset goes back to; the common paths have none.
    PerCategory<Records> factory = none();
    PerCategory<Records> lists = none();
    /// The names in the template folder.
    std::set<std::string> files;
    /// Names under which no file can be made there.
    std::set<std::string> failing;

    /// A template from "<folder>/<name>.<extension>", or "<folder>/<name>" without one.
    bool addTemplate(const std::string& name, const std::string& extension);
    bool addFolder(RuleCategory category, const std::string& parent, const std::string& name);
    bool addIcon(const std::string& fileName, const PlistData& tiff);
    bool addAction(const std::string& name, const PlistData& tiff);

    bool remove(RuleCategory category, long row);
    /// A row's check box.
    bool set(RuleCategory category, long row, const std::string& field, bool on);
    bool enableAll(RuleCategory category, bool on);
    bool drop(RuleCategory category, long from, long to);
    /// An edit of the category's name, with the mark that it sets; no mark: empty.
    bool rename(RuleCategory category, long row, const std::string& mark, const std::string& text);
    bool editNote(long row, const std::string& text);
    bool choosePath(long row, const std::string& path);
    bool reset(RuleCategory category);

    [[nodiscard]] Records& list(RuleCategory category) { return lists[category]; }
    [[nodiscard]] const Records& list(RuleCategory category) const { return lists[category]; }
    [[nodiscard]] bool holds(RuleCategory category, long row) const;
    /// Puts the template folder into its factory state.
    void layOutFiles();
    /// The factory's editors that the list of other actions lacks return to their places at each launch.
    void addMissingEditors();

private:
    static PerCategory<Records> none() {
        return PerCategory<Records>::madeBy([](RuleCategory) { return Records(); });
    }
    bool makeFile(const std::string& name);
    [[nodiscard]] PlistDictionary& record(RuleCategory category, long row) {
        return list(category)[static_cast<std::size_t>(row)];
    }
};

[[nodiscard]] std::string textIn(const PlistDictionary& record, std::string_view field);
[[nodiscard]] bool isSet(const PlistDictionary& record, std::string_view field);
[[nodiscard]] bool isOn(const PlistDictionary& record);
/// A row that stays on, in its place and in its list.
[[nodiscard]] bool isFixed(const PlistDictionary& record);

} // namespace tarnwick::testing
