#pragma once

#include <sys/cdefs.h>

#define RTLD_LAZY 0x1
#define RTLD_NOW 0x2
#define RTLD_DEFAULT ((void*)-2)

__BEGIN_DECLS
int dlclose(void*);
char* dlerror(void);
void* dlopen(char const*, int);
void* dlsym(void*, char const*);
__END_DECLS
