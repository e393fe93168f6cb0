#pragma once

#import <Foundation/Foundation.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

/// The elements of a property list; `none` is any other.
enum class TNListElement {
    none,
    plist,
    dictionary,
    array,
    key,
    string,
    integer,
    real,
    date,
    data,
    isTrue,
    isFalse
};

/// Builds the objects of a property list from its elements and texts in the order of the file.
class TNXMLListBuilder {
public:
    explicit TNXMLListBuilder(NSPropertyListReadOptions options);
    ~TNXMLListBuilder();
    TNXMLListBuilder(const TNXMLListBuilder &) = delete;
    TNXMLListBuilder &operator=(const TNXMLListBuilder &) = delete;

    /// Each of these gives nothing, or what is wrong; then none may follow.
    const char *start(TNListElement element);
    const char *take(std::string_view text);
    const char *end();

    /// Nil before there is one. Stays the builder's.
    id value() const { return root_; }

private:
    struct Container {
        TNListElement element;
        /// Where its values and keys begin.
        std::size_t firstValue;
        std::size_t firstKey;
        /// Whether the last key waits for its value.
        bool hasKey;
    };
    struct KnownKey {
        std::string text;
        NSString *key = nil;
    };

    const char *placeProblem(TNListElement element) const;
    const char *finishLeaf();
    const char *finishContainer();
    /// Takes over the reference.
    const char *put(id value);
    NSString *keyOf(const std::string &text);

    Class arrayType_;
    Class dictionaryType_;
    bool leavesAreMutable_;
    /// The key or value that is being read, unless it is a container.
    TNListElement leaf_ = TNListElement::none;
    std::string text_;
    bool isInPlist_ = false;
    std::vector<Container> containers_;
    /// Of all containers that are not complete yet.
    std::vector<id> values_;
    std::vector<id> keys_;
    id root_ = nil;
    /// Most keys come again and again.
    std::array<KnownKey, 128> knownKeys_;
};
