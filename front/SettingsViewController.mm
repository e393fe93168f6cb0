#import "front/SettingsViewController.h"

#import "adapters/foundation/PlistConversion.h"
#import "adapters/foundation/StringConversion.h"
#import "front/OutletWindow.h"

#include "app/LoginItemRefusal.h"
#include "platform/Ports.h"

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
            tipOfkillFinder = _tipOfkillFinder;

- (instancetype)initWithPorts:(const tarnwick::Ports &)ports {
    self = [super initWithNibName:nil bundle:nil];
    if (self) {
        tarnwick::refuseLoginItemStart(ports.bundle, ports.panels, ports.process);
        _window = std::make_unique<tarnwick::OutletWindow>(self);
        _controller = std::make_unique<tarnwick::SettingsController>(ports, *_window);
    }
    return self;
}

- (void)dealloc {
    [_tipOfkillFinder release];
    [super dealloc];
}

- (void)awakeFromNib {
    _controller->awakeFromNib();
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

- (void)endEditing:(NSNotification *)notification {
    _controller->endEditing();
}

- (void)observeValueForKeyPath:(NSString *)keyPath
                      ofObject:(id)object
                        change:(NSDictionary *)change
                       context:(void *)context {
    const auto value = tarnwick::toPlistValue([change objectForKey:NSKeyValueChangeNewKey]);
    _controller->switchChanged(tarnwick::toString(keyPath), value.value_or(tarnwick::PlistValue(false)));
}

@end
