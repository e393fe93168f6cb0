#pragma once

@class NSString;

/// From now on addresses and files are opened by the program at this path; by the same as before when it is
/// nil, at first the desktop's opener.
void TNUseOpener(NSString *path);
