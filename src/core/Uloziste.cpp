#include "core/Uloziste.h"

#include "core/Aplikace.h"
#include "core/Error.h"
#include "core/Schema.h"
#include "core/SqliteChyba.h"
#include "core/ZpravaChyby.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QThread>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {
const QString Pouzivana = QStringLiteral("Databáze programu je používána jiným programem!");
}

Uloziste::Uloziste(bool zalozit)
{
    if (zalozit)
        Aplikace::zaloz();
    else if (!Aplikace::existuje())
        throw Error(Chyba::PristupKSouboru,
                    QStringLiteral("Složka programu %1 neobsahuje databáze. Založte ji příkazem init.")
                        .arg(Aplikace::domov()));
    const QByteArray zamek = QFile::encodeName(Aplikace::zamek());
    m_zamek = ::open(zamek.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    if (m_zamek < 0 && Aplikace::jenProCteni()) {
        // Reading needs no write access: the lock is shared all the same, and where the file
        // is missing on a write-protected disk nobody can change the store anyway.
        m_zamek = ::open(zamek.constData(), O_RDONLY | O_CLOEXEC);
        if (m_zamek < 0) {
            otevriData();
            return;
        }
    } else if (m_zamek < 0) {
        throw Error(Chyba::cisloProErrno(errno),
                    QStringLiteral("Soubor %1 nelze otevřít.").arg(Aplikace::zamek()));
    }
    if (::flock(m_zamek, LOCK_EX | LOCK_NB) == 0) {
        Aplikace::uklid(); // nobody else holds the store: what is left in Data/ is nobody's
        ::flock(m_zamek, LOCK_SH);
    } else if (!zamkni(LOCK_SH)) {
        ::close(m_zamek);
        m_zamek = -1;
        throw Error(Chyba::DatabazePouzivana, Pouzivana);
    }
    otevriData();
}

bool Uloziste::zamkni(int druh)
{
    if (m_zamek < 0)
        return false;
    QDeadlineTimer konec(Database::CekaniMs);
    while (::flock(m_zamek, druh | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR)
            return false;
        if (konec.hasExpired())
            return false;
        QThread::msleep(20);
    }
    return true;
}

Uloziste::~Uloziste()
{
    m_dataK.reset();
    if (m_udelalDataK) // the plan copy is this process's own: it goes with it
        for (const char* pripona : {"", "-journal", "-wal", "-shm"})
            QFile::remove(Aplikace::dataK() + QLatin1String(pripona));
    m_cenik.reset();
    m_dataS.reset();
    if (m_zamek >= 0)
        ::close(m_zamek); // also gives up the lock
}

Database& Uloziste::dataK()
{
    if (!m_dataK)
        throw Error(Chyba::TabulkaChybi, QStringLiteral("Pracovní databáze není otevřena."));
    return *m_dataK;
}

void Uloziste::zavriDataK() { m_dataK.reset(); }

void Uloziste::ObnovPracovniDatabazi()
{
    zavriDataK();
    m_udelalDataK = true;
    for (const char* pripona : {"", "-journal", "-wal", "-shm"}) {
        const QString soubor = Aplikace::dataK() + QLatin1String(pripona);
        if (QFile::exists(soubor) && !QFile::remove(soubor))
            throw Error(Chyba::PristupKSouboru, QStringLiteral("Soubor %1 nelze odstranit.").arg(soubor));
    }
    // The copy is thrown away after use: it is written without waiting for the disk.
    m_dataS->executeSqlite(QStringLiteral("PRAGMA synchronous=OFF"));
    try {
        m_dataS->vacuumInto(Aplikace::dataK());
    } catch (...) {
        m_dataS->executeSqlite(QStringLiteral("PRAGMA synchronous=FULL"));
        throw;
    }
    m_dataS->executeSqlite(QStringLiteral("PRAGMA synchronous=FULL"));
    m_dataK = std::make_unique<Database>(Aplikace::dataK(), Database::Rezim::Pracovni);
}

void Uloziste::zavriData()
{
    m_dataK.reset();
    m_cenik.reset();
    m_dataS.reset();
}

void Uloziste::otevriData()
{
    m_dataS = std::make_unique<Database>(Aplikace::dataS(), Database::Rezim::Data);
    m_cenik = std::make_unique<Database>(Aplikace::cenik(), Database::Rezim::Data);
    for (auto [db, druh] : {std::pair{m_dataS.get(), Schema::Soubor::Data}, {m_cenik.get(), Schema::Soubor::Cenik}}) {
        try {
            db->executeSqlite(Schema::vytvorIndexy(druh));
        } catch (const Error&) {
            // only speed is lost; a file that cannot be written says so at the first real write
        }
    }
}

Uloziste::Vyhradne::Vyhradne(Uloziste& u) : m_u(u)
{
    if (m_u.m_zamek < 0)
        throw Error(Chyba::JenProCteni, ZpravaChyby::text(Chyba::JenProCteni, Aplikace::dataS()));
    if (!m_u.zamkni(LOCK_EX)) {
        ::flock(m_u.m_zamek, LOCK_SH); // a refused change of a lock gives up the old one
        throw Error(Chyba::DatabazePouzivana, Pouzivana);
    }
}

Uloziste::Vyhradne::~Vyhradne() { ::flock(m_u.m_zamek, LOCK_SH); }
