#include "core/Kolace.h"

#include "core/SqliteChyba.h"

#include <QCollator>
#include <QLocale>
#include <sqlite3.h>

namespace Kolace {

static const QCollator& kolator()
{
    static const QCollator k = [] {
        QCollator c(QLocale(QLocale::Czech, QLocale::CzechRepublic));
        c.setCaseSensitivity(Qt::CaseInsensitive);
        c.setNumericMode(false);
        c.setIgnorePunctuation(false);
        return c;
    }();
    return k;
}

int porovnej(const QString& a, const QString& b)
{
    return kolator().compare(a, b);
}

static int porovnejUtf8(void*, int na, const void* a, int nb, const void* b)
{
    return porovnej(QString::fromUtf8(static_cast<const char*>(a), na),
                    QString::fromUtf8(static_cast<const char*>(b), nb));
}

void registruj(sqlite3* db)
{
    SqliteChyba::zkontroluj(
        db, sqlite3_create_collation_v2(db, Nazev, SQLITE_UTF8, nullptr, porovnejUtf8, nullptr),
        QStringLiteral("collation"));
}

}
