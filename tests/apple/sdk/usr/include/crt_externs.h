#pragma once

#include <sys/cdefs.h>

__BEGIN_DECLS
char*** _NSGetArgv(void);
int* _NSGetArgc(void);
char*** _NSGetEnviron(void);
__END_DECLS
