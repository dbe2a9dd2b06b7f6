// The system's number types.
#pragma once

#include <stddef.h>
#include <stdint.h>
#include <sys/cdefs.h>

typedef int8_t __int8_t;
typedef uint8_t __uint8_t;
typedef int16_t __int16_t;
typedef uint16_t __uint16_t;
typedef int32_t __int32_t;
typedef uint32_t __uint32_t;
typedef int64_t __int64_t;
typedef uint64_t __uint64_t;

typedef unsigned char u_char;
typedef unsigned short u_short;
typedef unsigned int u_int;
typedef unsigned long u_long;

typedef long ssize_t;
typedef int64_t off_t;
typedef int32_t pid_t;
typedef uint32_t uid_t;
typedef uint32_t gid_t;
typedef uint16_t mode_t;
typedef int32_t dev_t;
typedef uint64_t ino_t;
typedef uint16_t nlink_t;
typedef int64_t blkcnt_t;
typedef int32_t blksize_t;
typedef unsigned long clock_t;
typedef long time_t;
typedef uint32_t useconds_t;
typedef int32_t suseconds_t;
typedef char* caddr_t;
