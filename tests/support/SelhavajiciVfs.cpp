#include "SelhavajiciVfs.h"

#include <QByteArray>
#include <cerrno>
#include <cstring>
#include <sqlite3.h>

namespace {

struct Pravidlo {
    QByteArray cast;
    SelhavajiciVfs::Porucha porucha = SelhavajiciVfs::Porucha::DiskPlny;
    qint64 zbyva = 0;
    bool aktivni = false;
};

Pravidlo g_pravidlo;
sqlite3_vfs* g_skutecny = nullptr;
sqlite3_vfs g_vfs;
int g_errno = 0;

struct Obal {
    sqlite3_file zaklad;
    bool hlidat;
    sqlite3_file* skutecny() { return reinterpret_cast<sqlite3_file*>(this + 1); }
};

Obal* obal(sqlite3_file* f) { return reinterpret_cast<Obal*>(f); }

int xClose(sqlite3_file* f) { return obal(f)->skutecny()->pMethods->xClose(obal(f)->skutecny()); }
int xRead(sqlite3_file* f, void* b, int n, sqlite3_int64 o) { return obal(f)->skutecny()->pMethods->xRead(obal(f)->skutecny(), b, n, o); }
int xWrite(sqlite3_file* f, const void* b, int n, sqlite3_int64 o)
{
    if (obal(f)->hlidat && g_pravidlo.aktivni) {
        g_pravidlo.zbyva -= n;
        if (g_pravidlo.zbyva < 0) {
            if (g_pravidlo.porucha == SelhavajiciVfs::Porucha::DiskPlny)
                return SQLITE_FULL;
            g_errno = EROFS;
            return SQLITE_IOERR_WRITE;
        }
    }
    return obal(f)->skutecny()->pMethods->xWrite(obal(f)->skutecny(), b, n, o);
}
int xTruncate(sqlite3_file* f, sqlite3_int64 s) { return obal(f)->skutecny()->pMethods->xTruncate(obal(f)->skutecny(), s); }
int xSync(sqlite3_file* f, int p) { return obal(f)->skutecny()->pMethods->xSync(obal(f)->skutecny(), p); }
int xFileSize(sqlite3_file* f, sqlite3_int64* s) { return obal(f)->skutecny()->pMethods->xFileSize(obal(f)->skutecny(), s); }
int xLock(sqlite3_file* f, int l) { return obal(f)->skutecny()->pMethods->xLock(obal(f)->skutecny(), l); }
int xUnlock(sqlite3_file* f, int l) { return obal(f)->skutecny()->pMethods->xUnlock(obal(f)->skutecny(), l); }
int xCheckReservedLock(sqlite3_file* f, int* r) { return obal(f)->skutecny()->pMethods->xCheckReservedLock(obal(f)->skutecny(), r); }
int xFileControl(sqlite3_file* f, int op, void* a) { return obal(f)->skutecny()->pMethods->xFileControl(obal(f)->skutecny(), op, a); }
int xSectorSize(sqlite3_file* f) { return obal(f)->skutecny()->pMethods->xSectorSize(obal(f)->skutecny()); }
int xDeviceCharacteristics(sqlite3_file* f) { return obal(f)->skutecny()->pMethods->xDeviceCharacteristics(obal(f)->skutecny()); }

const sqlite3_io_methods metody = {1, xClose, xRead, xWrite, xTruncate, xSync, xFileSize, xLock, xUnlock,
                                   xCheckReservedLock, xFileControl, xSectorSize, xDeviceCharacteristics,
                                   nullptr, nullptr, nullptr, nullptr, nullptr, nullptr};

int xOpen(sqlite3_vfs*, const char* jmeno, sqlite3_file* f, int priznaky, int* vystup)
{
    Obal* o = obal(f);
    o->zaklad.pMethods = nullptr;
    const int rc = g_skutecny->xOpen(g_skutecny, jmeno, o->skutecny(), priznaky, vystup);
    if (rc != SQLITE_OK)
        return rc;
    o->hlidat = jmeno && !g_pravidlo.cast.isEmpty() && std::strstr(jmeno, g_pravidlo.cast.constData());
    o->zaklad.pMethods = &metody;
    return SQLITE_OK;
}

int xDelete(sqlite3_vfs*, const char* j, int s) { return g_skutecny->xDelete(g_skutecny, j, s); }
int xAccess(sqlite3_vfs*, const char* j, int p, int* r) { return g_skutecny->xAccess(g_skutecny, j, p, r); }
int xFullPathname(sqlite3_vfs*, const char* j, int n, char* v) { return g_skutecny->xFullPathname(g_skutecny, j, n, v); }
int xRandomness(sqlite3_vfs*, int n, char* v) { return g_skutecny->xRandomness(g_skutecny, n, v); }
int xSleep(sqlite3_vfs*, int us) { return g_skutecny->xSleep(g_skutecny, us); }
int xCurrentTime(sqlite3_vfs*, double* t) { return g_skutecny->xCurrentTime(g_skutecny, t); }
int xGetLastError(sqlite3_vfs*, int, char*) { return g_errno ? g_errno : errno; }
int xCurrentTimeInt64(sqlite3_vfs*, sqlite3_int64* t) { return g_skutecny->xCurrentTimeInt64(g_skutecny, t); }

} // namespace

SelhavajiciVfs::SelhavajiciVfs()
{
    g_skutecny = sqlite3_vfs_find(nullptr);
    g_vfs = sqlite3_vfs{};
    g_vfs.iVersion = 2;
    g_vfs.szOsFile = int(sizeof(Obal)) + g_skutecny->szOsFile;
    g_vfs.mxPathname = g_skutecny->mxPathname;
    g_vfs.zName = "selhavajici";
    g_vfs.xOpen = xOpen;
    g_vfs.xDelete = xDelete;
    g_vfs.xAccess = xAccess;
    g_vfs.xFullPathname = xFullPathname;
    g_vfs.xRandomness = xRandomness;
    g_vfs.xSleep = xSleep;
    g_vfs.xCurrentTime = xCurrentTime;
    g_vfs.xGetLastError = xGetLastError;
    g_vfs.xCurrentTimeInt64 = xCurrentTimeInt64;
    sqlite3_vfs_register(&g_vfs, 1);
}

SelhavajiciVfs::~SelhavajiciVfs()
{
    sqlite3_vfs_unregister(&g_vfs);
    g_pravidlo = Pravidlo{};
}

void SelhavajiciVfs::selhej(const QString& castJmena, Porucha porucha, qint64 poBajtech)
{
    g_pravidlo = {castJmena.toUtf8(), porucha, poBajtech, true};
    g_errno = 0;
}

void SelhavajiciVfs::oprav()
{
    g_pravidlo.aktivni = false;
}
