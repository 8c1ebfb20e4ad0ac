#include "planoutput/NahledStitku.h"

#include "core/Jednotky.h"
#include "core/Val.h"

#include <QGuiApplication>
#include <QPalette>

namespace NahledStitku {
namespace {

constexpr double SirkaCervene = 75; // twips: the margin line must stay visible at a third of A4

double mm(const Moznosti::Hodnoty& h, const char* klic)
{
    return Jednotky::NaMilimetry(h.value(QLatin1String(klic)));
}

int pocet(const Moznosti::Hodnoty& h, const char* klic)
{
    QString t = h.value(QLatin1String(klic)).trimmed();
    return int(Val(t.replace(QLatin1Char(','), QLatin1Char('.'))));
}

void obdelniky(Dokument& d, const Mrizka& m, int radku)
{
    for (int r = 0; r < radku; ++r)
        for (int s = 0; s < m.sloupcu; ++s) {
            const double x = (m.zleva + s * (m.delka + m.mezeraX)) * TwipuNaMm;
            const double y = (m.shora + r * (m.sirka + m.mezeraY)) * TwipuNaMm;
            d.DrawRectangle(x, y, x + m.delka * TwipuNaMm, y + m.sirka * TwipuNaMm);
        }
}

} // namespace

Rozvrzeni zHodnot(const Moznosti::Hodnoty& h)
{
    Rozvrzeni r;
    r.papir = {mm(h, "DelkaStitku"), mm(h, "SirkaStitku"), mm(h, "OkrajZleva"), mm(h, "OkrajShora"),
               mm(h, "MezeraXMeziStitky"), mm(h, "MezeraYMeziStitky"), pocet(h, "PocetSloupcuStitku"), 0};
    r.tisk = {mm(h, "DelkaStitkuTisk"), mm(h, "SirkaStitkuTisk"), mm(h, "OkrajZlevaTisk"), mm(h, "OkrajShoraTisk"),
              mm(h, "MezeraXMeziStitkyTisk"), mm(h, "MezeraYMeziStitkyTisk"), pocet(h, "PocetSloupcuStitkuTisk"),
              pocet(h, "PocetRadkuStitkuTisk")};
    r.okrajShora = mm(h, "OkrajStrankyShora");
    r.okrajZdola = mm(h, "OkrajStrankyZdola");
    r.okrajZleva = mm(h, "OkrajStrankyZleva");
    r.okrajZprava = mm(h, "OkrajStrankyZprava");
    return r;
}

int radkuNaPapire(const Mrizka& p)
{
    double soucet = p.shora * TwipuNaMm;
    for (int radek = 1; radek <= NejviceRadku; ++radek) {
        soucet += p.sirka * TwipuNaMm;
        if (soucet > Dokument::A4Vyska)
            return radek - 1;
        soucet += p.mezeraY * TwipuNaMm;
    }
    return NejviceRadku;
}

QColor barvaPapiru() { return QColor(0, 255, 0); }
QColor barvaOkraju() { return QColor(255, 0, 0); }

QColor barvaTisku()
{
    return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) ? QGuiApplication::palette().color(QPalette::Highlight)
                                                                        : QColor(0x30, 0x8c, 0xc6);
}

Dokument vykresli(const Rozvrzeni& r)
{
    Dokument d;
    d.MarginLeft = d.MarginTop = d.MarginRight = d.MarginBottom = 0;
    d.StartDoc();
    d.pero = Pero{Qt::black, 1, true};
    d.stetec = Stetec{barvaPapiru(), false};
    obdelniky(d, r.papir, radkuNaPapire(r.papir));
    d.stetec.barva = barvaTisku();
    obdelniky(d, r.tisk, r.tisk.radku);
    d.pero.barva = barvaOkraju();
    d.pero.sirka = SirkaCervene;
    d.stetec.pruhledny = true;
    d.DrawRectangle(r.okrajZleva * TwipuNaMm, r.okrajShora * TwipuNaMm, Dokument::A4Sirka - r.okrajZprava * TwipuNaMm,
                    Dokument::A4Vyska - r.okrajZdola * TwipuNaMm);
    d.EndDoc();
    return d;
}

}
