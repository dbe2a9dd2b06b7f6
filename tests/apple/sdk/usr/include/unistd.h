#pragma once

#include <sys/types.h>

#define STDIN_FILENO 0
#define STDOUT_FILENO 1
#define STDERR_FILENO 2
#define F_OK 0
#define X_OK 1
#define W_OK 2
#define R_OK 4

__BEGIN_DECLS
void _exit(int) __attribute__((noreturn));
int access(char const*, int);
int chdir(char const*);
int close(int);
int dup(int);
int dup2(int, int);
int execv(char const*, char* const*);
pid_t fork(void);
int fsync(int);
int ftruncate(int, off_t);
char* getcwd(char*, size_t);
gid_t getgid(void);
pid_t getpid(void);
pid_t getppid(void);
uid_t geteuid(void);
uid_t getuid(void);
int isatty(int);
int link(char const*, char const*);
off_t lseek(int, off_t, int);
int pipe(int*);
ssize_t read(int, void*, size_t);
ssize_t readlink(char const*, char*, size_t);
int rmdir(char const*);
int symlink(char const*, char const*);
long sysconf(int);
int unlink(char const*);
ssize_t write(int, void const*, size_t);
__END_DECLS
