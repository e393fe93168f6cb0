#pragma once

// Included before every Objective-C++ source on Linux: brings AppKit to what the sources expect of it.
// GNUstep gui 0.29, base 1.28, gcc runtime, clang 14.

#import <AppKit/AppKit.h>
#import <Foundation/Foundation.h>
#import <objc/blocks_runtime.h>

// @YES and @NO need the compiler's own constants.
#undef YES
#undef NO
#define YES __objc_yes
#define NO __objc_no

#import "TNAdditions.h"
#import "TNConstants.h"

// Missing: view-based tables, as of GNUstep GUI 0.29.
#import "TNTableView.h"
#define NSTableView TNTableView
