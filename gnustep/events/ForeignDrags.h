#pragma once

/// Lets windows take files that other programs drag. Once the display server is there.
void TNInstallForeignDrags();
