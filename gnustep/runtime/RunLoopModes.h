#pragma once

#import <AppKit/AppKit.h>

/// The modes in which a program runs while it works, asks in a panel, or follows the pointer; autoreleased.
inline NSArray *TNWorkingModes() {
    return [NSArray
        arrayWithObjects:NSDefaultRunLoopMode, NSModalPanelRunLoopMode, NSEventTrackingRunLoopMode, nil];
}
