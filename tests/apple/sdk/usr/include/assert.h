// Without an include guard: each inclusion follows the current value of NDEBUG.
#include <sys/cdefs.h>

__BEGIN_DECLS
void __assert_rtn(char const* function, char const* file, int line, char const* expression)
    __attribute__((noreturn));
__END_DECLS

#undef assert
#ifdef NDEBUG
#define assert(condition) ((void)0)
#else
#define assert(condition) ((condition) ? (void)0 : __assert_rtn(__func__, __FILE__, __LINE__, #condition))
#endif
