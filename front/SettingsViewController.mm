#import "front/SettingsViewController.h"

#import "adapters/foundation/PlistConversion.h"
#import "adapters/foundation/StringConversion.h"
#import "front/OutletWindow.h"
#import "front/SettingsWindowBuilder.h"

#include "app/LoginItemRefusal.h"
#include "platform/Ports.h"

using tarnwick::Page;
using tarnwick::PerCategory;
using tarnwick::PerPage;
using tarnwick::RuleCategory;

@implementation SettingsViewController

@synthesize Version = _version, tabView = _tabView;
@synthesize createNewFileButton = _createNewFileButton, copyFilesToButton = _copyFilesToButton,
            commonPathToButton = _commonPathToButton, customIconButton = _customIconButton,
            otherOptionButton = _otherOptionButton, moreAppButton = _moreAppButton;
@synthesize createNewFileTableView = _createNewFileTableView, copyFilesToTableView = _copyFilesToTableView,
            commonPathTableView = _commonPathTableView, customIconTableView = _customIconTableView,
            othersTableView = _othersTableView;
@synthesize removeCreateNewFileViewButton = _removeCreateNewFileViewButton,
            removeCopyFilesToViewButton = _removeCopyFilesToViewButton,
            removeCommonPathViewButton = _removeCommonPathViewButton,
            removeCustomIconViewButton = _removeCustomIconViewButton,
            removeOthersViewButton = _removeOthersViewButton;
@synthesize restartFinderButton = _restartFinderButton, helpButton = _helpButton,
            tipOfkillFinder = _tipOfkillFinder, previewButton = _previewButton;

- (instancetype)initWithPorts:(const tarnwick::Ports &)ports {
    self = [super initWithNibName:nil bundle:nil];
    if (self) {
        tarnwick::refuseLoginItemStart(ports.bundle, ports.panels, ports.process);
        _window = std::make_unique<tarnwick::OutletWindow>(self);
        _controller = std::make_unique<tarnwick::SettingsController>(ports, *_window);
        _isFinding = NO;
    }
    return self;
}

- (void)dealloc {
    [_findBar release];
    [_tipOfkillFinder release];
    [super dealloc];
}

- (void)loadView {
    [self setView:tarnwick::makeSettingsView(self, _minimumWidth)];
}

- (CGFloat)minimumWidth {
    return _minimumWidth;
}

- (void)awakeFromNib {
    _controller->awakeFromNib();
    _controller->warnings().watch();
}

- (void)viewDidLoad {
    [super viewDidLoad];
    _controller->viewDidLoad();
}

- (void)start {
    _controller->start();
}

/// Deliberately nothing: application activations are of no consequence here.
- (void)appChanged:(NSNotification *)notification {
}

- (void)applicationActivated {
    _controller->warnings().applicationActivated();
}

- (void)endEditing:(NSNotification *)notification {
    _controller->endEditing();
}

- (void)removeHeldFiles:(NSNotification *)notification {
    _controller->removeHeldFiles();
}

- (void)observeValueForKeyPath:(NSString *)keyPath
                      ofObject:(id)object
                        change:(NSDictionary *)change
                       context:(void *)context {
    const auto value = tarnwick::toPlistValue([change objectForKey:NSKeyValueChangeNewKey]);
    _controller->switchChanged(tarnwick::toString(keyPath), value.value_or(tarnwick::PlistValue(false)));
}

@end

@implementation SettingsViewController (Outlets)

- (NSTableView **)tablePlaceOf:(RuleCategory)category {
    const PerCategory<NSTableView **> places(&_createNewFileTableView, &_copyFilesToTableView,
        &_commonPathTableView, &_customIconTableView, &_othersTableView);
    return places[category];
}

- (NSButton **)removeButtonPlaceOf:(RuleCategory)category {
    const PerCategory<NSButton **> places(&_removeCreateNewFileViewButton, &_removeCopyFilesToViewButton,
        &_removeCommonPathViewButton, &_removeCustomIconViewButton, &_removeOthersViewButton);
    return places[category];
}

- (NSButton **)buttonPlaceOf:(Page)page {
    const PerPage<NSButton **> places(&_createNewFileButton, &_copyFilesToButton, &_commonPathToButton,
        &_customIconButton, &_otherOptionButton, &_moreAppButton);
    return places[page];
}

- (NSTableView *)tableOf:(RuleCategory)category {
    return *[self tablePlaceOf:category];
}

- (NSButton *)removeButtonOf:(RuleCategory)category {
    return *[self removeButtonPlaceOf:category];
}

- (void)setTable:(NSTableView *)table removeButton:(NSButton *)button ofCategory:(RuleCategory)category {
    *[self tablePlaceOf:category] = table;
    *[self removeButtonPlaceOf:category] = button;
}

- (std::optional<RuleCategory>)categoryOf:(id)table {
    for (const auto category : tarnwick::allRuleCategories) {
        if (table && [self tableOf:category] == table) {
            return category;
        }
    }
    return std::nullopt;
}

- (NSButton *)buttonOf:(Page)page {
    return *[self buttonPlaceOf:page];
}

- (void)setButton:(NSButton *)button ofPage:(Page)page {
    *[self buttonPlaceOf:page] = button;
}

@end
