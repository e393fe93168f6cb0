#pragma once

/// Keeps a window that is shown again the size it had. Once the display server is there.
void TNInstallFrameOffsets();
