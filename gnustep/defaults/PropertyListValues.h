#pragma once

/// A copy that nobody can change, with whatever of the value can change no more as it is; nil when the value
/// is no property list. Linear in the number of objects.
id TNFrozenCopy(id value);

/// Equal and of the same kinds all the way down: a boolean is neither an integer nor a real number, and texts
/// are equal when their characters are, not when they only look the same. Nil is equal to nil.
bool TNIsSamePropertyList(id one, id other);
