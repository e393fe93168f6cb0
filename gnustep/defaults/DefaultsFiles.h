#pragma once

@class NSDictionary;
@class NSString;

/// The folder of the defaults files, without touching NSUserDefaults.
NSString *TNDefaultsFolder();
/// The file of a domain in it.
NSString *TNSettingsFileOf(NSString *domain);

/// Waits until nobody holds the lock of the defaults files, nor that of the names of message ports, and
/// removes one that a killed program has left behind: it is too old, three seconds, to be somebody's at work.
void TNRemoveStaleLocks();

/// Whether a settings file is there that this user may not open. It stays as it is: what it holds is not
/// known, so nothing may be written in its place.
bool TNSettingsFileIsClosed(NSString *path);

/// The content of a settings file; nil without one. A file that is there but holds no property list
/// dictionary is moved to `<file>.damaged-<n>`, with a log line, and counts as none. One that is closed
/// counts as none too; the first time a log line says so.
NSDictionary *TNReadSettingsFile(NSString *path);
