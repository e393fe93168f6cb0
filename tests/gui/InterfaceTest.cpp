#include "tests/gui/Interface.h"
#include "tests/gui/Foreign.h"
#include "tests/gui/Shown.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tarnwick::gui {
namespace {

const std::string controller = "SettingsViewController";

const std::vector<std::string> commands{"awakeFromNib", "viewDidLoad", "start", "initialize",
    "setCreateNewFileToSettings", "setCopyFilesToSettings", "setCommonPathSettings",
    "setCustomIconToSettings", "setOthersToSettings", "resetArrOfCreateNewFile", "resetArrOfCopyFilesTo",
    "resetArrOfCustomIcon", "resetArrOfOthers", "isExtensionEnabled", "promptToEnableExtension",
    "openSystemPreferences", "restartFinder", "checkScriptInstalled", "doInstallScript", "repairScriptTask",
    "openServicesOfSystemPreferences", "init"};

const std::vector<std::string> pageActions{"createNewFilePressed:", "copyFilesToPressed:",
    "commonPathPressed:", "customIconFolder:", "otherOptionPressed:", "moreAppPressed:"};

const std::vector<std::string> ruleActions{"createNewFileViewClick:", "copyFilesToViewClick:",
    "commonPathViewClick:", "customIconViewClick:", "othersViewClick:", "removeCreateNewFileRule:",
    "removeCopyFilesToRule:", "removeCommondPathRule:", "removeCustomIconRule:", "removeOthersRule:",
    "resetCreateNewFileRule:", "resetCopyFilesToRule:", "resetCustomIconRule:", "resetOthersRule:",
    "enableAllOfCreateNewFilesClick:", "enableAllOfCustomIconClick:", "enableAllOfOthersClick:"};

const std::vector<std::string> otherActions{"addCreateNewFileRule:", "addSendFilesToRule:",
    "addCommonPathRule:", "addCustomIconRule:", "addOthersRule:", "OnOffcheckedStateChangedOfCreateNewFile:",
    "OnOffEnableMainMenuStateChangedOfCreateNewFile:", "OnOffcheckedStateChangedOfCopyTo:",
    "OnOffcheckedStateChangedOfCustomIcon:", "OnOffcheckedStateChangedOfOthers:", "selectPath:",
    "appChanged:", "restartFinderClick:", "initializeClick:", "helpServicesOfSystemPreferences:",
    "openServiceOfSystemPreferences:", "restartFinderEventDescriptor:", "runCommand:",
    "_appWithBundleIdentifierInstalled:", "getSystemShortcuts:"};

const std::vector<std::string> withMoreArguments{"saveData:forKey:", "numberOfRowsInTableView:",
    "tableView:heightOfRow:", "tableView:viewForTableColumn:row:", "tableViewForCreateNewFile:row:",
    "tableViewForCopyTo:row:", "tableViewForCommonPath:row:", "tableViewForCustomIcon:row:",
    "tableViewForOthers:row:", "tableView:writeRowsWithIndexes:toPasteboard:",
    "tableView:validateDrop:proposedRow:proposedDropOperation:", "tableView:acceptDrop:row:dropOperation:",
    "control:textShouldEndEditing:", "observeValueForKeyPath:ofObject:change:context:"};

const std::vector<std::string> outlets{"Version", "tabView", "createNewFileButton", "copyFilesToButton",
    "commonPathToButton", "customIconButton", "otherOptionButton", "moreAppButton", "createNewFileTableView",
    "copyFilesToTableView", "commonPathTableView", "customIconTableView", "othersTableView",
    "removeCreateNewFileViewButton", "removeCopyFilesToViewButton", "removeCommonPathViewButton",
    "removeCustomIconViewButton", "removeOthersViewButton", "restartFinderButton", "helpButton",
    "tipOfkillFinder"};

/// As many as the name has colons.
void expectAnswers(const std::string& className, const std::vector<std::string>& selectors) {
    for (const auto& selector : selectors) {
        EXPECT_EQ(argumentsOf(className, selector), std::count(selector.begin(), selector.end(), ':'))
            << className << " " << selector;
    }
}

TEST(Interface, TheControllerAnswersEveryOperationThatIsKnownByItsName) {
    for (const auto& names : {commands, pageActions, ruleActions, otherActions, withMoreArguments}) {
        expectAnswers(controller, names);
    }
    EXPECT_EQ(argumentsOf(controller, "removeCommonPathRule:"), -1);
}

TEST(Interface, TheControllersOutletsAreProperties) {
    expectAnswers(controller, outlets);
    for (auto name : outlets) {
        name[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(name[0])));
        expectAnswers(controller, {"set" + name + ":"});
    }
}

TEST(Interface, TheDelegateAnswersEveryOperationThatIsKnownByItsName) {
    expectAnswers(
        "AppDelegate", {"applicationWillFinishLaunching:", "applicationDidFinishLaunching:",
                           "applicationWillTerminate:", "applicationShouldTerminateAfterLastWindowClosed:",
                           "application:openFile:", "handleInputSourceChange:",
                           "observeValueForKeyPath:ofObject:change:context:", "darkModeChanged:", "window"});
}

TEST(Interface, TheBundleAnswersAboutLoginItems) {
    expectAnswers(
        "NSBundle", {"isLoginItem", "addToLoginItems", "removeFromLoginItems", "itemRefWithListRef:"});
}

TEST(Interface, ATextServiceIsAnObjectOfTheRootClassWithFourValues) {
    EXPECT_EQ(superclassOf("TerminalService"), "NSObject");
    expectAnswers("TerminalService",
        {"initWithApplicationName:serviceDescription:serviceName:identifier:", "description",
            "applicationName", "setApplicationName:", "serviceDescription",
            "setServiceDescription:", "serviceName", "setServiceName:", "identifier", "setIdentifier:"});
    EXPECT_EQ(argumentsOfClassMethod(
                  "TerminalService", "serviceWithApplicationName:serviceDescription:serviceName:identifier:"),
        4);
    EXPECT_EQ(serviceDescription({"Terminal", "Opens a shell", "New Shell", "org.example.shell"}),
        "<TerminalService: self.applicationName=Terminal, self.serviceDescription=Opens a shell, "
        "self.serviceName=New Shell, self.identifier=org.example.shell>");
}

TEST(Interface, WhatATextServiceLacksIsDescribedAsAMissingObject) {
    EXPECT_EQ(serviceDescription({"", "", "", ""}),
        "<TerminalService: self.applicationName=(null), self.serviceDescription=(null), "
        "self.serviceName=(null), self.identifier=(null)>");
}

TEST(Interface, ATextIsMeasuredInTheSystemFontAndAnEmptyOneAsABlank) {
    const auto small = measured("Words", 12);
    const auto large = measured("Words", 24);
    EXPECT_GT(small.width, 0);
    EXPECT_GT(large.width, 1.8 * small.width);
    EXPECT_GT(large.height, 1.8 * small.height);
    for (const char* empty : {"", static_cast<const char*>(nullptr)}) {
        EXPECT_EQ(measured(empty, 12).width, measured(" ", 12).width);
        EXPECT_EQ(measured(empty, 12).height, measured(" ", 12).height);
    }
    EXPECT_GT(measured("", 12).width, 0);
}

TEST(Interface, EachBuilderMakesWhatItsTableShows) {
    ASSERT_GT(rowCount(RuleCategory::createNewFile), 0);
    for (const auto& [builder, table] :
        {std::pair{"tableViewForCreateNewFile:row:", "createNewFileTableView"},
            std::pair{"tableViewForCopyTo:row:", "copyFilesToTableView"},
            std::pair{"tableViewForCommonPath:row:", "commonPathTableView"},
            std::pair{"tableViewForCustomIcon:row:", "customIconTableView"},
            std::pair{"tableViewForOthers:row:", "othersTableView"}}) {
        EXPECT_TRUE(buildsWhatTheTableShows(builder, table)) << builder;
    }
}

TEST(Interface, ASavedValueIsInTheSuiteAtOnce) {
    saveText("kept", "savedByName");
    EXPECT_EQ(shared("d['savedByName']"), "'kept'");
}

TEST(Interface, WithoutAScriptThereIsNoTaskAndTheEventNamesItsHandler) {
    EXPECT_EQ(scriptTask(), "");
    EXPECT_EQ(handlerInEventFor("openServices"), "openServices");
}

TEST(Interface, AMissingOutletMakesItsStepDoNothing) {
    auto steps = pageActions;
    steps.insert(steps.end(), ruleActions.begin(), ruleActions.end());
    steps.insert(steps.end(), {"awakeFromNib", "viewDidLoad", "start"});
    EXPECT_EQ(raisedWithoutOutlets(steps), "");
}

} // namespace
} // namespace tarnwick::gui
