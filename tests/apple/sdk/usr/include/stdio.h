#pragma once

#include <stdarg.h>
#include <sys/types.h>

typedef struct __sFILE FILE;
typedef off_t fpos_t;

#define BUFSIZ 1024
#define EOF (-1)
#define FILENAME_MAX 1024
#define FOPEN_MAX 20
#define L_tmpnam 1024
#define P_tmpdir "/var/tmp/"
#define SEEK_SET 0
#define SEEK_CUR 1
#define SEEK_END 2
#define TMP_MAX 308915776
#define _IOFBF 0
#define _IOLBF 1
#define _IONBF 2

__BEGIN_DECLS
extern FILE* __stdinp;
extern FILE* __stdoutp;
extern FILE* __stderrp;
#define stdin __stdinp
#define stdout __stdoutp
#define stderr __stderrp

void clearerr(FILE*);
int fclose(FILE*);
FILE* fdopen(int, char const*);
int feof(FILE*);
int ferror(FILE*);
int fflush(FILE*);
int fgetc(FILE*);
int fgetpos(FILE*, fpos_t*);
char* fgets(char*, int, FILE*);
int fileno(FILE*);
FILE* fopen(char const*, char const*);
int fprintf(FILE*, char const*, ...) __attribute__((format(printf, 2, 3)));
int fputc(int, FILE*);
int fputs(char const*, FILE*);
size_t fread(void*, size_t, size_t, FILE*);
FILE* freopen(char const*, char const*, FILE*);
int fscanf(FILE*, char const*, ...);
int fseek(FILE*, long, int);
int fseeko(FILE*, off_t, int);
int fsetpos(FILE*, fpos_t const*);
long ftell(FILE*);
off_t ftello(FILE*);
size_t fwrite(void const*, size_t, size_t, FILE*);
int getc(FILE*);
int getchar(void);
char* gets(char*);
void perror(char const*);
int printf(char const*, ...) __attribute__((format(printf, 1, 2)));
int putc(int, FILE*);
int putchar(int);
int puts(char const*);
int remove(char const*);
int rename(char const*, char const*);
void rewind(FILE*);
int scanf(char const*, ...);
void setbuf(FILE*, char*);
int setvbuf(FILE*, char*, int, size_t);
int snprintf(char*, size_t, char const*, ...) __attribute__((format(printf, 3, 4)));
int sprintf(char*, char const*, ...) __attribute__((format(printf, 2, 3)));
int sscanf(char const*, char const*, ...);
FILE* tmpfile(void);
char* tmpnam(char*);
int ungetc(int, FILE*);
int vasprintf(char**, char const*, va_list);
int vfprintf(FILE*, char const*, va_list);
int vfscanf(FILE*, char const*, va_list);
int vprintf(char const*, va_list);
int vscanf(char const*, va_list);
int vsnprintf(char*, size_t, char const*, va_list);
int vsprintf(char*, char const*, va_list);
int vsscanf(char const*, char const*, va_list);
__END_DECLS
