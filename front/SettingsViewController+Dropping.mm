#import "front/SettingsViewController+Actions.h"

#import "adapters/foundation/StringConversion.h"

#include <vector>

namespace {

std::vector<tarnwick::DroppedItem> itemsOn(NSPasteboard *pasteboard) {
    std::vector<tarnwick::DroppedItem> items;
    id paths = [pasteboard propertyListForType:NSFilenamesPboardType];
    if (![paths isKindOfClass:[NSArray class]]) {
        return items;
    }
    for (id path in paths) {
        BOOL isFolder = NO;
        if ([path isKindOfClass:[NSString class]] &&
            [[NSFileManager defaultManager] fileExistsAtPath:path isDirectory:&isFolder]) {
            const bool isPackage = [[NSWorkspace sharedWorkspace] isFilePackageAtPath:path];
            items.push_back({tarnwick::toString(path), isFolder && !isPackage});
        }
    }
    return items;
}

} // namespace

@implementation SettingsViewController (Dropping)

- (BOOL)takesItemsOn:(NSPasteboard *)pasteboard forCategory:(tarnwick::RuleCategory)category {
    return !tarnwick::droppablePaths(category, itemsOn(pasteboard)).empty();
}

- (BOOL)addItemsOn:(NSPasteboard *)pasteboard toCategory:(tarnwick::RuleCategory)category {
    return _controller->addDropped(category, itemsOn(pasteboard));
}

@end
