#pragma once

#include <stdint.h>
#include <sys/cdefs.h>

__BEGIN_DECLS
int _NSGetExecutablePath(char* buffer, uint32_t* size);
__END_DECLS
