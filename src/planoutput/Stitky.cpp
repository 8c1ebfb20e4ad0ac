#include "planoutput/Stitky.h"

#include "core/Nastaveni.h"
#include "core/Uloziste.h"
#include "optimiser/CteniPlanu.h"
#include "planoutput/KresleniNP.h"

namespace {

double mm(const char* klic)
{
    return Nastaveni::cislo(QStringLiteral("Setting"), QLatin1String(klic)) * MrizkaStitku::TwipuNaMm;
}

int pocet(const char* klic)
{
    return qMax(1, int(Nastaveni::cislo(QStringLiteral("Setting"), QLatin1String(klic))));
}

} // namespace

MrizkaStitku MrizkaStitku::zNastaveni()
{
    return {mm("DelkaStitkuTisk"),       mm("SirkaStitkuTisk"),       mm("OkrajZlevaTisk"),
            mm("OkrajShoraTisk"),        mm("MezeraXMeziStitkyTisk"), mm("MezeraYMeziStitkyTisk"),
            pocet("PocetSloupcuStitkuTisk"), pocet("PocetRadkuStitkuTisk")};
}

int TiskStitku(Dokument& d, Uloziste& u, const QString& zakazka)
{
    const MrizkaStitku m = MrizkaStitku::zNastaveni();
    const bool zobrazeniHran = Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("ZobrazeniHran")) == 1;
    const StylNP styl = StylNP::desky();
    const BarvyHran hrany(u.dataS(), zakazka);

    d.naSirku = false;
    d.MarginLeft = d.MarginTop = d.MarginRight = d.MarginBottom = 0;
    d.StartDoc();
    int strana = 1;
    double x = m.zleva, y = m.shora;
    int cislo = 1;
    for (const CteniPlanu::Deska& deska : CteniPlanu::usazeneDesky(u.dataK())) {
        if (qint64(x) > qint64(m.zleva + (m.sloupcu - 1) * (m.delka + m.mezeraX))) {
            x = m.zleva;
            y += m.sirka + m.mezeraY;
        }
        if (cislo > strana * m.sloupcu * m.radku) {
            d.NewPage();
            y = m.shora;
            ++strana;
        }
        const bool otoc = deska.OTOC;
        KresliStitek(d, m.delka, m.sirka, x, y, otoc ? deska.y : deska.x, otoc ? deska.x : deska.y, 1, deska.Oznaceni,
                     PopisNP(deska.popis, zobrazeniHran, otoc), deska.Sestava, deska.OV, hrany.desky(deska.hrany), styl);
        x += m.delka + m.mezeraX;
        ++cislo;
    }
    d.EndDoc();
    return cislo - 1;
}
