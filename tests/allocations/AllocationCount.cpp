#include "tests/allocations/AllocationCount.h"

#include <cstdlib>
#include <new>

namespace {

tarnwick::testing::Allocations total;

} // namespace

// For the whole program; the array and the nothrow forms lead here.
void* operator new(std::size_t size) {
    ++total.count;
    total.bytes += size;
    if (void* memory = std::malloc(size == 0 ? 1 : size)) {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace tarnwick::testing {

Allocations allocationsOf(const std::function<void()>& work) {
    const auto before = total;
    work();
    return {total.count - before.count, total.bytes - before.bytes};
}

} // namespace tarnwick::testing
