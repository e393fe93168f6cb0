#pragma once

#if __OBJC_BOOL_IS_BOOL
typedef bool BOOL;
#else
typedef signed char BOOL;
#endif
#define YES __objc_yes
#define NO __objc_no
#define nil nullptr
#define Nil nullptr

typedef struct objc_selector *SEL;
extern "C" BOOL sel_isEqual(SEL _Nonnull one, SEL _Nonnull other);

typedef long NSInteger;
typedef unsigned long NSUInteger;

#define NS_RETURNS_NOT_RETAINED __attribute__((ns_returns_not_retained))
