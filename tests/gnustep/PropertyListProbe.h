#pragma once

#include <string>

/// What the tests ask about property lists as the layer reads, writes and keeps them.
namespace tarnwick::probe {

enum class Containers { fixed, changeable };

/// A property list in any form, as the program reads it, in the words of ListDescription.h; "damaged: " and
/// what is wrong for one that cannot be read.
std::string readList(const std::string& bytes);
/// The same for XML in an element `plist`.
std::string readElements(const std::string& elements);
/// The classes of what is read: whether a container, a text and data in it may be changed.
std::string changeableParts(Containers containers);

/// The elements of a list as it is written, without the file around them; "refused: " and why for one that
/// cannot be written. Lists are given in GNUstep's form of text.
std::string writtenElements(const std::string& list);
/// The same for a text of these UTF-16 units, a real number, a date (seconds since 2001), so many arrays one
/// in the other, an object that is no property list, and a dictionary with a number for a key.
std::string writtenText(const std::u16string& units);
std::string writtenReal(double number);
std::string writtenDate(double seconds);
std::string writtenNest(int depth);
std::string writtenForeignObject();
std::string writtenNumberAsKey();

/// A settings file: under "key" the letter, so many times.
std::string serialised(char letter, std::size_t count);
/// The identity of what the parser makes of it, which is never freed; null for what it refuses.
const void* parsed(const std::string& bytes, Containers containers = Containers::fixed);
/// The text under "key" in what the parser makes of it.
std::string parsedText(const std::string& bytes);
/// Whether the values of a list that was written are those that reading the bytes gives.
bool readsBackTheWrittenObjects();
/// The same for a list that is changed afterwards, in a container in it; and for one with a text that XML
/// cannot hold. They are read as they were written.
bool readsBackWhatWasWrittenAndNotWhatChanged();
bool readsAnewWhatXMLCannotHold();

/// Whether a copy that nobody can change is the list itself: of one that cannot be changed, and of one that
/// can, in a text deep inside.
bool keepsWhatCannotChange();
bool copiesWhatCanChange();
/// Whether lists given in GNUstep's form of text are the same, kinds included.
bool areSame(const std::string& one, const std::string& other);

} // namespace tarnwick::probe
