// The application itself, its window on the page of copy targets, clicked in the check box of the second row.

#import "bench/app/ClickService.h"
#import "bench/app/DrivenApplication.h"
#import "front/WarningTextField.h"
#import "tests/driving/Driving.h"

namespace {

constexpr NSInteger row = 1;

NSView *checkBoxIn(NSTableView *table) {
    NSView *cell = [table viewAtColumn:[table columnWithIdentifier:@"Enable"] row:row makeIfNecessary:YES];
    return [cell isKindOfClass:[NSControl class]] ? cell : [[cell subviews] objectAtIndex:0];
}

/// The rows in sight whose names are shown as faulty.
long faultyRows(NSTableView *table) {
    const NSRange rows = [table rowsInRect:[table visibleRect]];
    long faulty = 0;
    for (NSUInteger shown = rows.location; shown < NSMaxRange(rows); ++shown) {
        NSView *cell = [table viewAtColumn:[table columnWithIdentifier:@"Note"]
                                       row:static_cast<NSInteger>(shown)
                           makeIfNecessary:YES];
        for (NSView *view in [cell subviews]) {
            faulty += [view isKindOfClass:[WarningTextField class]] &&
                      [static_cast<WarningTextField *>(view) warns];
        }
    }
    return faulty;
}

} // namespace

int main(int argc, char *argv[]) {
    tarnwick::bench::runApplication(argc, argv, [](SettingsViewController *controller) {
        tarnwick::driving::click([controller copyFilesToButton]);
        NSTableView *table = [controller tableOf:tarnwick::RuleCategory::copyFilesTo];
        tarnwick::bench::serveClicks(
            [table] { return checkBoxIn(table); }, [table] { return faultyRows(table); });
    });
}
