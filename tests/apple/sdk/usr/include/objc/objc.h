// The language's own types. BOOL is a character on Intel and a bool on Apple's processors.
#pragma once

#include <sys/types.h>

typedef struct objc_class* Class;
typedef struct objc_object
{
    Class isa;
}* id;
typedef struct objc_selector* SEL;
typedef void (*IMP)(void);

#if defined(__arm64__)
typedef bool BOOL;
#else
typedef signed char BOOL;
#endif
#define YES __objc_yes
#define NO __objc_no
#define nil nullptr
#define Nil nullptr
