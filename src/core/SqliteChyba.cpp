#include "core/SqliteChyba.h"

#include "core/Error.h"
#include "core/ZpravaChyby.h"

#include <sqlite3.h>

namespace SqliteChyba {

static int cisloPro(sqlite3* db, int rc, const QString& zprava)
{
    switch (rc & 0xff) {
    case SQLITE_FULL: return Chyba::DiskPlny;
    case SQLITE_READONLY:
    case SQLITE_PERM: return Chyba::JenProCteni;
    case SQLITE_BUSY:
    case SQLITE_LOCKED: return Chyba::DatabazePouzivana;
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT: return Chyba::TabulkaChybi;
    case SQLITE_IOERR:
    case SQLITE_CANTOPEN: {
        const int sys = db ? sqlite3_system_errno(db) : 0;
        return sys ? Chyba::cisloProErrno(sys) : Chyba::PristupKSouboru;
    }
    case SQLITE_ERROR:
        if (zprava.startsWith(QLatin1String("no such table")))
            return Chyba::TabulkaChybi;
        return Chyba::ChybaDotazu;
    default: return Chyba::ChybaDotazu;
    }
}

void vyhod(sqlite3* db, int rc, const QString& kontext)
{
    const QString zprava = db ? QString::fromUtf8(sqlite3_errmsg(db))
                              : QString::fromUtf8(sqlite3_errstr(rc));
    const int cislo = cisloPro(db, rc, zprava);
    const QString soubor = db && sqlite3_db_filename(db, "main") ? QString::fromUtf8(sqlite3_db_filename(db, "main")) : QString();
    throw Error(cislo, ZpravaChyby::text(cislo, soubor, db ? sqlite3_system_errno(db) : 0),
                kontext + QStringLiteral(": ") + zprava);
}

void zkontroluj(sqlite3* db, int rc, const QString& kontext)
{
    if (rc != SQLITE_OK && rc != SQLITE_ROW && rc != SQLITE_DONE)
        vyhod(db, rc, kontext);
}

} // namespace SqliteChyba
