// GoogleTest includes it.
#pragma once
extern "C" {
int* _NSGetArgc(void);
char*** _NSGetArgv(void);
}
