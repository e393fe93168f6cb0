// The fixed-width integers as macOS defines them: 64 bits are `long long` there and `long` in this C library.
#pragma once
typedef __INT8_TYPE__ int8_t;
typedef __INT16_TYPE__ int16_t;
typedef __INT32_TYPE__ int32_t;
typedef __INT64_TYPE__ int64_t;
