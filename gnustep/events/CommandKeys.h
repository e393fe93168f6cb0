#pragma once

@class NSEvent;

/// The event itself, or for a key that is pressed together with Command and gives a letter of another
/// alphabet the same with the Latin letter that stands there on an American keyboard, as macOS has it.
NSEvent *TNWithLatinCommandKey(NSEvent *event);
