// macOS's C library has other objects behind the names.
#pragma once
#include_next <stdio.h>
#undef stdin
#undef stdout
#undef stderr
extern "C" FILE *__stdinp, *__stdoutp, *__stderrp;
#define stdin __stdinp
#define stdout __stdoutp
#define stderr __stderrp
