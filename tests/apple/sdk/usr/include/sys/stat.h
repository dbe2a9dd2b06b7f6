#pragma once

#include <time.h>

struct stat
{
    dev_t st_dev;
    mode_t st_mode;
    nlink_t st_nlink;
    ino_t st_ino;
    uid_t st_uid;
    gid_t st_gid;
    dev_t st_rdev;
    struct timespec st_atimespec;
    struct timespec st_mtimespec;
    struct timespec st_ctimespec;
    struct timespec st_birthtimespec;
    off_t st_size;
    blkcnt_t st_blocks;
    blksize_t st_blksize;
    uint32_t st_flags;
    uint32_t st_gen;
    int32_t st_lspare;
    int64_t st_qspare[2];
};

#define S_IWGRP 0000020
#define S_IWOTH 0000002
#define S_IFMT 0170000
#define S_IFDIR 0040000
#define S_IFREG 0100000
#define S_ISDIR(mode) (((mode)&S_IFMT) == S_IFDIR)
#define S_ISREG(mode) (((mode)&S_IFMT) == S_IFREG)

__BEGIN_DECLS
int chmod(char const*, mode_t);
int mkdir(char const*, mode_t);
mode_t umask(mode_t);
// With 64-bit inode numbers, which Intel's older calls do not have.
#ifdef __x86_64__
int fstat(int, struct stat*) __asm("_fstat$INODE64");
int stat(char const*, struct stat*) __asm("_stat$INODE64");
#else
int fstat(int, struct stat*);
int stat(char const*, struct stat*);
#endif
__END_DECLS
