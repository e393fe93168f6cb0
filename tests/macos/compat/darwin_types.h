// The fixed-width integers as macOS defines them: 64 bits are `long long` there and `long` in this C library.
#pragma once
#define _BITS_STDINT_INTN_H 1
#define _BITS_STDINT_UINTN_H 1
typedef __INT8_TYPE__ int8_t;
typedef __INT16_TYPE__ int16_t;
typedef __INT32_TYPE__ int32_t;
typedef __INT64_TYPE__ int64_t;
typedef __UINT8_TYPE__ uint8_t;
typedef __UINT16_TYPE__ uint16_t;
typedef __UINT32_TYPE__ uint32_t;
typedef __UINT64_TYPE__ uint64_t;
#include <inttypes.h>
#undef __PRI64_PREFIX
#define __PRI64_PREFIX "ll"
