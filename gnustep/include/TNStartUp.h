#pragma once

#import <Foundation/Foundation.h>

/// What the layer has to know of the program.
struct TNProgram {
    /// Its settings file and its folder of scripts bear this name.
    NSString *identifier = nil;
    /// The path of the program that opens addresses and files; nil for the desktop's.
    NSString *opener = nil;
    /// Whether an exception that nobody catches ends the program, with status 70, also one of an event
    /// handler.
    bool endsAtExceptions = false;
};

/// What a program does before it touches defaults or the application object: process name, left-over locks
/// and damaged files, initial defaults, application object, exceptions, fonts, theme. Once, first of all in
/// `main`.
void TNPrepareProcess(const TNProgram &program);

/// The appearance of the window's controls; part of the above.
void TNInstallTheme();
