// Kinds of characters, as the C++ library's facets name them.
#pragma once

#include <sys/types.h>

typedef int __darwin_wint_t;
typedef int ct_rune_t;
typedef int rune_t;
typedef int wint_t;

#define _CTYPE_A 0x00000100L
#define _CTYPE_C 0x00000200L
#define _CTYPE_D 0x00000400L
#define _CTYPE_G 0x00000800L
#define _CTYPE_L 0x00001000L
#define _CTYPE_P 0x00002000L
#define _CTYPE_S 0x00004000L
#define _CTYPE_U 0x00008000L
#define _CTYPE_X 0x00010000L
#define _CTYPE_B 0x00020000L
#define _CTYPE_R 0x00040000L
