// How these headers declare an API, and since when macOS has it. Nothing marked: 10.10 or older.
#pragma once

#define TN_SINCE(version) __attribute__((availability(macos, introduced = version)))
#define TN_DEPRECATED(first, last) __attribute__((availability(macos, introduced = first, deprecated = last)))
#define TN_ENUM(type, name)                                                                                  \
    enum name : type name;                                                                                   \
    enum name : type
#define TN_OPTIONS(type, name)                                                                               \
    type name;                                                                                               \
    enum __attribute__((flag_enum)) : type
#define TN_BRIDGED(type) __attribute__((objc_bridge(type)))
