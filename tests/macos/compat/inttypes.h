// The formats of 64 bits as macOS has them: see bits/stdint-intn.h.
#pragma once
#include_next <inttypes.h>
#undef __PRI64_PREFIX
#define __PRI64_PREFIX "ll"
