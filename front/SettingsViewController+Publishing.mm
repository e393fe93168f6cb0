#import "front/SettingsViewController+System.h"

#import "adapters/foundation/PlistConversion.h"
#import "adapters/foundation/StringConversion.h"

using tarnwick::RuleCategory;

@implementation SettingsViewController (Publishing)

- (void)saveData:(id)value forKey:(NSString *)key {
    if (const auto converted = tarnwick::toPlistValue(value)) {
        _controller->saveData(*converted, tarnwick::toString(key));
    }
}

- (void)setCreateNewFileToSettings {
    _controller->publish(RuleCategory::createNewFile);
}

- (void)setCopyFilesToSettings {
    _controller->publish(RuleCategory::copyFilesTo);
}

- (void)setCommonPathSettings {
    _controller->publish(RuleCategory::commonPath);
}

- (void)setCustomIconToSettings {
    _controller->publish(RuleCategory::customIcon);
}

- (void)setOthersToSettings {
    _controller->publish(RuleCategory::others);
}

- (void)resetArrOfCreateNewFile {
    _controller->putFactoryListBack(RuleCategory::createNewFile);
}

- (void)resetArrOfCopyFilesTo {
    _controller->putFactoryListBack(RuleCategory::copyFilesTo);
}

- (void)resetArrOfCustomIcon {
    _controller->putFactoryListBack(RuleCategory::customIcon);
}

- (void)resetArrOfOthers {
    _controller->putFactoryListBack(RuleCategory::others);
}

@end
