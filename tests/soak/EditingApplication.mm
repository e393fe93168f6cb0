// What the plain C++ part needs of the toolkit: the application runs, and its open panels answer by
// themselves.

#import "tests/soak/EditingApplication.h"

#import "adapters/foundation/StringConversion.h"
#import "front/MainInterface.h"
#import "front/SettingsViewController.h"

#include "adapters/foundation/SystemAdapters.h"

#include <objc/runtime.h>

namespace {

const tarnwick::MainInterface *application = nullptr;
NSArray *answer = nil;

/// In place of the panel's own loop: OK at once.
void answerPanel(id, SEL, id block) {
    auto handler = (GSSavePanelCompletionHandler)block;
    handler(NSModalResponseOK);
}

NSArray *chosen(id, SEL) {
    return answer;
}

void replaceMethod(SEL selector, IMP implementation) {
    method_setImplementation(class_getInstanceMethod([NSOpenPanel class], selector), implementation);
}

} // namespace

/// What the window does not show to others.
@interface SettingsViewController (Core)
- (tarnwick::SettingsController &)core;
@end

@implementation SettingsViewController (Core)

- (tarnwick::SettingsController &)core {
    return *_controller;
}

@end

@interface SoakRunner : NSObject {
@private
    std::function<bool()> *_edit;
}
- (id)initWithEdit:(std::function<bool()> *)edit;
- (void)run:(id)sender;
@end

@implementation SoakRunner

- (id)initWithEdit:(std::function<bool()> *)edit {
    self = [super init];
    if (self) {
        _edit = edit;
    }
    return self;
}

/// Edit after edit, with the run loop in between: what is deferred happens, too.
- (void)run:(id)sender {
    if ((*_edit)()) {
        [self performSelector:@selector(run:) withObject:nil afterDelay:0];
    }
}

@end

namespace tarnwick::soak {

int runApplication(int argc, char *argv[], std::function<bool()> edit) {
    @autoreleasepool {
        prepareProcess(argc, argv);
        [NSApplication sharedApplication];
        replaceMethod(@selector(beginWithCompletionHandler:), (IMP)answerPanel);
        replaceMethod(@selector(URLs), (IMP)chosen);
        const MainInterface interface;
        application = &interface;
        SoakRunner *runner = [[[SoakRunner alloc] initWithEdit:&edit] autorelease];
        [runner performSelector:@selector(run:) withObject:nil afterDelay:0.05];
        return NSApplicationMain(argc, const_cast<const char **>(argv));
    }
}

SettingsController &controller() {
    return [application->controller() core];
}

void selectRow(RuleCategory category, long row) {
    NSTableView *table = [application->controller() tableOf:category];
    [table selectRowIndexes:[NSIndexSet indexSetWithIndex:static_cast<NSUInteger>(row)]
        byExtendingSelection:NO];
}

void answerPanelsWith(const std::vector<std::string> &paths) {
    NSMutableArray *urls = [[NSMutableArray alloc] init];
    for (const auto &path : paths) {
        [urls addObject:[NSURL fileURLWithPath:toNSString(path)]];
    }
    [answer release];
    answer = urls;
}

void undo() {
    [[[[application->controller() tabView] window] undoManager] undo];
}

void redo() {
    [[[[application->controller() tabView] window] undoManager] redo];
}

void userSets(std::string_view key, bool on) {
    [[NSUserDefaults standardUserDefaults] setBool:on forKey:toNSString(key)];
}

std::string userName() {
    return toString(NSUserName());
}

} // namespace tarnwick::soak
