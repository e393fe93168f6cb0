#import "adapters/foundation/UndoHistoryAdapter.h"

#import "adapters/foundation/DeferredWork.h"
#import "adapters/foundation/ObjectPointer.h"
#import "adapters/foundation/StringConversion.h"

#include <utility>

/// What the manager calls back.
@interface TNUndoTarget : NSObject {
@private
    std::function<void()> _whenStepIsOver;
}
- (void)takeBack:(TNDeferredWork *)work;
- (void)whenStepIsOver:(std::function<void()>)work;
- (void)stepIsOver:(NSNotification *)notification;
@end

@implementation TNUndoTarget

- (void)takeBack:(TNDeferredWork *)work {
    [work run:nil];
}

- (void)whenStepIsOver:(std::function<void()>)work {
    _whenStepIsOver = std::move(work);
}

- (void)stepIsOver:(NSNotification *)notification {
    if (const auto work = std::exchange(_whenStepIsOver, nullptr)) {
        work();
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
        const BOOL isStep = !isWithinStep();
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
    void replaceAll(std::vector<Step> steps) override {
        if (isWithinStep()) {
            // A manager that is emptied in the middle of a step loses its count of groups.
            [target_.get() whenStepIsOver:[this, steps = std::move(steps)] { replaceAll(steps); }];
            return;
        }
        [manager_.get() removeAllActions];
        for (auto &step : steps) {
            registerUndo(step.name, std::move(step.takeBack));
        }
    }

private:
    bool isWithinStep() const { return [manager_.get() isUndoing] || [manager_.get() isRedoing]; }

    ObjectPointer<NSUndoManager> manager_;
    ObjectPointer<TNUndoTarget> target_;
};

} // namespace

std::unique_ptr<UndoHistory> makeUndoHistory(NSUndoManager *manager) {
    return std::make_unique<FoundationUndoHistory>(manager);
}

} // namespace tarnwick
