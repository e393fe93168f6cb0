#include "tests/adapters/UndoProbe.h"

#import "adapters/foundation/ObjectPointer.h"
#import "adapters/foundation/StringConversion.h"
#import "adapters/foundation/UndoHistoryAdapter.h"

namespace tarnwick::testing {

struct UndoProbe::Parts {
    ObjectPointer<NSUndoManager> manager =
        ObjectPointer<NSUndoManager>::adopting([[NSUndoManager alloc] init]);
    std::unique_ptr<UndoHistory> history = makeUndoHistory(manager.get());
};

UndoProbe::UndoProbe() : parts_(std::make_unique<Parts>()) {}
UndoProbe::~UndoProbe() = default;

UndoHistory &UndoProbe::history() {
    return *parts_->history;
}

void UndoProbe::undo() {
    [parts_->manager.get() undo];
}

void UndoProbe::redo() {
    [parts_->manager.get() redo];
}

std::string UndoProbe::undoName() const {
    NSUndoManager *manager = parts_->manager.get();
    return [manager canUndo] ? toString([manager undoActionName]) : std::string();
}

std::string UndoProbe::redoName() const {
    NSUndoManager *manager = parts_->manager.get();
    return [manager canRedo] ? toString([manager redoActionName]) : std::string();
}

} // namespace tarnwick::testing
