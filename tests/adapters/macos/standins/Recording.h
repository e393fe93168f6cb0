#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

/// What the stand-ins for Apple's frameworks were asked, and how they are to answer.
namespace tarnwick::standins {

/// One line a call, in order, with the values that were passed.
std::vector<std::string>& calls();

/// A login item as the session's list holds it: the path that it resolves to; nothing: it does not resolve.
using LoginItem = std::optional<std::string>;

struct Answers {
    /// The registered copies of every application; nothing: no answer at all.
    std::optional<std::vector<std::string>> registeredCopies;
    bool launchServicesFail = false;

    bool sessionListExists = true;
    bool snapshotExists = true;
    std::vector<LoginItem> loginItems;

    bool extensionEnabled = false;

    /// Where the application's bundle carries extensions; nothing: nowhere.
    std::optional<std::string> plugInsFolder;
    /// Of a preference that an administrator has set.
    std::string forcedKey;

    /// The script's file can be loaded.
    bool scriptExists = true;

    /// The running system's version, major first.
    int systemVersion[3] = {10, 11, 0};

    /// The icon of a file has a picture of its own.
    bool iconHasPicture = true;
};
Answers& answers();

/// The application's own bundle, as login items name it.
std::string ownBundlePath();

/// Objects that the stand-ins have made and that are still alive.
int livingObjects();

/// Runs the work inside a pool of its own.
void inPool(const std::function<void()>& work);

/// Runs, each in a pool of its own, what was given to the dispatch queues, in order.
void drainQueues();
/// Runs the real run loop until the condition holds, for at most ten seconds; whether it came to hold.
bool runUntil(const std::function<bool()>& condition);
/// Delivers a distributed notification to its observers.
void deliverNotification(const std::string& name);

/// Forgets calls and answers.
void reset();

} // namespace tarnwick::standins
