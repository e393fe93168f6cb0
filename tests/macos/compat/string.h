// This C library says what the linker knows its overloads by; on macOS an underscore stands ahead of that.
#pragma push_macro("__asm")
#define __asm(name) __asm__("_" name)
#include_next <string.h>
#pragma pop_macro("__asm")
