#pragma once
#include <mach/mach_init.h>
