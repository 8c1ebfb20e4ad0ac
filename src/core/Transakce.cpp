#include "core/Transakce.h"

#include "core/Database.h"

#include <sqlite3.h>

Transakce::Transakce(Database& db) : m_db(db)
{
    m_db.executeSqlite(QStringLiteral("BEGIN IMMEDIATE"));
}

Transakce::~Transakce()
{
    if (!m_hotovo)
        sqlite3_exec(m_db.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void Transakce::commit()
{
    m_db.executeSqlite(QStringLiteral("COMMIT"));
    m_hotovo = true;
}
