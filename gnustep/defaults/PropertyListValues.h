#pragma once

@class NSDictionary;
@class NSString;

/// A copy that nothing the caller may change is part of; nil when the value is no property list. Linear in
/// the number of objects.
id TNFrozenCopy(id value);

/// Equal and of the same kinds all the way down: a boolean is neither an integer nor a real number. Nil is
/// equal to nil.
bool TNIsSamePropertyList(id one, id other);

/// The dictionary in a file; nil when there is no file, or when it holds something else or cannot be read.
NSDictionary *TNDictionaryInFile(NSString *path);

/// The value itself; or a copy in which each character of a text that XML cannot hold (most control
/// characters, and the two that are none) is U+FFFD.
id TNStorable(id value);
