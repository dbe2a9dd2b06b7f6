#pragma once

#include <sys/cdefs.h>

#define NL_CAT_LOCALE 1

typedef struct __nl_cat_d* nl_catd;

__BEGIN_DECLS
nl_catd catopen(char const*, int);
char* catgets(nl_catd, int, int, char const*);
int catclose(nl_catd);
__END_DECLS
