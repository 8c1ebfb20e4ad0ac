/* Loaded into truhlar-cli by the tests (LD_PRELOAD): the process dies by SIGKILL at its Nth
 * disk sync (N from TRUHLAR_ZABIJ_PRI_SYNCU), just before the sync would run, as a power cut or
 * kill -9 would catch it. Without the variable every sync runs as usual. */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <signal.h>
#include <stdlib.h>

static int g_pocet;

static void mozna_zabij(void)
{
    const char* n = getenv("TRUHLAR_ZABIJ_PRI_SYNCU");
    if (n && ++g_pocet == atoi(n))
        raise(SIGKILL);
}

int fsync(int fd)
{
    mozna_zabij();
    int (*puvodni)(int) = (int (*)(int))dlsym(RTLD_NEXT, "fsync");
    return puvodni(fd);
}

int fdatasync(int fd)
{
    mozna_zabij();
    int (*puvodni)(int) = (int (*)(int))dlsym(RTLD_NEXT, "fdatasync");
    return puvodni(fd);
}
