#pragma once

@class NSEvent;

/// The event itself, or for a key that is pressed together with Command, and gives a letter of another
/// alphabet or no digit where others have one, the same with what stands there on an American keyboard, as
/// macOS has it.
NSEvent *TNWithLatinCommandKey(NSEvent *event);
