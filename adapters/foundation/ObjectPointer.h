#pragma once

#import <Foundation/Foundation.h>

#include <utility>

namespace tarnwick {

/// Owns one reference to an Objective-C object.
template <typename Object>
class ObjectPointer {
public:
    ObjectPointer() = default;
    /// Takes over the reference that the caller owns.
    [[nodiscard]] static ObjectPointer adopting(Object *object) { return ObjectPointer(object); }
    /// Adds a reference of its own.
    [[nodiscard]] static ObjectPointer retaining(Object *object) { return ObjectPointer([object retain]); }

    ObjectPointer(const ObjectPointer &other) : object_([other.object_ retain]) {}
    ObjectPointer(ObjectPointer &&other) noexcept : object_(std::exchange(other.object_, nil)) {}
    ObjectPointer &operator=(ObjectPointer other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~ObjectPointer() { [object_ release]; }

    [[nodiscard]] Object *get() const { return object_; }

private:
    explicit ObjectPointer(Object *object) : object_(object) {}
    Object *object_ = nil;
};

} // namespace tarnwick
