#pragma once

@class NSString;

/// The folder of the defaults files, without touching NSUserDefaults.
NSString *TNDefaultsFolder();

/// Removes the lock that a killed program has left behind, when it is too old to be somebody's at work.
void TNRemoveStaleDefaultsLock();

/// Moves a file that is there but holds no property list dictionary to `<file>.damaged-<n>`, with a log line.
void TNMoveDamagedFileAside(NSString *path);
