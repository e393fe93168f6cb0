#import "adapters/foundation/UndoHistoryAdapter.h"

#import "adapters/foundation/DeferredWork.h"
#import "adapters/foundation/ObjectPointer.h"
#import "adapters/foundation/StringConversion.h"

#include <utility>

/// What the manager calls back.
@interface TNUndoTarget : NSObject {
@private
    BOOL _clearsManager;
}
- (void)takeBack:(TNDeferredWork *)work;
- (void)clear:(NSUndoManager *)manager;
- (void)stepIsOver:(NSNotification *)notification;
@end

@implementation TNUndoTarget

- (void)takeBack:(TNDeferredWork *)work {
    [work run:nil];
}

- (void)clear:(NSUndoManager *)manager {
    _clearsManager = [manager isUndoing] || [manager isRedoing];
    if (!_clearsManager) {
        [manager removeAllActions];
    }
}

/// A manager that is emptied in the middle of a step loses its count of groups.
- (void)stepIsOver:(NSNotification *)notification {
    if (_clearsManager) {
        [self clear:[notification object]];
    }
}

@end

namespace tarnwick {
namespace {

class FoundationUndoHistory final : public UndoHistory {
public:
    explicit FoundationUndoHistory(NSUndoManager *manager)
        : manager_(ObjectPointer<NSUndoManager>::retaining(manager)),
          target_(ObjectPointer<TNUndoTarget>::adopting([[TNUndoTarget alloc] init])) {
        [manager setGroupsByEvent:NO];
        for (NSString *name :
            {NSUndoManagerDidUndoChangeNotification, NSUndoManagerDidRedoChangeNotification}) {
            [[NSNotificationCenter defaultCenter] addObserver:target_.get()
                                                     selector:@selector(stepIsOver:)
                                                         name:name
                                                       object:manager];
        }
    }
    ~FoundationUndoHistory() override {
        [[NSNotificationCenter defaultCenter] removeObserver:target_.get()];
        [manager_.get() removeAllActionsWithTarget:target_.get()];
    }
    FoundationUndoHistory(const FoundationUndoHistory &) = delete;
    FoundationUndoHistory &operator=(const FoundationUndoHistory &) = delete;

    void registerUndo(std::string_view name, std::function<void()> takeBack) override {
        NSUndoManager *manager = manager_.get();
        // Within a step there is a group already.
        const BOOL isStep = ![manager isUndoing] && ![manager isRedoing];
        if (isStep) {
            [manager beginUndoGrouping];
        }
        [manager registerUndoWithTarget:target_.get()
                               selector:@selector(takeBack:)
                                 object:[TNDeferredWork deferredWork:std::move(takeBack)]];
        [manager setActionName:toNSString(name)];
        if (isStep) {
            [manager endUndoGrouping];
        }
    }
    void clear() override { [target_.get() clear:manager_.get()]; }

private:
    ObjectPointer<NSUndoManager> manager_;
    ObjectPointer<TNUndoTarget> target_;
};

} // namespace

std::unique_ptr<UndoHistory> makeUndoHistory(NSUndoManager *manager) {
    return std::make_unique<FoundationUndoHistory>(manager);
}

} // namespace tarnwick
