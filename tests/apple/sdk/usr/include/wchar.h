#pragma once

#include <runetype.h>
#include <stdarg.h>
#include <stdio.h>
#include <time.h>

typedef union
{
    char __mbstate8[128];
    long long _mbstateL;
} mbstate_t;

#ifndef WEOF
#define WEOF ((wint_t)-1)
#endif

__BEGIN_DECLS
wint_t btowc(int);
wint_t fgetwc(FILE*);
wchar_t* fgetws(wchar_t*, int, FILE*);
wint_t fputwc(wchar_t, FILE*);
int fputws(wchar_t const*, FILE*);
int fwide(FILE*, int);
int fwprintf(FILE*, wchar_t const*, ...);
int fwscanf(FILE*, wchar_t const*, ...);
wint_t getwc(FILE*);
wint_t getwchar(void);
size_t mbrlen(char const*, size_t, mbstate_t*);
size_t mbrtowc(wchar_t*, char const*, size_t, mbstate_t*);
int mbsinit(mbstate_t const*);
size_t mbsrtowcs(wchar_t*, char const**, size_t, mbstate_t*);
wint_t putwc(wchar_t, FILE*);
wint_t putwchar(wchar_t);
int swprintf(wchar_t*, size_t, wchar_t const*, ...);
int swscanf(wchar_t const*, wchar_t const*, ...);
wint_t ungetwc(wint_t, FILE*);
int vfwprintf(FILE*, wchar_t const*, va_list);
int vfwscanf(FILE*, wchar_t const*, va_list);
int vswprintf(wchar_t*, size_t, wchar_t const*, va_list);
int vswscanf(wchar_t const*, wchar_t const*, va_list);
int vwprintf(wchar_t const*, va_list);
int vwscanf(wchar_t const*, va_list);
size_t wcrtomb(char*, wchar_t, mbstate_t*);
wchar_t* wcscat(wchar_t*, wchar_t const*);
wchar_t* wcschr(wchar_t const*, wchar_t);
int wcscmp(wchar_t const*, wchar_t const*);
int wcscoll(wchar_t const*, wchar_t const*);
wchar_t* wcscpy(wchar_t*, wchar_t const*);
size_t wcscspn(wchar_t const*, wchar_t const*);
size_t wcsftime(wchar_t*, size_t, wchar_t const*, struct tm const*);
size_t wcslen(wchar_t const*);
wchar_t* wcsncat(wchar_t*, wchar_t const*, size_t);
int wcsncmp(wchar_t const*, wchar_t const*, size_t);
wchar_t* wcsncpy(wchar_t*, wchar_t const*, size_t);
wchar_t* wcspbrk(wchar_t const*, wchar_t const*);
wchar_t* wcsrchr(wchar_t const*, wchar_t);
size_t wcsrtombs(char*, wchar_t const**, size_t, mbstate_t*);
size_t wcsspn(wchar_t const*, wchar_t const*);
wchar_t* wcsstr(wchar_t const*, wchar_t const*);
double wcstod(wchar_t const*, wchar_t**);
float wcstof(wchar_t const*, wchar_t**);
wchar_t* wcstok(wchar_t*, wchar_t const*, wchar_t**);
long wcstol(wchar_t const*, wchar_t**, int);
long double wcstold(wchar_t const*, wchar_t**);
long long wcstoll(wchar_t const*, wchar_t**, int);
unsigned long wcstoul(wchar_t const*, wchar_t**, int);
unsigned long long wcstoull(wchar_t const*, wchar_t**, int);
size_t wcsxfrm(wchar_t*, wchar_t const*, size_t);
int wctob(wint_t);
wchar_t* wmemchr(wchar_t const*, wchar_t, size_t);
int wmemcmp(wchar_t const*, wchar_t const*, size_t);
wchar_t* wmemcpy(wchar_t*, wchar_t const*, size_t);
wchar_t* wmemmove(wchar_t*, wchar_t const*, size_t);
wchar_t* wmemset(wchar_t*, wchar_t, size_t);
int wprintf(wchar_t const*, ...);
int wscanf(wchar_t const*, ...);
__END_DECLS
