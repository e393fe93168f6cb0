#pragma once

@class NSData;
@class NSString;

/// Whether the path is that of a file in the folder of settings files.
bool TNIsSettingsFile(NSString *path);

/// Puts a file in place that is either the old one or wholly the new one, also after a power failure; only
/// its owner may read it. When it cannot be written, the old one stays, and errno says why.
bool TNReplaceFile(NSString *path, NSData *content);
