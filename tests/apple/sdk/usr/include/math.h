// C99's functions of real numbers, each for the three types.
#pragma once

#include <sys/cdefs.h>

typedef float float_t;
typedef double double_t;

#define HUGE_VAL __builtin_huge_val()
#define HUGE_VALF __builtin_huge_valf()
#define HUGE_VALL __builtin_huge_vall()
#define INFINITY __builtin_inff()
#define NAN __builtin_nanf("")
#define FP_NAN 1
#define FP_INFINITE 2
#define FP_ZERO 3
#define FP_NORMAL 4
#define FP_SUBNORMAL 5
#define MATH_ERRNO 1
#define MATH_ERREXCEPT 2
#define M_PI 3.14159265358979323846

#define isnan(x) __builtin_isnan(x)
#define isinf(x) __builtin_isinf(x)
#define isfinite(x) __builtin_isfinite(x)
#define isnormal(x) __builtin_isnormal(x)
#define signbit(x) __builtin_signbit(x)
#define fpclassify(x) __builtin_fpclassify(FP_NAN, FP_INFINITE, FP_NORMAL, FP_SUBNORMAL, FP_ZERO, x)
#define isgreater(x, y) __builtin_isgreater(x, y)
#define isgreaterequal(x, y) __builtin_isgreaterequal(x, y)
#define isless(x, y) __builtin_isless(x, y)
#define islessequal(x, y) __builtin_islessequal(x, y)
#define islessgreater(x, y) __builtin_islessgreater(x, y)
#define isunordered(x, y) __builtin_isunordered(x, y)

__BEGIN_DECLS
#define PELNAR_SDK_REALS(type, suffix) \
    type acos##suffix(type);                    \
    type asin##suffix(type);                    \
    type atan##suffix(type);                    \
    type ceil##suffix(type);                    \
    type cos##suffix(type);                     \
    type cosh##suffix(type);                    \
    type exp##suffix(type);                     \
    type fabs##suffix(type);                    \
    type floor##suffix(type);                   \
    type log##suffix(type);                     \
    type log10##suffix(type);                   \
    type sin##suffix(type);                     \
    type sinh##suffix(type);                    \
    type sqrt##suffix(type);                    \
    type tan##suffix(type);                     \
    type tanh##suffix(type);                    \
    type acosh##suffix(type);                   \
    type asinh##suffix(type);                   \
    type atanh##suffix(type);                   \
    type cbrt##suffix(type);                    \
    type erf##suffix(type);                     \
    type erfc##suffix(type);                    \
    type exp2##suffix(type);                    \
    type expm1##suffix(type);                   \
    type lgamma##suffix(type);                  \
    type log1p##suffix(type);                   \
    type log2##suffix(type);                    \
    type logb##suffix(type);                    \
    type nearbyint##suffix(type);               \
    type rint##suffix(type);                    \
    type round##suffix(type);                   \
    type tgamma##suffix(type);                  \
    type trunc##suffix(type);                   \
    type atan2##suffix(type, type);             \
    type fmod##suffix(type, type);              \
    type pow##suffix(type, type);               \
    type copysign##suffix(type, type);          \
    type fdim##suffix(type, type);              \
    type fmax##suffix(type, type);              \
    type fmin##suffix(type, type);              \
    type hypot##suffix(type, type);             \
    type nextafter##suffix(type, type);         \
    type remainder##suffix(type, type);         \
    type frexp##suffix(type, int*);             \
    type ldexp##suffix(type, int);              \
    type modf##suffix(type, type*);             \
    type fma##suffix(type, type, type);         \
    int ilogb##suffix(type);                    \
    long long llrint##suffix(type);             \
    long long llround##suffix(type);            \
    long lrint##suffix(type);                   \
    long lround##suffix(type);                  \
    type nan##suffix(char const*);              \
    type nexttoward##suffix(type, long double); \
    type remquo##suffix(type, type, int*);      \
    type scalbln##suffix(type, long);           \
    type scalbn##suffix(type, int);
PELNAR_SDK_REALS(double, )
PELNAR_SDK_REALS(float, f)
PELNAR_SDK_REALS(long double, l)
#undef PELNAR_SDK_REALS
__END_DECLS
