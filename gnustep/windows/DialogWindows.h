#pragma once

/// Says of panels that they are dialogues. Once the display server is there.
void TNInstallDialogWindows();
