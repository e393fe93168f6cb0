#pragma once

// Included before every Objective-C++ source on Linux: brings AppKit to what the sources expect of it.
// GNUstep gui 0.29, base 1.28, gcc runtime, clang 14.

// For the gcc runtime the compiler puts every protocol that a header declares into every object file, 19,000
// in all: half of the program, and a twelfth of its launch. Nothing asks for one at run time.
#pragma clang attribute push(__attribute__((objc_non_runtime_protocol)), apply_to = objc_protocol)
#import <AppKit/AppKit.h>
#import <Foundation/Foundation.h>
#pragma clang attribute pop
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
