#pragma once

#include <stdint.h>
#include <sys/types.h>

typedef struct
{
    intmax_t quot;
    intmax_t rem;
} imaxdiv_t;

__BEGIN_DECLS
intmax_t imaxabs(intmax_t);
imaxdiv_t imaxdiv(intmax_t, intmax_t);
intmax_t strtoimax(char const*, char**, int);
uintmax_t strtoumax(char const*, char**, int);
intmax_t wcstoimax(wchar_t const*, wchar_t**, int);
uintmax_t wcstoumax(wchar_t const*, wchar_t**, int);
__END_DECLS

#define PRId32 "d"
#define PRIi32 "i"
#define PRIo32 "o"
#define PRIu32 "u"
#define PRIx32 "x"
#define PRIX32 "X"
#define PRId64 "lld"
#define PRIi64 "lli"
#define PRIo64 "llo"
#define PRIu64 "llu"
#define PRIx64 "llx"
#define PRIX64 "llX"
