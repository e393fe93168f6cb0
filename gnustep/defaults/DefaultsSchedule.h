#pragma once

/// From now on a change of the standard domain is on disk half a second later, synchronised or not. Once, in
/// a program whose main run loop will run.
void TNWriteDefaultsPromptly();
