#pragma once

/// Whether the interface is to be read from right to left: by the two settings with which macOS turns around
/// an application that has no language read in that way, `AppleTextDirection` and
/// `NSForceRightToLeftWritingDirection`. The same for the whole run.
bool TNReadsFromRightToLeft();
