#pragma once

/// From now on a change of the standard domain is on disk half a second later, synchronised or not. Once, in
/// a program whose main run loop will run.
void TNWriteDefaultsPromptly();

/// Writes at once what of the standard domain and of the suites is still only in memory.
void TNWriteAllDefaults();
