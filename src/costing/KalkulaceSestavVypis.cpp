#include "costing/KalkulaceSestavVypis.h"

#include "core/Database.h"
#include "core/Jednotky.h"
#include "core/Recordset.h"
#include "core/Zaokrouhleni.h"
#include "costing/Kalkulace.h"
#include "costing/PruchodZakazky.h"
#include "printing/Operace.h"

#include <cmath>

namespace {

double mm(double v) { return Dokument::mm(v); }
QString m() { return QLatin1Char(' ') + Vypis::mena(); }

// The rows of one assembly (sestava) in its order; with rezani the cutting's rows instead.
void polozkySestavy(Dokument& d, Database& k, const QString& sestava, bool rezani = false)
{
    const Tabulka t{{mm(90), mm(25), mm(25), mm(25)},
                    {Vypis::zarovnani(6), Vypis::zarovnani(8), Vypis::zarovnani(8), Vypis::zarovnani(8)}};
    d.pismo.velikost = 8;
    d.pismo.tucne = false;
    const QString podminka = rezani ? QStringLiteral("cislo = %1").arg(Kalkulace::CisloRezani) : QStringLiteral("Sestava = ?");
    for (Recordset r(k, QStringLiteral("SELECT * FROM SoupisProKalkulaciCelkem WHERE ") + podminka + QStringLiteral(" order by cislo"),
                     rezani ? QVariantList{} : QVariantList{sestava});
         !r.eof(); r.moveNext()) {
        const QString jednotka = r.text(QStringLiteral("jednotka"));
        d.AddRow(t, RadekTabulky{{r.text(QStringLiteral("Material")),
                                  Vypis::castka(r.cislo(QStringLiteral("mnozstvi")), 3) + QLatin1Char(' ') + jednotka,
                                  Vypis::castka(r.cislo(QStringLiteral("JC"))) + m() + QLatin1Char('/') + jednotka,
                                  Vypis::castka(r.cislo(QStringLiteral("Cena"))) + m()},
                                 mm(5) + 80});
    }
}

// Caption and value rows of 7 mm, bold, the last value lit when asked.
void cenyTabulka(Dokument& d, double levy, double pravy, const QList<QPair<QString, QString>>& radky, const QColor& posledni = {})
{
    d.pismo.velikost = 8;
    d.pismo.tucne = true;
    const Tabulka t{{mm(levy), mm(pravy)}, {Qt::AlignLeft, Qt::AlignRight}};
    for (int i = 0; i < radky.size(); ++i) {
        RadekTabulky r{{radky[i].first, radky[i].second}, mm(7)};
        if (i == radky.size() - 1)
            r.pozadiBunek = {QColor(), posledni};
        d.AddRow(t, r);
    }
    d.pismo.tucne = false;
}

// The quotation's rows under a price without VAT: the VAT at dph percent and the price with it.
QList<QPair<QString, QString>> sDPH(double cena, double dph)
{
    return {{QStringLiteral("DPH (") + Jednotky::cislo(dph) + QStringLiteral("%):"), Vypis::castka(cena * dph / 100) + m()},
            {QStringLiteral("celkem s DPH:"), Vypis::castka(cena * (dph / 100 + 1)) + m()}};
}

// The cutting after the assemblies: its rows (in the quotation, as an assembly there, only its
// prices) and its price, which the assembly calculation adds to its base (the quotation's base
// sums every row anyway).
double rezani(Dokument& d, Database& k, bool nabidka)
{
    const QVariant cena = k.hodnota(
        QStringLiteral("SELECT sum(cena) FROM SoupisProKalkulaciCelkem WHERE cislo = %1").arg(Kalkulace::CisloRezani));
    if (cena.isNull())
        return 0;
    Vypis::pas(d, QStringLiteral("Řezání"));
    const double c = Zaokrouhli(cena.toDouble(), 2);
    const QPair<QString, QString> radek{QStringLiteral("cena za řezání (bez DPH):"), Vypis::castka(c) + m()};
    if (nabidka)
        cenyTabulka(d, 55, 35, QList{radek} + sDPH(c, Vypis::procentoDPH()), Barva::zVB(0xFFFFC0));
    else {
        polozkySestavy(d, k, QString(), true);
        cenyTabulka(d, 50, 25, {radek});
    }
    Vypis::zlomStranyPodPrahem(d);
    d.CurrentY += 200;
    return nabidka ? 0 : c;
}

} // namespace

VysledekSestav KalkulaceSestavVypis(Dokument& d, Database& k, Database& cenik, const QString& zakazka, const QStringList& sestavy,
                                    DruhSestav druh)
{
    const bool nabidka = druh == DruhSestav::Nabidka;
    Vypis::zacni(d);
    d.CurrentY = mm(55);
    VysledekSestav v;
    double zaklad = 0;
    const double dph = Vypis::procentoDPH();
    PruchodZakazky::kazdaSkupina(
        Recordset(k, QStringLiteral("SELECT * FROM SoupisProKalkulaciCelkem WHERE cislo <> %1 order by Sestava")
                         .arg(Kalkulace::CisloRezani)),
        QStringLiteral("Sestava"),
        [&](const Recordset& a, int) {
            const QString sestava = a.text(QStringLiteral("Sestava"));
            const double pocet = a.cislo(QStringLiteral("pocetsestav"));
            Vypis::pasSestavy(d, sestava, pocet, a.text(QStringLiteral("popis")));
            if (!nabidka)
                polozkySestavy(d, k, sestava);
            Vypis::schema(
                d, cenik,
                k.hodnota(QStringLiteral("SELECT max(schema) FROM SoupisProKalkulaciCelkem WHERE Sestava = ?"), {sestava})
                    .toDouble());
            const double p =
                k.hodnota(QStringLiteral("SELECT sum(cena) FROM SoupisProKalkulaciCelkem WHERE Sestava = ?"), {sestava})
                    .toDouble();
            CenaSestavy c{sestava, pocet};
            const QString kusu = Jednotky::cislo(pocet) + QStringLiteral(" ks (bez DPH):");
            if (nabidka) {
                // the unrounded piece price goes on; each cell is rounded only in print
                c = {sestava, pocet, p, p * pocet, p * pocet * dph / 100, p * pocet * (dph / 100 + 1)};
                cenyTabulka(d, 55, 35,
                            QList<QPair<QString, QString>>{
                                {QStringLiteral("cena za 1 ks sestavy (bez DPH):"), Vypis::castka(c.cena1ks) + m()},
                                {QStringLiteral("cena celkem za ") + kusu, Vypis::castka(c.cena) + m()}} +
                                sDPH(c.cena, dph),
                            Barva::zVB(0xFFFFC0));
            } else {
                c.cena1ks = Zaokrouhli(p, 2);
                c.cena = Zaokrouhli(c.cena1ks * pocet, 2);
                zaklad += c.cena;
                cenyTabulka(d, 50, 25,
                            {{QStringLiteral("cena za 1 ks sestavy (bez DPH):"), Vypis::castka(c.cena1ks) + m()},
                             {QStringLiteral("cena za ") + kusu, Vypis::castka(c.cena) + m()}});
            }
            v.sestavy.push_back(c);
            Vypis::zlomStranyPodPrahem(d);
            d.CurrentY += 200;
        });
    zaklad += rezani(d, k, nabidka);
    if (nabidka)
        for (Recordset r(k, QStringLiteral("SoupisProKalkulaciCelkem")); !r.eof(); r.moveNext())
            zaklad += r.cislo(QStringLiteral("Cena")) * r.cislo(QStringLiteral("pocetsestav"));
    v.dan = Vypis::dan(zaklad);
    Vypis::souhrnDane(d, v.dan, nabidka ? Vypis::VzhledDane{55, 35, 300, {}} : Vypis::VzhledDane{50, 30, 300, {}});
    d.EndDoc();
    Vypis::prekryv(d, nabidka ? QStringLiteral("CENOVÁ NABÍDKA") : QStringLiteral("KALKULACE SESTAV"), zakazka, sestavy);
    return v;
}

QString nakupMaterialu(const QString& popis, const QString& material, double mnozstvi, const QString& jednotka)
{
    // quotients a hair under a whole number must not lose a sheet or a metre
    auto cele = [](double v) { return std::floor(Zaokrouhli(v, 6)); };
    if (popis == QLatin1String("Hrana"))
        return QString::number(cele(mnozstvi) + 1, 'f', 0) + QLatin1Char(' ') + jednotka;
    if (popis == QLatin1String("Prislusenstvi") || popis == QLatin1String("Rezani"))
        return Vypis::castka(mnozstvi, 3) + QLatin1Char(' ') + jednotka;
    // the sheet's size is the last bracket of the name: "name (2800 mm x 2070 mm)"
    const QString rozmer =
        material.mid(material.lastIndexOf(QLatin1Char('(')) + 1).chopped(material.endsWith(QLatin1Char(')')) ? 1 : 0);
    const QStringList xy = rozmer.split(QStringLiteral(" x "));
    const double plocha = xy.size() == 2 ? Jednotky::NaMilimetry(xy[0]) / 1000 * (Jednotky::NaMilimetry(xy[1]) / 1000) : 0;
    if (plocha <= 0)
        return QString();
    return QString::number(cele(mnozstvi / plocha) + 1, 'f', 0) + QStringLiteral(" tab. ");
}

VysledekNakupu NakupVypis(Dokument& d, Database& k, const QString& zakazka, const QStringList& sestavy)
{
    Vypis::zacni(d);
    d.CurrentY = mm(55);
    const Tabulka t{{mm(90), mm(25), mm(25), mm(25), mm(25)},
                    {Vypis::zarovnani(6), Vypis::zarovnani(8), Vypis::zarovnani(8), Vypis::zarovnani(8), Vypis::zarovnani(8)}};
    RadekTabulky hlava{{QStringLiteral("Materiál"), QStringLiteral("Množství"), QStringLiteral("Nákup"), QStringLiteral("JC"),
                        QStringLiteral("Cena")},
                       mm(5) + 120};
    hlava.pozadi = Vypis::Zluta;
    d.pismo.velikost = 8;
    d.AddRow(t, hlava);
    VysledekNakupu v;
    for (Recordset r(k, QStringLiteral("SELECT * FROM SoupisProKalkulaciCelkem  order by cislo")); !r.eof(); r.moveNext()) {
        const QString jednotka = r.text(QStringLiteral("jednotka"));
        const PolozkaNakupu p{r.text(QStringLiteral("Material")),
                              nakupMaterialu(r.text(QStringLiteral("popis")), r.text(QStringLiteral("Material")),
                                             r.cislo(QStringLiteral("mnozstvi")), jednotka)};
        if (d.presahne(mm(5) + 80)) { // the head again at the top of every page
            d.NewPage();
            d.AddRow(t, hlava);
        }
        d.AddRow(t, RadekTabulky{{p.material, Vypis::castka(r.cislo(QStringLiteral("mnozstvi")), 3) + QLatin1Char(' ') + jednotka,
                                  p.nakup, Vypis::castka(r.cislo(QStringLiteral("JC"))) + m() + QLatin1Char('/') + jednotka,
                                  Vypis::castka(r.cislo(QStringLiteral("Cena"))) + m()},
                                 mm(5) + 80});
        v.nakup.push_back(p);
    }
    v.dan = Vypis::dan(k.hodnota(QStringLiteral("SELECT sum(cena) FROM SoupisProKalkulaciCelkem  ")).toDouble());
    Vypis::souhrnDane(d, v.dan, Vypis::VzhledDane{50, 25, 500, Vypis::Zluta});
    d.EndDoc();
    Vypis::prekryv(d, QStringLiteral("NÁKUP MATERIÁLU"), zakazka, sestavy);
    return v;
}
