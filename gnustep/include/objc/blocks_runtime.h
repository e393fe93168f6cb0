#pragma once

// The block runtime's two functions, which clang's code calls and Foundation's headers look for here.
// Defined in Blocks.mm.

extern "C" void* _Block_copy(const void* block);
extern "C" void _Block_release(const void* block);

#define Block_copy(...) ((__typeof(__VA_ARGS__))_Block_copy((const void*)(__VA_ARGS__)))
#define Block_release(...) _Block_release((const void*)(__VA_ARGS__))
