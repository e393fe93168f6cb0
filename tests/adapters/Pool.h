#pragma once

#include <memory>

namespace tarnwick::testing {

/// An autorelease pool for the life of the object; begin and end nest.
class Pool {
public:
    Pool();
    ~Pool();
    Pool(const Pool&) = delete;
    Pool& operator=(const Pool&) = delete;

private:
    void* pool_;
};

} // namespace tarnwick::testing
