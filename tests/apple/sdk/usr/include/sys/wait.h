#pragma once

#include <sys/types.h>

#define WIFEXITED(status) (((status)&0177) == 0)
#define WEXITSTATUS(status) (((status) >> 8) & 0xff)
#define WIFSIGNALED(status) (((status)&0177) != 0177 && ((status)&0177) != 0)
#define WTERMSIG(status) ((status)&0177)
#define WCOREDUMP(status) ((status)&0200)

__BEGIN_DECLS
pid_t waitpid(pid_t, int*, int);
__END_DECLS
