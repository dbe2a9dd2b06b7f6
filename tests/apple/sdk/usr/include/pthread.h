// The threads that the C++ library needs. The objects are opaque and have the sizes of 64-bit systems.
#pragma once

#include <mach/mach.h>
#include <sched.h>
#include <sys/types.h>
#include <time.h>

#define PELNAR_SDK_OPAQUE(name, bytes)                                                                                 \
    typedef struct                                                                                                     \
    {                                                                                                                  \
        long __sig;                                                                                                    \
        char __opaque[bytes];                                                                                          \
    } name;
PELNAR_SDK_OPAQUE(pthread_attr_t, 56)
PELNAR_SDK_OPAQUE(pthread_cond_t, 40)
PELNAR_SDK_OPAQUE(pthread_condattr_t, 8)
PELNAR_SDK_OPAQUE(pthread_mutex_t, 56)
PELNAR_SDK_OPAQUE(pthread_mutexattr_t, 8)
PELNAR_SDK_OPAQUE(pthread_once_t, 8)
PELNAR_SDK_OPAQUE(pthread_rwlock_t, 192)
PELNAR_SDK_OPAQUE(pthread_rwlockattr_t, 16)
#undef PELNAR_SDK_OPAQUE
typedef struct _opaque_pthread_t* pthread_t;
typedef unsigned long pthread_key_t;

#define PTHREAD_COND_INITIALIZER {0x3CB0B1BB, {0}}
#define PTHREAD_MUTEX_INITIALIZER {0x32AAABA7, {0}}
#define PTHREAD_ONCE_INIT {0x30B1BCBA, {0}}
#define PTHREAD_MUTEX_NORMAL 0
#define PTHREAD_MUTEX_RECURSIVE 2

__BEGIN_DECLS
int pthread_atfork(void (*)(void), void (*)(void), void (*)(void));
int pthread_cancel(pthread_t);
int pthread_cond_broadcast(pthread_cond_t*);
int pthread_cond_destroy(pthread_cond_t*);
int pthread_cond_signal(pthread_cond_t*);
int pthread_cond_timedwait(pthread_cond_t*, pthread_mutex_t*, struct timespec const*);
int pthread_cond_wait(pthread_cond_t*, pthread_mutex_t*);
int pthread_create(pthread_t*, pthread_attr_t const*, void* (*)(void*), void*);
int pthread_detach(pthread_t);
int pthread_equal(pthread_t, pthread_t);
void* pthread_getspecific(pthread_key_t);
int pthread_join(pthread_t, void**);
int pthread_key_create(pthread_key_t*, void (*)(void*));
int pthread_key_delete(pthread_key_t);
int pthread_kill(pthread_t, int);
int pthread_mutex_destroy(pthread_mutex_t*);
int pthread_mutex_init(pthread_mutex_t*, pthread_mutexattr_t const*);
int pthread_mutex_lock(pthread_mutex_t*);
int pthread_mutex_trylock(pthread_mutex_t*);
int pthread_mutex_unlock(pthread_mutex_t*);
int pthread_mutexattr_destroy(pthread_mutexattr_t*);
int pthread_mutexattr_init(pthread_mutexattr_t*);
int pthread_mutexattr_settype(pthread_mutexattr_t*, int);
mach_port_t pthread_mach_thread_np(pthread_t);
int pthread_once(pthread_once_t*, void (*)(void));
pthread_t pthread_self(void);
int pthread_setspecific(pthread_key_t, void const*);
int pthread_threadid_np(pthread_t, uint64_t*);
__END_DECLS
