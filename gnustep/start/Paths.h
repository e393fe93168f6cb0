#pragma once

/// From now on only a slash separates the parts of a path, and no letter and colon names a drive.
void TNUseUnixPaths();
