#pragma once

#include <sys/types.h>

__BEGIN_DECLS
int strcasecmp(char const*, char const*);
int strncasecmp(char const*, char const*, size_t);
__END_DECLS
