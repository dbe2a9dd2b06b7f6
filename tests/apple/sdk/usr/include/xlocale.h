// The functions with a locale argument that the C++ library calls.
#pragma once

#include <locale.h>
#include <stdio.h>
#include <stdlib.h>
#include <time.h>
#include <wchar.h>
#include <wctype.h>

struct _xlocale;
typedef struct _xlocale* locale_t;

#define LC_COLLATE_MASK 1
#define LC_CTYPE_MASK 2
#define LC_MESSAGES_MASK 4
#define LC_MONETARY_MASK 8
#define LC_NUMERIC_MASK 16
#define LC_TIME_MASK 32
#define LC_ALL_MASK 63
#define LC_GLOBAL_LOCALE ((locale_t)-1)
#define LC_C_LOCALE ((locale_t)0)
#define MB_CUR_MAX_L(locale) (___mb_cur_max_l(locale))

__BEGIN_DECLS
int ___mb_cur_max_l(locale_t);
locale_t newlocale(int, char const*, locale_t);
locale_t duplocale(locale_t);
locale_t uselocale(locale_t);
int freelocale(locale_t);
struct lconv* localeconv_l(locale_t);

int isdigit_l(int, locale_t);
int isxdigit_l(int, locale_t);
int tolower_l(int, locale_t);
int toupper_l(int, locale_t);
int iswalpha_l(wint_t, locale_t);
int iswblank_l(wint_t, locale_t);
int iswcntrl_l(wint_t, locale_t);
int iswdigit_l(wint_t, locale_t);
int iswlower_l(wint_t, locale_t);
int iswprint_l(wint_t, locale_t);
int iswpunct_l(wint_t, locale_t);
int iswspace_l(wint_t, locale_t);
int iswupper_l(wint_t, locale_t);
int iswxdigit_l(wint_t, locale_t);
wint_t towlower_l(wint_t, locale_t);
wint_t towupper_l(wint_t, locale_t);

int strcoll_l(char const*, char const*, locale_t);
size_t strxfrm_l(char*, char const*, size_t, locale_t);
int wcscoll_l(wchar_t const*, wchar_t const*, locale_t);
size_t wcsxfrm_l(wchar_t*, wchar_t const*, size_t, locale_t);
size_t strftime_l(char*, size_t, char const*, struct tm const*, locale_t);
float strtof_l(char const*, char**, locale_t);
double strtod_l(char const*, char**, locale_t);
long double strtold_l(char const*, char**, locale_t);
long long strtoll_l(char const*, char**, int, locale_t);
unsigned long long strtoull_l(char const*, char**, int, locale_t);

wint_t btowc_l(int, locale_t);
int wctob_l(wint_t, locale_t);
size_t mbrlen_l(char const*, size_t, mbstate_t*, locale_t);
size_t mbrtowc_l(wchar_t*, char const*, size_t, mbstate_t*, locale_t);
int mbtowc_l(wchar_t*, char const*, size_t, locale_t);
size_t mbsnrtowcs_l(wchar_t*, char const**, size_t, size_t, mbstate_t*, locale_t);
size_t mbsrtowcs_l(wchar_t*, char const**, size_t, mbstate_t*, locale_t);
size_t wcrtomb_l(char*, wchar_t, mbstate_t*, locale_t);
size_t wcsnrtombs_l(char*, wchar_t const**, size_t, size_t, mbstate_t*, locale_t);

int asprintf_l(char**, locale_t, char const*, ...);
int snprintf_l(char*, size_t, locale_t, char const*, ...);
int sscanf_l(char const*, locale_t, char const*, ...);
__END_DECLS
