#include "optimiser/CteniPlanu.h"

#include "core/Database.h"
#include "core/Recordset.h"

namespace CteniPlanu {
namespace {

std::vector<Deska> desky(Database& dataK, const QString& sql, const QVariantList& hodnoty)
{
    std::vector<Deska> vse;
    for (Recordset r(dataK, sql, hodnoty); !r.eof(); r.moveNext())
        vse.push_back({r.text(QStringLiteral("Oznaceni")),
                       r.text(QStringLiteral("Sestava")),
                       r.text(QStringLiteral("popis")),
                       r.cislo(QStringLiteral("x")),
                       r.cislo(QStringLiteral("y")),
                       r.cislo(QStringLiteral("XD")),
                       r.cislo(QStringLiteral("YD")),
                       {r.cislo(QStringLiteral("IDHX1")), r.cislo(QStringLiteral("IDHX2")), r.cislo(QStringLiteral("IDHY1")),
                        r.cislo(QStringLiteral("IDHY2"))},
                       r.ano(QStringLiteral("OV")),
                       r.ano(QStringLiteral("OTOC")),
                       int(r.cislo(QStringLiteral("tabule")))});
    return vse;
}

} // namespace

int posledniTabule(Database& dataK)
{
    Recordset vse(dataK, QStringLiteral("SELECT * FROM SoupisDesek  ORDER BY Tabule "));
    if (vse.eof())
        return 0;
    vse.moveLast();
    return int(vse.cislo(QStringLiteral("tabule")));
}

std::optional<Tabule> tabule(Database& dataK, int nct)
{
    const Recordset t(dataK, QStringLiteral("SELECT * FROM SoupisTabuli  WHERE NCT = ? ORDER BY x,y"), {nct},
                      Recordset::Rozsah::Prvni);
    if (t.eof())
        return std::nullopt;
    return Tabule{int(t.cislo(QStringLiteral("CT"))), t.cislo(QStringLiteral("x")), t.cislo(QStringLiteral("y"))};
}

double plochaDesek(Database& dataK, int n)
{
    return dataK.hodnota(QStringLiteral("SELECT Sum(x * y ) FROM SoupisDesek WHERE Tabule = ?"), {n}).toDouble();
}

std::vector<Deska> deskyTabule(Database& dataK, int n)
{
    return desky(dataK, QStringLiteral("SELECT * FROM SoupisDesek  WHERE ID = True and tabule = ? ORDER BY YD,XD,Y desc"), {n});
}

std::vector<Deska> usazeneDesky(Database& dataK)
{
    return desky(dataK, QStringLiteral("SELECT * FROM Soupisdesek  WHERE ID = True  ORDER BY Tabule,yd,xd"), {});
}

bool hranaNaTabuli(Database& dataK, int n, double idHrany)
{
    return !Recordset(dataK,
                      QStringLiteral("SELECT * FROM SoupisDesek  WHERE ID = True and tabule = ? And (IDHX1 = ? Or IDHX2 = ? "
                                     "Or IDHY1 = ? Or IDHY2 = ? )"),
                      {n, idHrany, idHrany, idHrany, idHrany}, Recordset::Rozsah::Prvni)
                .prazdny();
}

std::vector<Zbytek> zbytkyTabule(Database& dataK, int n)
{
    std::vector<Zbytek> vse;
    for (Recordset r(dataK, QStringLiteral("SELECT * FROM SoupisZbytku  WHERE CT = ? and Oznaceni <> 'ZŘ' ORDER BY YDP"), {n});
         !r.eof(); r.moveNext())
        vse.push_back({r.text(QStringLiteral("Oznaceni")), r.cislo(QStringLiteral("XZP")), r.cislo(QStringLiteral("YZP")),
                       r.cislo(QStringLiteral("XDP")), r.cislo(QStringLiteral("YDP"))});
    return vse;
}

} // namespace CteniPlanu
