#include "core/Database.h"

#include "core/Dotaz.h"
#include "core/Error.h"
#include "core/Kolace.h"
#include "core/Schema.h"
#include "core/SqliteChyba.h"

#include <QFileInfo>
#include <sqlite3.h>

void Database::Zavri::operator()(sqlite3* db) const noexcept { sqlite3_close_v2(db); }

Database::Database(const QString& soubor, Rezim rezim) : m_soubor(soubor)
{
    if (!QFileInfo(soubor).isFile())
        throw Error(Chyba::PristupKSouboru, QStringLiteral("Soubor databáze %1 nebyl nalezen.").arg(soubor));
    const int priznaky = rezim == Rezim::JenCteni ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
    sqlite3* db = nullptr;
    const int rc = sqlite3_open_v2(QFile::encodeName(soubor).constData(), &db, priznaky, nullptr);
    m_db.reset(db);
    SqliteChyba::zkontroluj(db, rc, soubor);
    sqlite3_extended_result_codes(db, 1);
    sqlite3_busy_timeout(db, CekaniMs);
    Kolace::registruj(db);

    // Reading the marks is the first touch of the file: a foreign file fails here.
    if (applicationId() != Schema::ApplicationId || userVersion() > Schema::Verze)
        throw Error(Chyba::TabulkaChybi, QStringLiteral("Soubor %1 neobsahuje platná data pro tento program.").arg(soubor));
    if (rezim == Rezim::Pracovni)
        executeSqlite(QStringLiteral("PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF; "
                                     "PRAGMA locking_mode=EXCLUSIVE; PRAGMA temp_store=MEMORY"));
    else if (rezim == Rezim::Data)
        executeSqlite(QStringLiteral("PRAGMA journal_mode=DELETE; PRAGMA synchronous=FULL"));
}

Database::~Database()
{
    m_prikazy.clear(); // statements go before the connection
}

void Database::executeSqlite(const QString& sql, const QVariantList& hodnoty)
{
    if (hodnoty.isEmpty() && sql.contains(QLatin1Char(';'))) {
        char* chyba = nullptr;
        const int rc = sqlite3_exec(m_db.get(), sql.toUtf8().constData(), nullptr, nullptr, &chyba);
        sqlite3_free(chyba);
        SqliteChyba::zkontroluj(m_db.get(), rc, sql);
        return;
    }
    const auto p = prikaz(sql);
    for (int i = 0; i < hodnoty.size(); ++i)
        p->navaz(i + 1, hodnoty[i]);
    while (p->krok()) {}
    p->reset();
}

void Database::execute(const QString& jet) { executeSqlite(Dotaz::preloz(jet)); }

QVariant Database::hodnota(const QString& jet, const QVariantList& hodnoty)
{
    const auto p = prikaz(Dotaz::preloz(jet));
    for (int i = 0; i < hodnoty.size(); ++i)
        p->navaz(i + 1, hodnoty[i]);
    QVariant v;
    if (p->krok())
        v = p->sloupec(0);
    p->reset();
    return v;
}

void Database::vacuumInto(const QString& cil) { executeSqlite(QStringLiteral("VACUUM INTO ?"), {cil}); }

std::shared_ptr<Prikaz> Database::prikaz(const QString& sql)
{
    auto it = m_prikazy.find(sql);
    if (it == m_prikazy.end()) {
        if (m_prikazy.size() > 2000)
            m_prikazy.clear(); // spliced numbers make texts unique: keep the cache bounded
        it = m_prikazy.insert(sql, std::make_shared<Prikaz>(m_db.get(), sql, true));
    }
    (*it)->reset();
    return *it;
}

const Database::Sloupce& Database::popis(const QString& tabulka)
{
    const QString klic = tabulka.toLower();
    auto it = m_sloupce.find(klic);
    if (it != m_sloupce.end())
        return *it;
    Sloupce s;
    Prikaz p(m_db.get(), QStringLiteral("PRAGMA table_info(\"%1\")").arg(tabulka));
    while (p.krok()) {
        s.index.insert(p.sloupec(1).toString().toLower(), int(s.nazvy.size()));
        s.nazvy << p.sloupec(1).toString();
    }
    if (s.nazvy.isEmpty())
        throw Error(Chyba::TabulkaChybi, QStringLiteral("Tabulka %1 neexistuje.").arg(tabulka));
    return *m_sloupce.insert(klic, s);
}

const QStringList& Database::sloupce(const QString& tabulka) { return popis(tabulka).nazvy; }

int Database::indexSloupce(const QString& tabulka, const QString& pole) { return popis(tabulka).index.value(pole.toLower(), -1); }

int Database::applicationId()
{
    Prikaz p(m_db.get(), QStringLiteral("PRAGMA application_id"));
    return p.krok() ? p.sloupec(0).toInt() : 0;
}

int Database::userVersion()
{
    Prikaz p(m_db.get(), QStringLiteral("PRAGMA user_version"));
    return p.krok() ? p.sloupec(0).toInt() : 0;
}
