#pragma once

namespace tarnwick {

class LocalPreferences;
class PlistValue;
class SharedPreferences;
class SystemLog;

/// Whether an element of a stored list is a record of which each field is of a kind that is read.
[[nodiscard]] bool isReadableRecord(const PlistValue& element);

/// Keeps what cannot be read before anything overwrites it: for each list key whose
/// stored value is not an array, or holds an element or a field of the wrong type, the original goes under
/// "<list key>.unreadable" in `LocalPreferences`, with one log line that names the key. An original kept
/// earlier is never replaced: a different one goes under "<list key>.unreadable.2" and so on. Sound values
/// are left alone and nothing is written.
void keepUnreadableOriginals(LocalPreferences& local, SystemLog& log);

/// The same for the features that are switched on, the one list that only `SharedPreferences` holds: a value
/// that is no array goes under "arrOfEnableOther.unreadable" in `LocalPreferences`.
void keepUnreadableFeatures(const SharedPreferences& shared, LocalPreferences& local, SystemLog& log);

} // namespace tarnwick
