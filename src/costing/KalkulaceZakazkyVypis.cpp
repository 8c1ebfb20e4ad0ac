#include "costing/KalkulaceZakazkyVypis.h"

#include "core/Database.h"
#include "core/Jednotky.h"
#include "core/Recordset.h"
#include "costing/Kalkulace.h"
#include "costing/PruchodZakazky.h"
#include "printing/Operace.h"

namespace {

double mm(double v) { return Dokument::mm(v); }

// Boards and bands: one band and one detail table per material, then its summary.
struct Oddil {
    const char* podminka;     // the section's WHERE, without the material
    const char* jednotkaCeny; // "/m2" or "/m"
    QColor barvaLeva, barvaPrava;
    bool hrany;
};

void oddil(Dokument& d, Database& k, const Oddil& o)
{
    const QString m = QLatin1Char(' ') + Vypis::mena();
    const Tabulka detail{{mm(15), mm(80), mm(20), mm(15), mm(25), mm(25)},
                         {Vypis::zarovnani(7), Vypis::zarovnani(6), Vypis::zarovnani(8), Vypis::zarovnani(8), Vypis::zarovnani(8),
                          Vypis::zarovnani(8)}};
    PruchodZakazky::kazdaSkupina(
        Recordset(k, QStringLiteral("SELECT * FROM SoupisProKalkulaci  WHERE ") + QLatin1String(o.podminka) +
                         QStringLiteral(" order by material")),
        QStringLiteral("Material"), [&](const Recordset& materialy, int poradi) {
            const QString material = materialy.text(QStringLiteral("Material"));
            if (poradi > 0)
                d.CurrentY += 400;
            Vypis::pas(d, material, Vypis::castka(materialy.cislo(QStringLiteral("JC"))) + m + QLatin1String(o.jednotkaCeny),
                       o.barvaLeva, o.barvaPrava);
            const QString podminka = QLatin1String(o.podminka) + QStringLiteral(" and Material = ?");
            Recordset r(
                k, QStringLiteral("SELECT * FROM SoupisProKalkulaci WHERE ") + podminka + QStringLiteral(" order by sestava"),
                {material});
            for (; !r.eof(); r.moveNext()) {
                QStringList bunky{r.text(QStringLiteral("Sestava")), r.text(QStringLiteral("Oznaceni"))};
                if (o.hrany)
                    bunky << Vypis::castka(r.cislo(QStringLiteral("delka")), 3) + QStringLiteral(" m")
                          << Jednotky::cislo(r.cislo(QStringLiteral("mnozstvi"))) + QStringLiteral(" ks")
                          << Vypis::castka(r.cislo(QStringLiteral("delkacelkem")), 3) + QStringLiteral(" m");
                else
                    bunky << Vypis::castka(r.cislo(QStringLiteral("plocha"))) + QStringLiteral(" m2")
                          << Vypis::castka(r.cislo(QStringLiteral("mnozstvi")), 0) + QStringLiteral(" ks")
                          << Vypis::castka(r.cislo(QStringLiteral("plochacelkem"))) + QStringLiteral(" m2");
                bunky << Vypis::castka(r.cislo(QStringLiteral("Cena"))) + m;
                Vypis::radek(d, detail, bunky);
            }
            const QString sloupec = o.hrany ? QStringLiteral("delkacelkem") : QStringLiteral("plochacelkem");
            const double mnozstvi =
                k.hodnota(QStringLiteral("SELECT sum(") + sloupec + QStringLiteral(") FROM SoupisProKalkulaci WHERE ") + podminka,
                          {material})
                    .toDouble();
            const double cena =
                k.hodnota(QStringLiteral("SELECT sum(cena) FROM SoupisProKalkulaci WHERE ") + podminka, {material}).toDouble();
            Vypis::souhrn(d, {Vypis::castka(mnozstvi, o.hrany ? 3 : 2) + (o.hrany ? QStringLiteral(" m") : QStringLiteral(" m2")),
                              Vypis::castka(cena) + m});
        });
}

// The rows priced by their own unit: the accessories, and the cutting of the formats.
void poJednotkach(Dokument& d, Database& k, const QString& nadpis, const QString& podminka)
{
    Recordset r(k, QStringLiteral("SELECT * FROM SoupisProKalkulaci  WHERE ") + podminka + QStringLiteral("  order by sestava"));
    if (r.eof())
        return;
    const QString m = QLatin1Char(' ') + Vypis::mena();
    d.CurrentY += 500;
    d.pismo.velikost = 10;
    const double sirka = d.PageWidth() - d.MarginLeft - d.MarginRight;
    RadekTabulky pas{{nadpis}, mm(7)};
    pas.pozadi = Vypis::SedaTlacitka;
    d.AddRow(Tabulka{{sirka}, {}}, pas);
    const Tabulka detail{
        {mm(15), mm(90), mm(25), mm(25), mm(25)},
        {Vypis::zarovnani(7), Vypis::zarovnani(6), Vypis::zarovnani(8), Vypis::zarovnani(8), Vypis::zarovnani(8)}};
    for (; !r.eof(); r.moveNext()) {
        const QString jednotka = r.text(QStringLiteral("jednotka"));
        Vypis::radek(d, detail,
                     {r.text(QStringLiteral("Sestava")), r.text(QStringLiteral("Material")),
                      Vypis::castka(r.cislo(QStringLiteral("mnozstvi")), 3) + QLatin1Char(' ') + jednotka,
                      Vypis::castka(r.cislo(QStringLiteral("JC"))) + m + QLatin1Char('/') + jednotka,
                      Vypis::castka(r.cislo(QStringLiteral("Cena"))) + m});
    }
    Vypis::souhrn(
        d, {Vypis::castka(k.hodnota(QStringLiteral("SELECT sum(cena) FROM SoupisProKalkulaci  WHERE ") + podminka).toDouble()) +
            m});
}

} // namespace

Vypis::Dan KalkulaceZakazkyVypis(Dokument& d, Database& k, const QString& zakazka, const QStringList& sestavy)
{
    Vypis::zacni(d);
    const bool desky = !Recordset(k, QStringLiteral("SELECT * FROM SoupisProKalkulaci  WHERE len(Oznaceni) > 0 and delka = 0"),
                                  Recordset::Rozsah::Prvni)
                            .eof();
    oddil(d, k, {"len(Oznaceni) > 0 and delka = 0", "/m2", Barva::zVB(0xC0E0FF), Barva::zVB(0x80C0FF), false});
    if (desky)
        d.CurrentY += 400;
    oddil(d, k, {"delka > 0", "/m", Barva::zVB(0xFFFFC0), Vypis::SedaZvyrazneni, true});
    poJednotkach(d, k, QStringLiteral("Příslušenství:"),
                 QStringLiteral("len(Oznaceni) = 0 and cislo <> %1").arg(Kalkulace::CisloRezani));
    poJednotkach(d, k, QStringLiteral("Řezání:"), QStringLiteral("cislo = %1").arg(Kalkulace::CisloRezani));
    const Vypis::Dan dan = Vypis::dan(k.hodnota(QStringLiteral("SELECT sum(cena) FROM SoupisProKalkulaci  ")).toDouble());
    Vypis::souhrnDane(d, dan);
    d.EndDoc();
    Vypis::prekryv(d, QStringLiteral("K A L K U L A C E"), zakazka, sestavy);
    return dan;
}
