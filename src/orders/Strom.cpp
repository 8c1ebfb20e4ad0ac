#include "orders/Strom.h"

#include "core/Dotaz.h"
#include "core/Recordset.h"
#include "orders/RadkyZakazky.h"

#include <set>

QString UzelSestavy::text() const { return nazev + QStringLiteral(" ( ") + Dotaz::cislo(pocet) + QStringLiteral(" ks )"); }

std::vector<UzelZakazky> NaplnitStrom(Database& dataS)
{
    std::vector<UzelZakazky> strom;
    std::set<QString> videne; // two orders saved in one second may interleave: each stands once
    QString predchozi;
    bool prvni = true;
    for (Recordset rs(dataS, QStringLiteral("SELECT * FROM Zakazky ORDER BY Datum ")); !rs.eof(); rs.moveNext()) {
        const QString zakazka = rs.text(QStringLiteral("Zakazka"));
        if (!prvni && zakazka == predchozi)
            continue;
        prvni = false;
        predchozi = zakazka;
        if (!videne.insert(zakazka).second)
            continue;
        UzelZakazky uzel{zakazka, {}};
        Recordset sestavy = RadkyZakazky::radky(dataS, zakazka, QStringLiteral("Sestava"));
        // an order whose first row (in name order) has no assembly has no children
        if (!sestavy.eof() && sestavy.text(QStringLiteral("Sestava")).isEmpty())
            sestavy.moveLast(), sestavy.moveNext();
        QString posledni;
        for (; !sestavy.eof(); sestavy.moveNext()) {
            const QString s = sestavy.text(QStringLiteral("Sestava"));
            if (s == posledni)
                continue;
            posledni = s;
            uzel.sestavy.push_back({s, sestavy.cislo(QStringLiteral("pocetelementuVsestave"))});
        }
        strom.push_back(uzel);
    }
    return strom;
}

std::optional<UzelZakazky> UzelZakazkyPodleNazvu(Database& dataS, const QString& zakazka)
{
    for (UzelZakazky& z : NaplnitStrom(dataS))
        if (z.nazev == zakazka)
            return std::move(z);
    return std::nullopt;
}
