#include "costing/Vypis.h"

#include "catalogues/Knihovna.h"
#include "core/Database.h"
#include "core/Jednotky.h"
#include "core/Nastaveni.h"
#include "core/Razitko.h"
#include "core/Recordset.h"
#include "core/Zaokrouhleni.h"

#include <algorithm>

namespace Vypis {

QString castka(double v, int mist)
{
    return QString::number(Zaokrouhli(v, mist), 'f', mist).replace(QLatin1Char('.'), Jednotky::oddelovac());
}

QString mena() { return Nastaveni::GetSetting(QStringLiteral("Setting2"), QStringLiteral("Mena")); }

double procentoDPH() { return Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("DPH")); }

Qt::Alignment zarovnani(int kod)
{
    switch (kod) {
    case 7: return Qt::AlignRight;
    case 8: return Qt::AlignHCenter;
    default: return Qt::AlignLeft;
    }
}

void zacni(Dokument& d)
{
    d.naSirku = false;
    d.MarginLeft = d.MarginRight = Dokument::mm(10);
    d.MarginTop = Dokument::mm(52);
    d.MarginBottom = Dokument::mm(20);
    d.pismo = Pismo{};
    d.TextColor = Qt::black;
    d.StartDoc();
    d.CurrentY = Dokument::mm(45);
}

void pas(Dokument& d, const QString& levy, const QString& pravy, const QColor& barvaLeva, const QColor& barvaPrava)
{
    d.pismo.velikost = 10;
    d.pismo.tucne = false;
    const double sirka = d.PageWidth() - d.MarginLeft - d.MarginRight;
    Tabulka t{{sirka - 2000, 2000}, {zarovnani(6), zarovnani(7)}};
    RadekTabulky r{{levy, pravy}, Dokument::mm(7)};
    r.pozadiBunek = {barvaLeva, barvaPrava};
    d.AddRow(t, r);
}

void radek(Dokument& d, const Tabulka& t, const QStringList& bunky)
{
    d.pismo.velikost = 8;
    d.pismo.tucne = false;
    d.AddRow(t, RadekTabulky{bunky, Dokument::mm(5)});
}

void souhrn(Dokument& d, const QStringList& bunky)
{
    d.pismo.velikost = 8;
    d.pismo.tucne = true;
    Tabulka t{std::vector<double>(bunky.size(), Dokument::mm(25)), std::vector<Qt::Alignment>(bunky.size(), zarovnani(8))};
    t.vpravo = true;
    d.AddRow(t, RadekTabulky{bunky, Dokument::mm(5)});
    d.pismo.tucne = false;
}

void pasSestavy(Dokument& d, const QString& sestava, double pocet, const QString& popis)
{
    pas(d, sestava + QStringLiteral(" - ") + Jednotky::cislo(pocet) + QStringLiteral(" ks - ") + popis);
}

void pas(Dokument& d, const QString& text)
{
    if (d.CurrentY > d.PageHeight() - d.MarginBottom - 2500 && d.CurrentY < d.PageHeight())
        d.CurrentY += 2500;
    d.pismo.velikost = 10;
    d.pismo.tucne = false;
    RadekTabulky r{{text}, Dokument::mm(7)};
    r.pozadi = Barva::zVB(0xC0E0FF);
    d.AddRow(Tabulka{{d.PageWidth() - d.MarginLeft - d.MarginRight}, {}}, r);
}

void zlomStranyPodPrahem(Dokument& d)
{
    if (d.PageHeight() - d.MarginBottom - d.CurrentY < 2200)
        d.CurrentY += 2200;
}

void schema(Dokument& d, Database& cenik, double ide)
{
    if (ide == 0)
        return;
    const QImage obr = Knihovna::obrazek(cenik, Knihovna::Druh::Schemata, int(ide));
    if (obr.isNull())
        return;
    zlomStranyPodPrahem(d);
    // fitted to the printable width, but never taller than 70 mm, so that a drawing keeps to
    // its assembly's page and leaves room for the prices
    const double sirkaStrany = d.PageWidth() - d.MarginLeft - d.MarginRight;
    const double nejvys = Dokument::mm(70);
    double sirka = sirkaStrany, vyska = sirka * obr.height() / obr.width();
    if (vyska > nejvys) {
        vyska = nejvys;
        sirka = vyska * obr.width() / obr.height();
    }
    if (d.presahne(vyska))
        d.NewPage();
    d.DrawPicture(obr, d.MarginLeft + (sirkaStrany - sirka) / 2, d.CurrentY, sirka, vyska);
    d.CurrentY += vyska;
}

Dan dan(double zaklad)
{
    const double celkem = Zaokrouhli(zaklad * (procentoDPH() / 100 + 1), 2);
    return {zaklad, celkem - zaklad, celkem};
}

void souhrnDane(Dokument& d, const Dan& dan, const VzhledDane& vzhled)
{
    d.CurrentY += vzhled.mezera;
    d.pismo.velikost = 12;
    d.pismo.tucne = true;
    const QString m = QLatin1Char(' ') + mena();
    // a large total widens its column rather than break across two lines
    const double nejsirsi = std::max({d.TextWidth(castka(dan.zaklad) + m), d.TextWidth(castka(dan.celkem) + m)}) + 120;
    const Tabulka t{{Dokument::mm(vzhled.levy), std::max(Dokument::mm(vzhled.pravy), nejsirsi)}, {Qt::AlignLeft, Qt::AlignRight}};
    d.AddRow(t, RadekTabulky{{QStringLiteral("Základ daně"), castka(dan.zaklad) + m}, Dokument::mm(7)});
    d.AddRow(
        t, RadekTabulky{{QStringLiteral("DPH ( ") + Jednotky::cislo(procentoDPH()) + QStringLiteral("% )"), castka(dan.dph) + m},
                        Dokument::mm(7)});
    RadekTabulky celkem{{QStringLiteral("Celkem včetně DPH"), castka(dan.celkem) + m}, Dokument::mm(7)};
    celkem.pozadiBunek = {QColor(), vzhled.pozadiCelkem};
    d.AddRow(t, celkem);
    d.pismo.tucne = false;
}

namespace {

// A text in a box of its measured size plus 20 twips, as every report writes its captions.
void textVRamecku(Dokument& d, const QString& text, double x, double y)
{
    d.TextBox(text, QRectF(x, y, d.TextWidth(text) + 20, d.TextHeight(text) + 20), Qt::AlignLeft | Qt::AlignTop);
}

} // namespace

void prekryv(Dokument& d, const QString& titulek, const QString& zakazka, const QStringList& sestavy, const QString& poznamka)
{
    const Pismo puvodni = d.pismo;
    const QString ted = Razitko::ted().toString(QStringLiteral("d.M.yyyy H:mm:ss"));
    for (int p = 1; p <= d.PageCount(); ++p) {
        d.StartOverlay(p);
        d.pero = Pero{Qt::black, Dokument::mm(1), true};
        d.DrawLine(Dokument::mm(10), Dokument::mm(30), Dokument::mm(200), Dokument::mm(30));
        d.pero.sirka = Dokument::mm(0.1);
        d.DrawLine(Dokument::mm(10), Dokument::mm(31), Dokument::mm(200), Dokument::mm(31));
        d.pero.sirka = 1;
        d.pismo = Pismo{};
        d.pismo.velikost = 14;
        d.pismo.tucne = true;
        textVRamecku(d, titulek, d.PageWidth() / 2 - d.TextWidth(titulek) / 2, Dokument::mm(20));
        d.pismo.velikost = 12;
        d.pismo.tucne = false;
        textVRamecku(d, QStringLiteral("Zakázka:"), d.MarginLeft, Dokument::mm(35));
        d.pismo.podtrzene = true;
        const double x = Dokument::mm(poznamka.isNull() ? 30 : 35);
        textVRamecku(d, zakazka, x, Dokument::mm(35));
        d.pismo.podtrzene = false;
        if (poznamka.isNull()) {
            textVRamecku(d, QStringLiteral("Sestavy:"), d.MarginLeft, Dokument::mm(40));
            d.pismo.podtrzene = true;
            const QString s = sestavy.join(QStringLiteral(", "));
            const double sirka = d.PageWidth() - d.MarginRight - 2000;
            d.TextBox(s, QRectF(Dokument::mm(30), Dokument::mm(40), sirka, d.TextHeight(s) + 300), Qt::AlignLeft | Qt::AlignTop);
            d.pismo.podtrzene = false;
        } else {
            textVRamecku(d, QStringLiteral("Poznámka:"), d.MarginLeft, Dokument::mm(40));
            d.TextBox(poznamka, QRectF(x, Dokument::mm(40), d.PageWidth() - d.MarginRight - 2000 - x, Dokument::mm(10)),
                      Qt::AlignLeft | Qt::AlignTop);
        }
        d.pismo.velikost = 6;
        d.pismo.kurziva = true;
        const double y = d.PageHeight() - d.MarginBottom + d.TextHeight(QStringLiteral("X"));
        textVRamecku(d, ted, d.MarginLeft, y);
        const QString strana =
            QStringLiteral("Strana  ") + QString::number(p) + QStringLiteral(" / ") + QString::number(d.PageCount());
        textVRamecku(d, strana, d.PageWidth() / 2 - d.TextWidth(strana) / 2, y);
        const QString program = QStringLiteral("Pracovní stůl truhlářské dílny - Truhlář");
        textVRamecku(d, program, d.PageWidth() - d.MarginRight - d.TextWidth(program) - 20, y);
        const QString firma = QStringLiteral("Truhlář");
        textVRamecku(d, firma, d.PageWidth() - d.MarginRight - d.TextWidth(firma) - 20, y + d.TextHeight(firma));
        d.EndOverlay();
    }
    d.pismo = puvodni;
}

} // namespace Vypis
