#pragma once

#include "tests/support/SettingsFixture.h"
#include "tests/transfer/PreparedStates.h"

#include <stdexcept>

namespace tarnwick::testing {

/// One user's application, with everything that it is asked about settings as a file.
class Machine {
public:
    Machine() { connect(platform, window, controller); }
    explicit Machine(const PreparedState& state) : Machine() {
        state.prepare(platform);
        launch();
    }

    void launch() {
        platform.preferences.local.insert_or_assign("ShownEnableExtensionAlert", PlistValue(true));
        controller.awakeFromNib();
        platform.runLoop.runMain();
        for (const auto category : allRuleCategories) {
            window.reload(category);
        }
        platform.log.clear();
    }

    PlistDictionary exported() {
        controller.transfer().exportSettings();
        platform.panels.confirm({"/exported"});
        const auto* document = platform.contents.listAt("/exported");
        return document && document->dictionary() ? *document->dictionary() : PlistDictionary();
    }
    /// The first button of the alert, unless `answers` says otherwise.
    void import(const ListFileContent& content) {
        platform.contents.putList("/import", content);
        controller.transfer().importSettings();
        platform.panels.confirm({"/import"});
    }
    void import(const PlistDictionary& document) { import(ListFileContent(PlistValue(document))); }

    [[nodiscard]] const AlertRequest& lastAlert() const { return platform.panels.alerts.back(); }
    /// What a look at the disk shows; where files are held for undo is nobody's business.
    [[nodiscard]] bool isAs(const Machine& other) const {
        return platform.preferences.local == other.platform.preferences.local &&
               platform.preferences.shared == other.platform.preferences.shared &&
               platform.contents.readTree("/container") == other.platform.contents.readTree("/container");
    }

    InMemoryPlatform platform;
    InMemoryWindow window{platform.log, platform.preferences};
    SettingsController controller{platform.ports(), window};
};

/// Settings that are nothing but the parts that each file has.
[[nodiscard]] inline PlistDictionary bareDocument() {
    return {{"application", "org.halvane.Tarnwick"}, {"format", 1}, {"version", "9.9"},
        {"date", PlistDate{0}}, {"switches", PlistDictionary()}, {"templateFiles", PlistDictionary()}};
}

/// An absent list is an empty one after an import.
[[nodiscard]] inline PlistDictionary withEmptyLists(PlistDictionary document) {
    for (const auto category : allRuleCategories) {
        document.try_emplace(std::string(factsOf(category).listKey), PlistArray());
    }
    return document;
}

} // namespace tarnwick::testing
