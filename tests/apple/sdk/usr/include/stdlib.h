#pragma once

#include <sys/types.h>

typedef struct
{
    int quot;
    int rem;
} div_t;
typedef struct
{
    long quot;
    long rem;
} ldiv_t;
typedef struct
{
    long long quot;
    long long rem;
} lldiv_t;

#define EXIT_FAILURE 1
#define EXIT_SUCCESS 0
#define RAND_MAX 0x7fffffff

__BEGIN_DECLS
int ___mb_cur_max(void);
#define MB_CUR_MAX (___mb_cur_max())

void _Exit(int) __attribute__((noreturn));
void abort(void) __attribute__((noreturn));
int abs(int);
int atexit(void (*)(void));
double atof(char const*);
int atoi(char const*);
long atol(char const*);
long long atoll(char const*);
void* bsearch(void const*, void const*, size_t, size_t, int (*)(void const*, void const*));
void* calloc(size_t, size_t);
div_t div(int, int);
void exit(int) __attribute__((noreturn));
void free(void*);
char* getenv(char const*);
long labs(long);
ldiv_t ldiv(long, long);
long long llabs(long long);
lldiv_t lldiv(long long, long long);
void* malloc(size_t);
int mblen(char const*, size_t);
size_t mbstowcs(wchar_t*, char const*, size_t);
int mbtowc(wchar_t*, char const*, size_t);
char* mkdtemp(char*);
int mkstemp(char*);
int posix_memalign(void**, size_t, size_t);
void qsort(void*, size_t, size_t, int (*)(void const*, void const*));
int rand(void);
void* realloc(void*, size_t);
char* realpath(char const*, char*);
int setenv(char const*, char const*, int);
void srand(unsigned);
double strtod(char const*, char**);
float strtof(char const*, char**);
long strtol(char const*, char**, int);
long double strtold(char const*, char**);
long long strtoll(char const*, char**, int);
unsigned long strtoul(char const*, char**, int);
unsigned long long strtoull(char const*, char**, int);
int system(char const*);
int unsetenv(char const*);
size_t wcstombs(char*, wchar_t const*, size_t);
int wctomb(char*, wchar_t);
__END_DECLS
