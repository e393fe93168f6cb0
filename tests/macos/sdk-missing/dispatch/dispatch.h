#pragma once

#include <Declaring.h>

typedef void (^dispatch_block_t)(void);
/// An object type in Apple's headers; nothing here retains one.
typedef struct dispatch_queue_s *dispatch_queue_t;

#define DISPATCH_QUEUE_PRIORITY_DEFAULT 0

extern "C" {
/// No library exports the function; what it gives is exported.
extern struct dispatch_queue_s _dispatch_main_q;
inline dispatch_queue_t _Nonnull dispatch_get_main_queue(void) {
    return &_dispatch_main_q;
}
dispatch_queue_t _Nonnull dispatch_get_global_queue(long identifier, unsigned long flags);
void dispatch_async(dispatch_queue_t _Nonnull queue, dispatch_block_t _Nonnull block);
}
