#pragma once

@class NSDictionary;
@class NSString;

/// The folder of the defaults files, without touching NSUserDefaults.
NSString *TNDefaultsFolder();

/// Waits until nobody holds the lock of the defaults files, and removes one that a killed program has left
/// behind: it is too old, three seconds, to be somebody's at work.
void TNRemoveStaleDefaultsLock();

/// The content of a settings file; nil without one. A file that is there but holds no property list
/// dictionary is moved to `<file>.damaged-<n>`, with a log line, and counts as none.
NSDictionary *TNReadSettingsFile(NSString *path);
