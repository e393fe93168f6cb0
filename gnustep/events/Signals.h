#pragma once

/// Makes a request to end (SIGTERM, SIGINT) end the application from its run loop, as its Quit item would.
/// Call once the display server is there: it has handlers of its own.
void TNInstallSignalHandling();
