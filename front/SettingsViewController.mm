#import "front/SettingsViewController.h"

#import "adapters/foundation/PlistConversion.h"
#import "adapters/foundation/StringConversion.h"
#import "front/SettingsOutlets.h"

#include "app/LoginItemRefusal.h"
#include "platform/Platform.h"
#include "ui/SettingsViewController.h"

@implementation SettingsViewController

- (instancetype)initWithPlatform:(const tarnwick::Platform &)platform {
    self = [super initWithNibName:nil bundle:nil];
    if (self) {
        tarnwick::refuseLoginItemStart(platform);
        _controller = new tarnwick::SettingsViewController(platform);
    }
    return self;
}

- (void)dealloc {
    delete _controller;
    [_outlets release];
    [super dealloc];
}

- (void)setOutlets:(SettingsOutlets *)outlets {
    [outlets retain];
    [_outlets release];
    _outlets = outlets;
    _controller->connect([outlets coreOutlets]);
}

- (SettingsOutlets *)outlets {
    return _outlets;
}

- (void)endEditing:(NSNotification *)notification {
    _controller->endEditing();
}

- (tarnwick::SettingsViewController *)controller {
    return _controller;
}

- (void)awakeFromNib {
    _controller->awakeFromNib();
}

- (void)viewDidLoad {
    [super viewDidLoad];
    _controller->viewDidLoad();
}

- (void)observeValueForKeyPath:(NSString *)keyPath
                      ofObject:(id)object
                        change:(NSDictionary *)change
                       context:(void *)context {
    (void)object;
    (void)context;
    const auto value = tarnwick::toPlistValue([change objectForKey:NSKeyValueChangeNewKey]);
    _controller->observeValue(tarnwick::toString(keyPath), value.value_or(tarnwick::PlistValue(false)));
}

@end
