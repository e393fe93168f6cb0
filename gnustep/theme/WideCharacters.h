#pragma once

@class NSArray;

/// The fonts that characters beyond U+FFFF are looked for in, by name and in this order. Once the display
/// server is there, and before any text is drawn.
void TNUseFontsForWideCharacters(NSArray *names);
