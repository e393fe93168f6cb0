#pragma once

#import <Foundation/Foundation.h>
#import <QuartzCore/QuartzCore.h>

#import "NSApplication.h"
#import "NSControls.h"
#import "NSDrawing.h"
#import "NSEvent.h"
#import "NSMenu.h"
#import "NSPanels.h"
#import "NSPasteboard.h"
#import "NSTableView.h"
#import "NSView.h"
#import "NSWindow.h"
#import "NSWorkspace.h"
