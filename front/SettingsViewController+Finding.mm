#import "front/SettingsViewController+Finding.h"

#import "adapters/foundation/StringConversion.h"
#import "front/FindBar.h"
#import "front/KeyViewLoop.h"
#import "front/SettingsViewController+Actions.h"

using tarnwick::SearchStep;

@implementation SettingsViewController (Finding)

- (BOOL)table:(NSTableView *)table takesTypedKey:(NSEvent *)event {
    const auto category = [self categoryOf:table];
    return category &&
           _controller->finding().typed(*category, tarnwick::toString([event characters]), [event timestamp]);
}

- (BOOL)table:(NSTableView *)table takesErasingKey:(NSEvent *)event {
    const auto category = [self categoryOf:table];
    return category && _controller->finding().erased(*category, [event timestamp]);
}

- (NSTableView *)shownTable {
    const auto category = [self shownCategory];
    return category ? [self tableOf:*category] : nil;
}

- (void)takeFindBarAway {
    [_findBar showAbove:nil];
}

- (void)placeFindBar {
    if (_isFinding) {
        [_findBar showAbove:[self shownTable]];
    }
}

- (BOOL)canShowFindBar {
    return [self shownCategory].has_value();
}

- (void)showFindBar:(id)sender {
    if (![self canShowFindBar]) {
        return;
    }
    _controller->endEditing();
    if (!_findBar) {
        _findBar = [[FindBar alloc] initWithController:self];
    }
    _isFinding = YES;
    [self placeFindBar];
    tarnwick::linkKeyViews(_tabView);
    [_findBar takeKeyboard];
}

- (void)closeFindBar:(id)sender {
    if (!_isFinding) {
        return;
    }
    _isFinding = NO;
    [self takeFindBarAway];
    tarnwick::linkKeyViews(_tabView);
    [[_tabView window] makeFirstResponder:[self shownTable]];
}

- (BOOL)canFindAgain {
    return [self shownCategory] && _controller->finding().canStep();
}

- (void)find:(SearchStep)step {
    if (const auto category = [self shownCategory]) {
        _controller->finding().step(*category, step);
    }
}

- (void)findNextRule:(id)sender {
    [self find:SearchStep::next];
}

- (void)findPreviousRule:(id)sender {
    [self find:SearchStep::previous];
}

- (void)lookFor:(NSString *)text {
    if (const auto category = [self shownCategory]) {
        _controller->finding().lookFor(*category, tarnwick::toString(text));
    }
}

- (NSString *)foundText {
    const auto category = [self shownCategory];
    return category ? tarnwick::toNSString(_controller->finding().count(*category)) : @"";
}

@end
