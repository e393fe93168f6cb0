#pragma once

@class NSDate;

/// What a property list may hold, and what it may not.
enum class TNListKind : unsigned char {
    none,
    boolean,
    integer,
    /// One that may be larger than any signed integer.
    unsignedInteger,
    real,
    string,
    data,
    date,
    array,
    dictionary
};

struct TNListType {
    TNListKind kind = TNListKind::none;
    bool isMutable = false;
};

/// Looked up once a class: a toolkit's numbers of one class are of one kind.
TNListType TNListTypeOf(id value);

/// Containers nest no deeper than this in anything that is read or written: far deeper than any settings are,
/// and far from the end of the stack.
constexpr unsigned TNDeepestNesting = 200;
