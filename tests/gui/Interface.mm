#include "tests/gui/Interface.h"

#import "adapters/foundation/StringConversion.h"
#import "front/SettingsViewController+Actions.h"
#import "front/SettingsViewController+System.h"
#import "front/TerminalService.h"
#import "front/TextMeasuring.h"
#import "tests/gui/SettingsWindow.h"

#import <objc/runtime.h>

namespace tarnwick::gui {
namespace {

constexpr int hiddenArguments = 2;

Class classNamed(const std::string &name) {
    return NSClassFromString(toNSString(name));
}

SEL selectorNamed(const std::string &name) {
    return NSSelectorFromString(toNSString(name));
}

int argumentsOf(Method method) {
    return method ? static_cast<int>(method_getNumberOfArguments(method)) - hiddenArguments : -1;
}

NSArray *outlets() {
    return [@"Version tabView createNewFileButton copyFilesToButton commonPathToButton customIconButton "
            @"otherOptionButton moreAppButton createNewFileTableView copyFilesToTableView "
            @"commonPathTableView customIconTableView othersTableView removeCreateNewFileViewButton "
            @"removeCopyFilesToViewButton removeCommonPathViewButton removeCustomIconViewButton "
            @"removeOthersViewButton restartFinderButton helpButton tipOfkillFinder"
        componentsSeparatedByString:@" "];
}

NSString *textOrNil(const std::string &text) {
    return text.empty() ? nil : toNSString(text);
}

/// The text of a cell's field, or the state of its control.
NSString *shownIn(NSView *view) {
    for (NSView *inner in [view subviews]) {
        view = inner;
    }
    return [NSString stringWithFormat:@"%@ %ld %@", [view class], static_cast<long>([view tag]),
                     [view respondsToSelector:@selector(stringValue)]
                         ? [static_cast<NSControl *>(view) stringValue]
                         : @""];
}

} // namespace

int argumentsOf(const std::string &className, const std::string &selector) {
    return argumentsOf(class_getInstanceMethod(classNamed(className), selectorNamed(selector)));
}

int argumentsOfClassMethod(const std::string &className, const std::string &selector) {
    return argumentsOf(class_getClassMethod(classNamed(className), selectorNamed(selector)));
}

std::string superclassOf(const std::string &className) {
    return toString(NSStringFromClass([classNamed(className) superclass]));
}

std::string raisedWithoutOutlets(const std::vector<std::string> &selectors) {
    SettingsViewController *controller = settingsController();
    NSMutableDictionary *kept = [NSMutableDictionary dictionary];
    for (NSString *outlet in outlets()) {
        [kept setObject:[controller valueForKey:outlet] forKey:outlet];
        [controller setValue:nil forKey:outlet];
    }
    std::string raised;
    for (const auto &selector : selectors) {
        @try {
            [NSApp sendAction:selectorNamed(selector) to:controller from:nil];
        } @catch (NSException *exception) {
            raised += selector + ": " + toString([exception reason]) + "\n";
        }
    }
    for (NSString *outlet in outlets()) {
        [controller setValue:[kept objectForKey:outlet] forKey:outlet];
    }
    return raised;
}

void saveText(const std::string &text, const std::string &key) {
    [settingsController() saveData:toNSString(text) forKey:toNSString(key)];
}

std::string scriptTask() {
    id task = [settingsController() repairScriptTask];
    return task ? toString(NSStringFromClass([task class])) : "";
}

std::string handlerInEventFor(const std::string &handler) {
    return toString(
        [[settingsController() restartFinderEventDescriptor:toNSString(handler)] objectForKey:@"snam"]);
}

bool buildsWhatTheTableShows(const std::string &builder, const std::string &table) {
    SettingsViewController *controller = settingsController();
    NSTableView *shown = [controller valueForKey:toNSString(table)];
    const SEL selector = selectorNamed(builder);
    using Build = NSView *(*)(id, SEL, NSTableColumn *, NSInteger);
    const auto build = reinterpret_cast<Build>([controller methodForSelector:selector]);
    for (NSTableColumn *column in [shown tableColumns]) {
        NSView *built = build(controller, selector, column, 0);
        NSView *expected = [controller tableView:shown viewForTableColumn:column row:0];
        if (!built || ![shownIn(built) isEqualToString:shownIn(expected)]) {
            return false;
        }
    }
    return [[shown tableColumns] count] > 0;
}

std::string serviceDescription(const std::vector<std::string> &values) {
    NSString *application = textOrNil(values.at(0));
    NSString *description = textOrNil(values.at(1));
    NSString *service = textOrNil(values.at(2));
    NSString *identifier = textOrNil(values.at(3));
    TerminalService *made = [TerminalService serviceWithApplicationName:application
                                                     serviceDescription:description
                                                            serviceName:service
                                                             identifier:identifier];
    TerminalService *set = [[[TerminalService alloc] init] autorelease];
    [set setApplicationName:application];
    [set setServiceDescription:description];
    [set setServiceName:service];
    [set setIdentifier:identifier];
    return [[made description] isEqualToString:[set description]] ? toString([made description])
                                                                  : "two descriptions";
}

TextSize measured(const char *text, double pointSize) {
    const NSSize size = textSize(text ? toNSString(text) : nil, pointSize);
    return {size.width, size.height};
}

} // namespace tarnwick::gui
