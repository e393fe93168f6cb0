#pragma once

#import <Foundation/Foundation.h>

#include "values/PlistValue.h"

#include <array>
#include <string>

namespace tarnwick {

/// Makes the platform's objects of values. The keys of records are the same again and again, and are made
/// once.
class ObjectMaker {
public:
    ObjectMaker() = default;
    ~ObjectMaker();
    ObjectMaker(const ObjectMaker &) = delete;
    ObjectMaker &operator=(const ObjectMaker &) = delete;

    /// A reference to be released.
    id newObject(const PlistValue &value);
    NSDictionary *newDictionary(const PlistDictionary &dictionary);

private:
    struct KnownKey {
        std::string text;
        NSString *object = nil;
    };

    NSArray *newArray(const PlistArray &array);
    NSString *keyOf(const std::string &text);

    std::array<KnownKey, 64> knownKeys_;
};

} // namespace tarnwick
