/* Loaded into truhlar-cli by the tests (LD_PRELOAD): the process dies by SIGKILL at its Nth
 * disk sync (N from TRUHLAR_ZABIJ_PRI_SYNCU), just before the sync would run, as a power cut or
 * kill -9 would catch it. With TRUHLAR_PLNY_DISK set to a folder, the sync of every file in it
 * fails with ENOSPC instead, as a disk that fills up while the file is written. Without the
 * variables every sync runs as usual. */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

static int g_pocet;

static void mozna_zabij(void)
{
    const char* n = getenv("TRUHLAR_ZABIJ_PRI_SYNCU");
    if (n && ++g_pocet == atoi(n))
        raise(SIGKILL);
}

/* Whether fd is a file in the folder of TRUHLAR_PLNY_DISK. */
static int na_plnem_disku(int fd)
{
    const char* slozka = getenv("TRUHLAR_PLNY_DISK");
    if (!slozka)
        return 0;
    char odkaz[64], cesta[4096];
    snprintf(odkaz, sizeof odkaz, "/proc/self/fd/%d", fd);
    const ssize_t n = readlink(odkaz, cesta, sizeof cesta - 1);
    if (n < 0)
        return 0;
    cesta[n] = '\0';
    const size_t delka = strlen(slozka);
    return strncmp(cesta, slozka, delka) == 0 && cesta[delka] == '/';
}

int fsync(int fd)
{
    mozna_zabij();
    if (na_plnem_disku(fd)) {
        errno = ENOSPC;
        return -1;
    }
    int (*puvodni)(int) = (int (*)(int))dlsym(RTLD_NEXT, "fsync");
    return puvodni(fd);
}

int fdatasync(int fd)
{
    mozna_zabij();
    if (na_plnem_disku(fd)) {
        errno = ENOSPC;
        return -1;
    }
    int (*puvodni)(int) = (int (*)(int))dlsym(RTLD_NEXT, "fdatasync");
    return puvodni(fd);
}
