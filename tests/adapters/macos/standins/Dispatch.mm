#include "Recording.h"

#include <utility>

using namespace tarnwick::standins;

struct dispatch_queue_s {
    const char *name;
};

namespace {

dispatch_queue_s globalQueue{"global"};

std::vector<dispatch_block_t> &waiting() {
    static std::vector<dispatch_block_t> blocks;
    return blocks;
}

} // namespace

dispatch_queue_s _dispatch_main_q{"main"};

dispatch_queue_t dispatch_get_global_queue(long identifier, unsigned long flags) {
    record(@"dispatch_get_global_queue(%ld, %lu)", identifier, flags);
    return &globalQueue;
}

void dispatch_async(dispatch_queue_t queue, dispatch_block_t block) {
    record(@"dispatch_async(%s)", queue->name);
    runLater(block);
}

namespace tarnwick::standins {

void runLater(dispatch_block_t work) {
    waiting().push_back(Block_copy(work));
}

void drainQueues() {
    for (dispatch_block_t block : std::exchange(waiting(), {})) {
        @autoreleasepool {
            block();
        }
        Block_release(block);
    }
}

} // namespace tarnwick::standins
