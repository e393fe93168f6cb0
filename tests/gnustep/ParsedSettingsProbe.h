#pragma once

#include <string>

/// What the tests ask about property lists that are parsed more than once.
namespace tarnwick::probe {

enum class Containers { fixed, changeable };

/// A property list as a settings file holds it: under "key" the letter, so many times.
std::string serialised(char letter, std::size_t count);

/// The identity of what the parser makes of it, which is never freed; null for what it refuses.
const void* parsed(const std::string& bytes, Containers containers = Containers::fixed);

/// The text under "key" in what the parser makes of it.
std::string parsedText(const std::string& bytes);

/// Whether the values of a domain that was written to its file are those that reading the file gives.
bool readsBackTheWrittenObjects();

} // namespace tarnwick::probe
