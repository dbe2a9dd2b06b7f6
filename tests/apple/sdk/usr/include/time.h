#pragma once

#include <sys/types.h>

struct timespec
{
    time_t tv_sec;
    long tv_nsec;
};

struct tm
{
    int tm_sec;
    int tm_min;
    int tm_hour;
    int tm_mday;
    int tm_mon;
    int tm_year;
    int tm_wday;
    int tm_yday;
    int tm_isdst;
    long tm_gmtoff;
    char* tm_zone;
};

typedef enum
{
    CLOCK_REALTIME = 0,
    CLOCK_MONOTONIC = 6,
    CLOCK_PROCESS_CPUTIME_ID = 12,
    CLOCK_THREAD_CPUTIME_ID = 16
} clockid_t;

#define CLOCKS_PER_SEC 1000000UL

__BEGIN_DECLS
char* asctime(struct tm const*);
clock_t clock(void);
int clock_gettime(clockid_t, struct timespec*);
char* ctime(time_t const*);
double difftime(time_t, time_t);
struct tm* gmtime(time_t const*);
struct tm* gmtime_r(time_t const*, struct tm*);
struct tm* localtime(time_t const*);
struct tm* localtime_r(time_t const*, struct tm*);
time_t mktime(struct tm*);
int nanosleep(struct timespec const*, struct timespec*);
size_t strftime(char*, size_t, char const*, struct tm const*);
time_t time(time_t*);
__END_DECLS
