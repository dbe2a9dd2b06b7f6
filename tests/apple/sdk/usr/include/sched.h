#pragma once

#include <sys/cdefs.h>

__BEGIN_DECLS
int sched_yield(void);
__END_DECLS
