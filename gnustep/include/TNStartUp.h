#pragma once

/// What a program does before it touches defaults or the application object: process name, left-over locks
/// and damaged files, initial defaults, application object, exceptions, fonts, theme. Once, first of all in
/// `main`.
void TNPrepareProcess(int argc, char** argv);

/// The appearance of the window's controls; part of the above.
void TNInstallTheme();
