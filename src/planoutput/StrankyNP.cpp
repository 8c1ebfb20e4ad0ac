#include "planoutput/StrankyNP.h"

#include "catalogues/Cenik.h"
#include "catalogues/Knihovna.h"
#include "core/Jednotky.h"
#include "core/Nastaveni.h"
#include "core/Recordset.h"
#include "core/Uloziste.h"
#include "core/Val.h"
#include "optimiser/CteniPlanu.h"
#include "optimiser/PlanRun.h"
#include "orders/RadkyZakazky.h"
#include "planoutput/KresleniNP.h"

#include <QFontMetricsF>
#include <cmath>

namespace {

QString nastaveni2(const char* klic) { return Nastaveni::GetSetting(QStringLiteral("Setting2"), QLatin1String(klic)); }

// Where one sheet stands on its page: its cell, and the height of its block of information.
struct Bunka {
    QRectF ramec;
    double blok;
};

struct Rozvrzeni {
    int naStranu;
    bool naSirku;
    double blok;
    int sloupcu;
};

Rozvrzeni rozvrzeni(int kolik)
{
    switch (kolik) {
    case 1: return {1, true, 1400, 1};
    case 2: return {2, false, 1000, 1};
    default: return {4, true, 1000, 2};
    }
}

Bunka bunka(const Dokument& d, const Rozvrzeni& r, int poradi)
{
    const double sirka = d.PageWidth() - d.MarginLeft - d.MarginRight;
    const double vyska = d.PageHeight() - d.MarginTop - d.MarginBottom;
    const int radku = r.naStranu / r.sloupcu;
    const double w = sirka / r.sloupcu, h = vyska / radku;
    return {QRectF(d.MarginLeft + (poradi % r.sloupcu) * w, d.MarginTop + (poradi / r.sloupcu) * h, w, h), r.blok};
}

// The sheet's scale and its origin on the page, centred below the block of information.
struct Umisteni {
    double Meritko, OkrajX, OkrajY, sirka, vyska;
};

Umisteni umisti(Dokument& d, const Bunka& b, double x, double y)
{
    d.pismo.velikost = 10;
    const double m = d.TextHeight(Jednotky::cislo(x)) + 200;
    const double prostorX = b.ramec.width() - 2 * m;
    const double prostorY = b.ramec.height() - 2 * m - b.blok;
    Umisteni u;
    u.Meritko = x / y >= prostorX / prostorY ? Round(prostorX / x, 4) : Round(prostorY / y, 4);
    u.sirka = std::floor(x * u.Meritko);
    u.vyska = std::floor(y * u.Meritko);
    u.OkrajX = (b.ramec.width() - u.sirka) / 2 + b.ramec.left();
    u.OkrajY = (b.ramec.height() - u.vyska - b.blok) / 2 + b.ramec.top() + b.blok;
    return u;
}

// Everything a page run reads once.
struct Kontext {
    Dokument& d;
    Uloziste& u;
    const PlanNaStrankach& plan;
    StylNP deska, odrezek;
    BarvyHran hrany;
    QColor odpad;
    bool zobrazeniHran;
    double XZ, YZ;
    QString material;
    QImage vzor;
    int posledni;
};

QImage vzorMaterialu(Uloziste& u, const QString& material)
{
    const auto polozka = Cenik::nacti(u.cenik(), material);
    if (!polozka || polozka->obr1 <= 0)
        return {};
    return Knihovna::obrazek(u.cenik(), Knihovna::Druh::Obrazky, polozka->obr1);
}

// A caption in its frame (its size plus 20) and its value beside it; returns the width used.
double popisek(Dokument& d, double x, double y, const QString& nazev, const QString& hodnota, double nejvic)
{
    const double w = d.TextWidth(nazev) + 20, h = d.TextHeight(nazev) + 20;
    d.stetec.pruhledny = true;
    d.DrawRectangle(x, y, x + w, y + h);
    d.CurrentX = x + 10;
    d.CurrentY = y + 10;
    d.Text(nazev);
    const double volno = nejvic - w - 80;
    const QString v = QFontMetricsF(d.pismo.font()).elidedText(hodnota, Qt::ElideRight, qMax(0.0, volno));
    if (v.isEmpty())
        return w;
    d.pismo.tucne = true;
    d.CurrentX = x + w + 80;
    d.Text(v);
    const double sirka = d.TextWidth(v);
    d.pismo.tucne = false;
    return w + 80 + sirka;
}

// The band legend at the right of the block; returns its left edge.
double legenda(Dokument& d, Kontext& k, const QRectF& blok, int tabule)
{
    if (!k.zobrazeniHran)
        return blok.right();
    QStringList nazvy;
    QList<QColor> barvy;
    Recordset hrany = RadkyZakazky::materialy(k.u.dataS(), k.plan.zakazka, RadkyZakazky::Pouziti::Hrany);
    for (; !hrany.eof(); hrany.moveNext()) {
        if (!CteniPlanu::hranaNaTabuli(k.u.dataK(), tabule, hrany.cislo(QStringLiteral("ID"))))
            continue;
        nazvy << hrany.text(QStringLiteral("Material"));
        barvy << Barva::zVB(qint64(hrany.cislo(QStringLiteral("BarvaVNP"))));
    }
    if (nazvy.isEmpty())
        return blok.right();
    const double radek = d.TextHeight(QStringLiteral("X")) + 60;
    const int naSloupec = qMax(1, int(blok.height() / radek));
    const double vzorek = Dokument::mm(8);
    double sirka = 0;
    for (const QString& n : nazvy)
        sirka = qMax(sirka, d.TextWidth(n));
    sirka = qMin(sirka, blok.width() / 3) + vzorek + 200;
    double levy = blok.right();
    for (int i = 0; i < nazvy.size(); ++i) {
        if (i % naSloupec == 0)
            levy -= sirka + 200;
        const double y = blok.top() + (i % naSloupec) * radek;
        d.stetec = Stetec{barvy[i], false};
        d.pero.barva = barvy[i];
        d.DrawRectangle(levy, y + radek / 2 - Dokument::mm(1), levy + vzorek, y + radek / 2 + Dokument::mm(1));
        d.CurrentX = levy + vzorek + 100;
        d.CurrentY = y + 30;
        d.Text(QFontMetricsF(d.pismo.font()).elidedText(nazvy[i], Qt::ElideRight, sirka - vzorek - 200));
    }
    d.pero.barva = k.deska.barvaPisma;
    return levy;
}

// Draws the block at the font size given; answers whether it fitted beside the legend without
// cutting a value short.
bool blokInformaci(Dokument& d, Kontext& k, const QRectF& blok, int n, double x, double y, int ct, double vyuziti,
                   double velikost)
{
    d.pismo = k.deska.pismo;
    d.pismo.velikost = velikost;
    d.pismo.tucne = d.pismo.kurziva = d.pismo.podtrzene = d.pismo.preskrtnute = false;
    d.TextAngle = 0;
    d.TextColor = d.pero.barva = k.deska.barvaPisma;
    d.pero.sirka = 1;
    const double radek = d.TextHeight(QStringLiteral("X")) + 80;
    // Vzor tabule: the sample from the price list, under its caption.
    const QString vzorTabule = QStringLiteral("Vzor tabule:");
    double x0 = blok.left();
    const double vyskaVzoru = qMin(Dokument::mm(17), blok.height() - radek - 40);
    const double sirkaVzoru = vyskaVzoru * 29 / 17;
    popisek(d, x0, blok.top(), vzorTabule, QString(), d.TextWidth(vzorTabule) + 20);
    if (!k.vzor.isNull()) {
        const QSizeF s = QSizeF(k.vzor.size()).scaled(sirkaVzoru, vyskaVzoru, Qt::KeepAspectRatio);
        d.DrawPicture(k.vzor, x0, blok.top() + radek, s.width(), s.height());
    }
    x0 += qMax(d.TextWidth(vzorTabule) + 20, sirkaVzoru) + 300;
    const double prava = legenda(d, k, blok, n) - 200;
    const auto rez = k.plan.rezy.find(ct);
    const std::pair<QString, QString> radky[] = {
        {QStringLiteral("Tabule:"), QString::number(n) + QLatin1Char('/') + QString::number(k.posledni)},
        {QStringLiteral("Rozměr tabule:"), Jednotky::ZMilimetru(x / 10) + QStringLiteral(" x ") + Jednotky::ZMilimetru(y / 10)},
        {QStringLiteral("Využití tabule [%]:"), Jednotky::cislo(vyuziti)},
        {QStringLiteral("Šířka řezu:"),
         Jednotky::ZMilimetru(Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("Srez")))},
        {QStringLiteral("Počet řezů:"), QString::number(rez == k.plan.rezy.end() ? 0 : rez->second)},
        {QStringLiteral("Zakázka:"), k.plan.zakazka},
        {QStringLiteral("Materiál:"), k.material},
    };
    const int naSloupec = qMax(1, int(blok.height() / radek));
    double sirkaSloupce = 0;
    bool vejde = true;
    for (int i = 0; i < int(std::size(radky)); ++i) {
        if (i > 0 && i % naSloupec == 0) {
            x0 += sirkaSloupce + 300;
            sirkaSloupce = 0;
        }
        d.pismo.tucne = true;
        const double celaHodnota = d.TextWidth(radky[i].second);
        d.pismo.tucne = false;
        const double pouzito =
            popisek(d, x0, blok.top() + (i % naSloupec) * radek, radky[i].first, radky[i].second, qMax(0.0, prava - x0));
        vejde = vejde && pouzito >= d.TextWidth(radky[i].first) + 100 + celaHodnota - 1;
        sirkaSloupce = qMax(sirkaSloupce, pouzito);
    }
    return vejde && x0 + sirkaSloupce <= prava;
}

void tabule(Kontext& k, const Bunka& b, int n)
{
    Dokument& d = k.d;
    const auto t = CteniPlanu::tabule(k.u.dataK(), n);
    if (!t)
        return;
    const double x = t->x, y = t->y;
    const int ct = t->CT;
    const double soucet = CteniPlanu::plochaDesek(k.u.dataK(), n);
    const double plochaDesek = Round(soucet / 100 / 1000000, 3);
    const double plochaTabule = Round(x * y / 100 / 1000000, 3);
    const double vyuziti = plochaTabule > 0 ? Round(plochaDesek / plochaTabule * 100, 1) : 0;

    d.pismo = k.deska.pismo;
    const Umisteni u = umisti(d, b, x, y);
    // The sheet in the waste colour: what no board covers is waste.
    d.pero = Pero{k.deska.barvaPisma, 1, true};
    d.stetec = Stetec{k.odpad, false};
    d.TextColor = k.deska.barvaPisma;
    d.DrawRectangle(u.OkrajX, u.OkrajY, u.OkrajX + u.sirka, u.OkrajY + u.vyska);
    d.TextAngle = 0;
    const QString delka = Jednotky::ZMilimetru(x / 10), sirka = Jednotky::ZMilimetru(y / 10);
    d.CurrentX = u.OkrajX + u.sirka / 2 - d.TextWidth(delka) / 2;
    d.CurrentY = u.OkrajY - d.TextHeight(delka) - 60;
    d.Text(delka);
    d.TextAngle = 900;
    d.CurrentX = u.OkrajX - d.TextHeight(sirka) - 60;
    d.CurrentY = u.OkrajY + u.vyska / 2 + d.TextWidth(sirka) / 2;
    d.Text(sirka);

    // The block at the largest size, from 10 down to 6, that fits its cell.
    const QRectF blok(b.ramec.left(), b.ramec.top(), b.ramec.width(), b.blok - 100);
    double velikost = 10;
    for (; velikost > 6; velikost -= 1) {
        Dokument zkouska;
        zkouska.StartDoc();
        if (blokInformaci(zkouska, k, blok, n, x, y, ct, vyuziti, velikost))
            break;
    }
    blokInformaci(d, k, blok, n, x, y, ct, vyuziti, velikost);

    for (const CteniPlanu::Deska& deska : CteniPlanu::deskyTabule(k.u.dataK(), n)) {
        const double dx = deska.x, dy = deska.y;
        KresliDesku(d, deska.XD, deska.YD, u.OkrajX, u.OkrajY, deska.OTOC ? dy : dx, deska.OTOC ? dx : dy, u.Meritko,
                    deska.Oznaceni, PopisNP(deska.popis, k.zobrazeniHran, deska.OTOC), deska.Sestava, k.hrany.desky(deska.hrany),
                    k.plan.samovani, k.deska);
    }
    for (const CteniPlanu::Zbytek& z : CteniPlanu::zbytkyTabule(k.u.dataK(), n))
        if (z.XZP / 10 > k.XZ && z.YZP / 10 > k.YZ)
            KresliOdrezek(d, z.XDP, z.YDP, u.OkrajX, u.OkrajY, z.XZP, z.YZP, u.Meritko, z.Oznaceni, k.plan.samovani, k.odrezek);
}

double okraj(const char* klic, double vychozi)
{
    const QString t = Nastaveni::GetSetting(QStringLiteral("Setting"), QLatin1String(klic));
    return Dokument::mm(t.isEmpty() ? vychozi : Nastaveni::cislo(QStringLiteral("Setting"), QLatin1String(klic)));
}

} // namespace

PlanNaStrankach PlanNaStrankach::z(const PlanRun& run)
{
    return {run.AktualniZakazka(), run.IDFormatuNP(), run.zpusob(), run.RezyNaTabuli(), run.SamovaniNP(), run.SrezNP()};
}

bool StrankyNP(Dokument& d, Uloziste& u, const PlanNaStrankach& plan, int kolik)
{
    d.StartDoc();
    if (kolik != 1 && kolik != 2 && kolik != 4)
        return false;
    const int posledni = CteniPlanu::posledniTabule(u.dataK());
    if (posledni <= 0)
        return false;

    const Rozvrzeni r = rozvrzeni(kolik);
    d.naSirku = r.naSirku;
    d.MarginTop = okraj("OkrajStrankyShora", 12);
    d.MarginBottom = okraj("OkrajStrankyZdola", 15);
    d.MarginLeft = okraj("OkrajStrankyZleva", 10);
    d.MarginRight = okraj("OkrajStrankyZprava", 10);
    d.StartDoc();

    Kontext k{
        d,
        u,
        plan,
        StylNP::desky(),
        StylNP::odrezku(),
        BarvyHran(u.dataS(), plan.zakazka),
        Barva::zTextu(Nastaveni::GetSetting(QStringLiteral("Setting"), QStringLiteral("BarvaOdpadu")), QColor(0xe0, 0xe0, 0xe0)),
        nastaveni2("ZobrazeniHran").toDouble() == 1,
        Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("XZ")),
        Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("YZ")),
        QString(),
        QImage(),
        posledni};
    if (const auto format = RadkyZakazky::material(u.dataS(), plan.zakazka, plan.idFormatu)) {
        k.material = format->text(QStringLiteral("Material"));
        k.vzor = vzorMaterialu(u, k.material);
    }
    for (int n = 1; n <= posledni; ++n) {
        const int poradi = (n - 1) % r.naStranu;
        if (n > 1 && poradi == 0)
            d.NewPage();
        tabule(k, bunka(d, r, poradi), n);
    }
    d.EndDoc();
    return true;
}

QString NavrhNazvuNP(const QString& zakazka, ZpusobNP zpusob)
{
    switch (zpusob) {
    case ZpusobNP::PodelneRezy: return zakazka + QStringLiteral("-podélně.pdf");
    case ZpusobNP::PricneRezy: return zakazka + QStringLiteral("-příčně.pdf");
    case ZpusobNP::Usporne: return zakazka + QStringLiteral("-úsporně.pdf");
    default: return zakazka + QStringLiteral("-kombinovaně.pdf");
    }
}

QString TitulekNP(ZpusobNP zpusob)
{
    switch (zpusob) {
    case ZpusobNP::PodelneRezy: return QStringLiteral("Nářezový plán - podélné řezy");
    case ZpusobNP::PricneRezy: return QStringLiteral("Nářezový plán - příčné řezy");
    case ZpusobNP::Usporne: return QStringLiteral("Nářezový plán - úsporně");
    default: return QStringLiteral("Nářezový plán - kombinovaně");
    }
}
