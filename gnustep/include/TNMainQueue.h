#pragma once

/// Runs the block on the main thread, in the run loop's default, modal or tracking mode; returns at once.
void TNOnMain(void (^block)(void));
