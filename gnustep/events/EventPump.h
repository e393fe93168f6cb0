#pragma once

/// Makes the run loop handle every event as soon as it is queued. After the application object exists, once.
void TNInstallEventPump();

/// Makes the run loop look at the event queue; before the pump is installed it does nothing.
void TNWakeRunLoop();
