#include "orders/RadkySestavy.h"

#include "core/Dotaz.h"

namespace RadkySestavy {

QString dotaz(const QString& zakazka, const QString& sestava)
{
    return QStringLiteral("SELECT * FROM Zakazky WHERE Zakazka = '") + Dotaz::text(zakazka) +
           QStringLiteral("' and Sestava = '") + Dotaz::text(sestava) + QStringLiteral("'");
}

std::optional<Recordset> podleNazvu(Database& db, const QString& zakazka, const QString& sestava, const QString& oznaceni)
{
    Recordset rs(db, dotaz(zakazka, sestava) + QStringLiteral(" and Oznaceni = '") + Dotaz::text(oznaceni) +
                         QStringLiteral("'ORDER BY Oznaceni"),
                 Recordset::Rozsah::Prvni);
    if (rs.eof())
        return std::nullopt;
    return rs;
}

}
