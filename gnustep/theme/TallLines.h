#pragma once

/// Once the application object is there, and before any text is drawn.
void TNLowerTallLines();
