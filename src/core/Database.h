#pragma once
// One open database file of the store, with the old engine's text order (Czech, case-blind)
// registered on the connection. Owns the connection and a cache of prepared statements.
#include "core/Prikaz.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <memory>

struct sqlite3;
class Recordset;

class Database {
public:
    enum class Rezim {
        Data,     // the user's data: rollback journal, synchronous FULL
        Pracovni, // the throw-away plan database: no journal, no sync
        JenCteni  // read-only, for checks of foreign files
    };

    // How long a file held by another process is waited for before it is reported (3356).
    static constexpr int CekaniMs = 3000;

    // Opens an existing file of ours. Throws Error 75 (missing or unreadable), 3078 (not our
    // database, or a newer schema), 3356 (held by another program).
    Database(const QString& soubor, Rezim rezim = Rezim::Data);
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    const QString& soubor() const { return m_soubor; }
    sqlite3* handle() const { return m_db.get(); }

    // Runs a statement written in the old dialect (translated). Throws Error.
    void execute(const QString& jet);
    // Runs SQLite text as it stands, with bound values; for our own statements.
    void executeSqlite(const QString& sql, const QVariantList& hodnoty = {});
    // First column of the first row of a query in the old dialect, each `?` bound in order to
    // hodnoty; null when no row.
    QVariant hodnota(const QString& jet, const QVariantList& hodnoty = {});
    // Compacted copy into cil, which must not exist. Throws Error.
    void vacuumInto(const QString& cil);

    // A cached statement for SQLite text (reset, bindings cleared); valid while this lives.
    std::shared_ptr<Prikaz> prikaz(const QString& sql);
    // Column names of a table in table order; throws 3078 for a missing table.
    const QStringList& sloupce(const QString& tabulka);
    // Position of a column in table order, blind to case; -1 when the table has none such.
    int indexSloupce(const QString& tabulka, const QString& pole);

    // The file's schema marks; 0 when not set.
    int applicationId();
    int userVersion();

private:
    struct Zavri {
        void operator()(sqlite3* db) const noexcept;
    };
    QString m_soubor;
    std::unique_ptr<sqlite3, Zavri> m_db;
    QHash<QString, std::shared_ptr<Prikaz>> m_prikazy;
    struct Sloupce {
        QStringList nazvy;
        QHash<QString, int> index; // by lower-case name
    };
    const Sloupce& popis(const QString& tabulka);
    QHash<QString, Sloupce> m_sloupce;
};
