#include "core/Prikaz.h"

#include "core/SqliteChyba.h"

#include <QByteArray>
#include <sqlite3.h>

void Prikaz::Uvolni::operator()(sqlite3_stmt* s) const noexcept
{
    sqlite3_finalize(s);
}

Prikaz::Prikaz(sqlite3* db, const QString& sql, bool trvaly) : m_db(db), m_sql(sql)
{
    const QByteArray utf8 = sql.toUtf8();
    sqlite3_stmt* stmt = nullptr;
    const int rc = sqlite3_prepare_v3(db, utf8.constData(), int(utf8.size()),
                                      trvaly ? SQLITE_PREPARE_PERSISTENT : 0, &stmt, nullptr);
    m_stmt.reset(stmt);
    SqliteChyba::zkontroluj(db, rc, sql);
}

void Prikaz::navaz(int pozice, const QVariant& hodnota)
{
    sqlite3_stmt* s = m_stmt.get();
    int rc = SQLITE_OK;
    switch (hodnota.typeId()) {
    case QMetaType::UnknownType:
    case QMetaType::Nullptr:
        rc = sqlite3_bind_null(s, pozice);
        break;
    case QMetaType::Bool:
        rc = sqlite3_bind_int64(s, pozice, hodnota.toBool() ? -1 : 0);
        break;
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Short:
        rc = sqlite3_bind_int64(s, pozice, hodnota.toLongLong());
        break;
    case QMetaType::Double:
    case QMetaType::Float:
        rc = sqlite3_bind_double(s, pozice, hodnota.toDouble());
        break;
    case QMetaType::QByteArray: {
        const QByteArray b = hodnota.toByteArray();
        rc = sqlite3_bind_blob64(s, pozice, b.constData(), sqlite3_uint64(b.size()),
                                 SQLITE_TRANSIENT);
        break;
    }
    default: {
        if (hodnota.isNull()) {
            rc = sqlite3_bind_null(s, pozice);
            break;
        }
        const QByteArray t = hodnota.toString().toUtf8();
        rc = sqlite3_bind_text64(s, pozice, t.constData(), sqlite3_uint64(t.size()),
                                 SQLITE_TRANSIENT, SQLITE_UTF8);
    }
    }
    SqliteChyba::zkontroluj(m_db, rc, m_sql);
}

bool Prikaz::krok()
{
    const int rc = sqlite3_step(m_stmt.get());
    if (rc == SQLITE_ROW)
        return true;
    if (rc == SQLITE_DONE)
        return false;
    const int chyba = sqlite3_reset(m_stmt.get());
    SqliteChyba::vyhod(m_db, chyba ? chyba : rc, m_sql);
}

void Prikaz::reset()
{
    sqlite3_reset(m_stmt.get());
    sqlite3_clear_bindings(m_stmt.get());
}

int Prikaz::pocetSloupcu() const
{
    return sqlite3_column_count(m_stmt.get());
}

QVariant Prikaz::sloupec(int i) const
{
    sqlite3_stmt* s = m_stmt.get();
    switch (sqlite3_column_type(s, i)) {
    case SQLITE_INTEGER:
        return QVariant(qlonglong(sqlite3_column_int64(s, i)));
    case SQLITE_FLOAT:
        return QVariant(sqlite3_column_double(s, i));
    case SQLITE_TEXT:
        return QVariant(QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(s, i)),
                                          sqlite3_column_bytes(s, i)));
    case SQLITE_BLOB:
        return QVariant(QByteArray(static_cast<const char*>(sqlite3_column_blob(s, i)),
                                   sqlite3_column_bytes(s, i)));
    default:
        return QVariant();
    }
}

QString Prikaz::nazevSloupce(int i) const
{
    return QString::fromUtf8(sqlite3_column_name(m_stmt.get(), i));
}
