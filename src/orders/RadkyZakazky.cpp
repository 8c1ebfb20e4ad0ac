#include "orders/RadkyZakazky.h"

namespace RadkyZakazky {
namespace {

QString poradi(const QString& razeni) { return razeni.isEmpty() ? QString() : QStringLiteral(" ORDER BY ") + razeni; }

QString podminka(Pouziti pouziti)
{
    switch (pouziti) {
    case Pouziti::Formaty: return QStringLiteral(" and Pouziti <> 'hrana'");
    case Pouziti::Hrany: return QStringLiteral(" and Pouziti = 'hrana'");
    case Pouziti::Vse: break;
    }
    return QString();
}

std::optional<Recordset> prvni(Recordset&& rs)
{
    if (rs.eof())
        return std::nullopt;
    return std::move(rs);
}

const QString zakazky = QStringLiteral("SELECT * FROM Zakazky WHERE Zakazka = ?");
const QString sestavy = QStringLiteral("SELECT * FROM Zakazky WHERE Zakazka = ? and Sestava = ?");
const QString sHranou = QStringLiteral(" and (IDHX1 = ? or IDHX2 = ? or IDHY1 = ? or IDHY2 = ?)");

} // namespace

bool existuje(Database& db, const QString& zakazka) { return !radky(db, zakazka, {}, Rozsah::Prvni).eof(); }

bool existujeSestava(Database& db, const QString& zakazka, const QString& sestava)
{
    return !radkySestavy(db, zakazka, sestava, {}, Rozsah::Prvni).eof();
}

Recordset radky(Database& db, const QString& zakazka, const QString& razeni, Rozsah rozsah)
{
    return Recordset(db, zakazky + poradi(razeni), {zakazka}, rozsah);
}

Recordset radkySestavy(Database& db, const QString& zakazka, const QString& sestava, const QString& razeni, Rozsah rozsah)
{
    return Recordset(db, sestavy + poradi(razeni), {zakazka, sestava}, rozsah);
}

Recordset polozkySestavy(Database& db, const QString& zakazka, const QString& sestava, const QString& razeni)
{
    return Recordset(db, sestavy + QStringLiteral(" and cas > 0") + poradi(razeni), {zakazka, sestava});
}

std::optional<Recordset> polozka(Database& db, const QString& zakazka, const QString& sestava, const QString& oznaceni)
{
    return prvni(Recordset(db, sestavy + QStringLiteral(" and Oznaceni = ? ORDER BY Oznaceni"), {zakazka, sestava, oznaceni},
                           Rozsah::Prvni));
}

Recordset deskyFormatu(Database& db, const QString& zakazka, double idFormatu, const QString& razeni)
{
    return Recordset(db, zakazky + QStringLiteral(" and IDFormat = ?") + poradi(razeni), {zakazka, idFormatu});
}

Recordset deskySestavy(Database& db, const QString& zakazka, const QString& sestava, double idFormatu, const QString& razeni)
{
    return Recordset(db, sestavy + QStringLiteral(" and IDFormat = ?") + poradi(razeni), {zakazka, sestava, idFormatu});
}

Recordset deskySHranou(Database& db, const QString& zakazka, double idHrany, const QString& sestava)
{
    if (sestava.isNull())
        return Recordset(db, zakazky + sHranou + poradi(QStringLiteral("Sestava")),
                         {zakazka, idHrany, idHrany, idHrany, idHrany});
    return Recordset(db, sestavy + sHranou + poradi(QStringLiteral("Sestava")),
                     {zakazka, sestava, idHrany, idHrany, idHrany, idHrany});
}

Recordset materialy(Database& db, const QString& zakazka, Pouziti pouziti)
{
    return Recordset(db, QStringLiteral("SELECT * FROM ZakazkyMaterialy WHERE Zakazka = ?") + podminka(pouziti), {zakazka});
}

std::optional<Recordset> material(Database& db, const QString& zakazka, double id, Pouziti pouziti)
{
    return prvni(Recordset(db, QStringLiteral("SELECT * FROM ZakazkyMaterialy WHERE Zakazka = ? and ID = ?") + podminka(pouziti),
                           {zakazka, id}, Rozsah::Prvni));
}

std::optional<Recordset> materialPodleNazvu(Database& db, const QString& zakazka, const QString& nazev, Pouziti pouziti)
{
    return prvni(
        Recordset(db, QStringLiteral("SELECT * FROM ZakazkyMaterialy WHERE Zakazka = ? and Material = ?") + podminka(pouziti),
                  {zakazka, nazev}, Rozsah::Prvni));
}

} // namespace RadkyZakazky
