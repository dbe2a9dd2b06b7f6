#pragma once

#include <sys/types.h>

typedef off_t regoff_t;
typedef struct
{
    int re_magic;
    size_t re_nsub;
    char const* re_endp;
    struct re_guts* re_g;
} regex_t;
typedef struct
{
    regoff_t rm_so;
    regoff_t rm_eo;
} regmatch_t;

#define REG_EXTENDED 1

__BEGIN_DECLS
int regcomp(regex_t*, char const*, int);
int regexec(regex_t const*, char const*, size_t, regmatch_t*, int);
void regfree(regex_t*);
__END_DECLS
