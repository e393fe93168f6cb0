#pragma once

#include <functional>
#include <string>
#include <vector>

/// What the tests ask of the layer, in terms of the standard library.
namespace tarnwick::probe {

/// The test's own folder of defaults files.
std::string defaultsFolder();
std::string libraryFolder();

/// How often an object was still alive while a copied block that had captured it was used, and whether it was
/// freed with the block.
struct CaptureResult {
    bool aliveWhileBlockLives = false;
    bool freedWithBlock = false;
};
CaptureResult captureInCopiedBlock();
/// The value of a `__block` variable after a copied block has added to it `times` times.
int sumInBlockVariable(int times);
/// The results of blocks that were put into an array and taken out again after their frame had gone.
std::vector<int> resultsOfStoredBlocks(int count);

/// Sets a value of every property list kind and writes the suite.
bool writeEveryKind(const std::string& suite);
void setSuiteString(const std::string& suite, const std::string& key, const std::string& value);
void setSuiteBoolean(const std::string& suite, const std::string& key, bool value);
void removeSuiteKey(const std::string& suite, const std::string& key);
bool synchronizeSuite(const std::string& suite);
/// Sets and writes a list of so many records under "list"; they are equal for equal marks. A mark may be a
/// number or a boolean, see `MarkKind`.
enum class MarkKind { integer, boolean };
bool writeRecords(const std::string& suite, int count, MarkKind kind);
/// From a new handle; "(none)" when there is no such string.
std::string suiteString(const std::string& suite, const std::string& key);
/// Runs the run loop until the file exists, for at most ten seconds.
bool waitForFile(const std::string& path);

/// The changes that an observer of a key of the standard domain was told of, as descriptions of the new
/// values.
std::vector<std::string> observedChanges();
/// The same, while `work` changes the domain's file and the program synchronises it afterwards.
std::vector<std::string> observedChangesByOthers(const std::function<void()>& work);

/// The start-up of a program, in this process, and what the standard domain then holds.
void startUp();
std::string standardString(const std::string& key);
void setStandardString(const std::string& key, const std::string& value);
bool synchronizeStandardDomain();

/// The names of the classes that pictures are offered to, after one has been looked for.
std::vector<std::string> imageReaders();

/// Paths; empty for none.
std::string groupContainer(const std::string& identifier);
std::string scriptsFolder();

} // namespace tarnwick::probe
