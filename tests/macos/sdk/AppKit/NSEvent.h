#pragma once

#import <AppKit/NSResponder.h>

#pragma clang assume_nonnull begin

typedef TN_OPTIONS(NSUInteger, NSEventModifierFlags){
    NSEventModifierFlagShift = 1 << 17,
    NSEventModifierFlagControl = 1 << 18,
    NSEventModifierFlagOption = 1 << 19,
    NSEventModifierFlagCommand = 1 << 20,
};

enum {
    NSEnterCharacter = 0x0003,
    NSBackspaceCharacter = 0x0008,
    NSCarriageReturnCharacter = 0x000d,
    NSDeleteCharacter = 0x007f,
};
enum : unichar {
    NSUpArrowFunctionKey = 0xF700,
    NSDownArrowFunctionKey = 0xF701,
    NSDeleteFunctionKey = 0xF728,
    NSMenuFunctionKey = 0xF735
};

@interface NSEvent : NSObject <NSCopying>
@property (readonly) NSPoint locationInWindow;
@property (nullable, readonly, copy) NSString *characters;
@property (nullable, readonly, copy) NSString *charactersIgnoringModifiers;
@property (readonly) NSEventModifierFlags modifierFlags;
@property (readonly) NSTimeInterval timestamp;
@end

#pragma clang assume_nonnull end
