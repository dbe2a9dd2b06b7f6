// The compiler's own limits.h goes on to this one.
#pragma once

#define PATH_MAX 1024
#define NAME_MAX 255
#define SSIZE_MAX 9223372036854775807L
#define IOV_MAX 1024
