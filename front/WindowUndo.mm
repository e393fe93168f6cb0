#import "front/WindowUndo.h"

#import "adapters/foundation/StringConversion.h"
#import "front/ControlMaking.h"

#include "ui/CountText.h"

/// An undo manager whose menu items speak the application's language, which need not be the system's.
@interface LocalizedUndoManager : NSUndoManager
@end

namespace {

NSString *titleOf(std::string_view format, NSString *plain, NSString *name) {
    if ([name length] == 0) {
        return plain;
    }
    const auto localized = tarnwick::toString(tarnwick::localizedText(format));
    return tarnwick::toNSString(tarnwick::filled(localized, {tarnwick::toString(name)}));
}

} // namespace

@implementation LocalizedUndoManager

- (NSString *)undoMenuTitleForUndoActionName:(NSString *)name {
    return titleOf("Undo %@", tarnwick::localizedText("Undo"), name);
}

- (NSString *)redoMenuTitleForUndoActionName:(NSString *)name {
    return titleOf("Redo %@", tarnwick::localizedText("Redo"), name);
}

@end

@implementation WindowUndo

- (instancetype)init {
    self = [super init];
    if (self) {
        _steps = [[LocalizedUndoManager alloc] init];
        _typing = [[LocalizedUndoManager alloc] init];
    }
    return self;
}

- (void)dealloc {
    [_steps release];
    [_typing release];
    [super dealloc];
}

- (NSUndoManager *)steps {
    return _steps;
}

- (NSUndoManager *)windowWillReturnUndoManager:(NSWindow *)window {
    id responder = [window firstResponder];
    return [responder isKindOfClass:[NSText class]] && [responder isFieldEditor] ? _typing : _steps;
}

@end
