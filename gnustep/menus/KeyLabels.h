#pragma once

#import <AppKit/AppKit.h>

/// The keys that choose the item, as they are written on a keyboard here: "Shift+Alt+Z". Empty without any.
NSString *TNKeyLabel(NSMenuItem *item);
