// macOS's C library has another function behind the name.
#pragma once
#include_next <errno.h>
#undef errno
extern "C" int* __error(void);
#define errno (*__error())
