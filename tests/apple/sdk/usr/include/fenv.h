#pragma once

#include <sys/cdefs.h>

typedef struct
{
    unsigned long state[2];
} fenv_t;
typedef unsigned short fexcept_t;

__BEGIN_DECLS
int feclearexcept(int);
int fegetexceptflag(fexcept_t*, int);
int feraiseexcept(int);
int fesetexceptflag(fexcept_t const*, int);
int fetestexcept(int);
int fegetround(void);
int fesetround(int);
int fegetenv(fenv_t*);
int feholdexcept(fenv_t*);
int fesetenv(fenv_t const*);
int feupdateenv(fenv_t const*);
__END_DECLS
