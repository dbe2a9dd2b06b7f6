#pragma once

#include <sys/cdefs.h>

typedef int jmp_buf[48];

__BEGIN_DECLS
int setjmp(jmp_buf);
void longjmp(jmp_buf, int) __attribute__((noreturn));
__END_DECLS
