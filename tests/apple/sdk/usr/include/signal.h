#pragma once

#include <sys/types.h>

typedef int sig_atomic_t;
typedef uint32_t sigset_t;
typedef void (*sig_t)(int);

struct sigaction
{
    sig_t sa_handler;
    sigset_t sa_mask;
    int sa_flags;
};

#define SIG_DFL ((sig_t)0)
#define SIG_IGN ((sig_t)1)
#define SIG_ERR ((sig_t)-1)
#define SIGHUP 1
#define SIGINT 2
#define SIGABRT 6
#define SIGFPE 8
#define SIGKILL 9
#define SIGSEGV 11
#define SIGPIPE 13
#define SIGILL 4
#define SIGTERM 15

__BEGIN_DECLS
sig_t signal(int, sig_t);
int raise(int);
int kill(pid_t, int);
int sigaction(int, struct sigaction const*, struct sigaction*);
__END_DECLS
