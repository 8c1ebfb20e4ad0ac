#include "Plany.h"

#include "core/Aplikace.h"
#include "core/Recordset.h"
#include "core/Uloziste.h"
#include "exchange/ZakazkaJson.h"
#include "optimiser/VypisNP.h"
#include "plansql/PlanRun.h"
#include "plansql/Porovnani.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonObject>
#include <cstdio>
#include <sys/resource.h>

namespace {

class BezOtazek : public Prompt {
public:
    Odpoved zprava(const QString&, const QString&, Ikona, Tlacitka) override { return Odpoved::Ano; }
    QString vstup(const QString&, const QString&, const QString& v) override { return v; }
    QString soubor(bool, const QString&, const QString&, const QString&, const QString&) override { return {}; }
};

void radek(const QString& text)
{
    std::fputs((text + QLatin1Char('\n')).toUtf8().constData(), stdout);
    std::fflush(stdout);
}

QJsonObject tabulky(Uloziste& u)
{
    QJsonObject t;
    for (const char* nazev : {"SoupisDesek", "SoupisTabuli", "SoupisZbytku"})
        t.insert(QLatin1String(nazev), VypisTabulky(u.dataK(), QLatin1String(nazev)));
    return t;
}

template <typename Run>
double spust(Run& run, const QString& zakazka, ZpusobNP zpusob)
{
    QElapsedTimer cas;
    cas.start();
    run.SpustNP(zakazka, 5000001, zpusob);
    return cas.nsecsElapsed() / 1e9;
}

} // namespace

void planyBench(Uloziste& u, const std::vector<QString>& zakazky, const std::vector<RezimBench>& rezimy,
                const QStringList& vyber, bool sStarym)
{
    radek(QStringLiteral("%1 %2 %3 %4 %5 %6 %7 %8")
              .arg(QStringLiteral("zakázka"), -10).arg(QStringLiteral("režim"), -12).arg(QStringLiteral("desek"), 6)
              .arg(QStringLiteral("tabulí"), 6).arg(QStringLiteral("sekund"), 8).arg(QStringLiteral("dříve s"), 9)
              .arg(QStringLiteral("poměr"), 7).arg(QStringLiteral("plán")));
    BezOtazek prompt;
    TichyPrubeh prubeh;
    for (const QString& z : zakazky) {
        if (!vyber.isEmpty() && !vyber.contains(z))
            continue;
        for (const RezimBench& r : rezimy) {
            QString stary = QStringLiteral("-"), pomer = QStringLiteral("-"), shoda = QStringLiteral("-");
            QJsonObject vzor;
            double sekundStary = 0;
            if (sStarym) {
                PlanSql::PlanRun run(u, prompt, prubeh);
                sekundStary = spust(run, z, r.zpusob);
                vzor = tabulky(u);
                stary = QString::number(sekundStary, 'f', 3);
            }
            PlanRun run(u, prompt, prubeh);
            const double sekund = spust(run, z, r.zpusob);
            if (sStarym) {
                pomer = QString::number(sekund / sekundStary, 'f', 4);
                shoda = tabulky(u) == vzor ? QStringLiteral("shodný") : QStringLiteral("ROZDÍLNÝ");
            }
            int tabuli = 0;
            for (const TabuleNP& t : run.tabulky().tabule)
                tabuli += t.smazany ? 0 : 1;
            radek(QStringLiteral("%1 %2 %3 %4 %5 %6 %7 %8")
                      .arg(z, -10).arg(QString::fromLatin1(r.nazev), -12).arg(run.tabulky().desky.size(), 6).arg(tabuli, 6)
                      .arg(sekund, 8, 'f', 3).arg(stary, 9).arg(pomer, 7).arg(shoda));
        }
    }
    rusage vyuziti{};
    getrusage(RUSAGE_SELF, &vyuziti);
    radek(QStringLiteral("nejvyšší paměť procesu: %1 MB").arg(vyuziti.ru_maxrss / 1024.0, 0, 'f', 1));
}

void maleZakazkyBench(const QString& domov)
{
    Aplikace::nastavDomov(domov);
    QElapsedTimer cas;
    cas.start();
    Uloziste u(true);
    const QString z = ZakazkaJson::nacti(u.dataS(), R"({"zakazka": "Deset", "formaty": [{"id": 5000001,
        "material": "DTD", "x": 2800, "y": 2070}], "sestavy": [{"nazev": "S", "desky": [
        {"oznaceni": "a", "x": 300, "y": 200, "pocet": 2, "format": 5000001},
        {"oznaceni": "b", "x": 450, "y": 320, "pocet": 3, "format": 5000001},
        {"oznaceni": "c", "x": 720, "y": 560, "pocet": 5, "format": 5000001}]}]})");
    const double zalozeni = cas.nsecsElapsed() / 1e9;
    BezOtazek prompt;
    TichyPrubeh prubeh;
    double nejdele = 0;
    for (int i = 0; i < 5; ++i) {
        PlanRun run(u, prompt, prubeh);
        nejdele = std::max(nejdele, spust(run, z, ZpusobNP::Kombinovane));
        u.zavriDataK();
    }
    radek(QStringLiteral("plán 10 desek včetně kopie DataK: nejdéle %1 s (otevření úložiště a zakázka %2 s)")
              .arg(nejdele, 0, 'f', 4).arg(zalozeni, 0, 'f', 4));
}

void stornoBench(Uloziste& u, const QString& zakazka)
{
    // Asks to stop at the first turn after a tenth of a second (the runs take about one); the
    // clock runs from that answer.
    class Storno : public Prubeh {
    public:
        QElapsedTimer odStartu, odStorna;
        void popisek(const QString&) override {}
        void hodnota(double) override {}
        bool prerusit() override
        {
            if (!odStorna.isValid() && odStartu.elapsed() >= 100)
                odStorna.start();
            return odStorna.isValid();
        }
    } prubeh;
    BezOtazek prompt;
    for (ZpusobNP zpusob : {ZpusobNP::PodelneRezy, ZpusobNP::Kombinovane}) {
        PlanRun run(u, prompt, prubeh);
        prubeh.odStartu.start();
        prubeh.odStorna.invalidate();
        run.SpustNP(zakazka, 5000001, zpusob);
        const QString kde =
            zakazka + QStringLiteral(" (") +
            (zpusob == ZpusobNP::Kombinovane ? QStringLiteral("kombinovaně") : QStringLiteral("podélně")) + QLatin1Char(')');
        radek(prubeh.odStorna.isValid() ? QStringLiteral("Storno v %1: běh skončil %2 s po žádosti")
                                              .arg(kde)
                                              .arg(prubeh.odStorna.nsecsElapsed() / 1e9, 0, 'f', 4)
                                        : QStringLiteral("Storno v %1: běh doběhl dřív, než o ně požádal").arg(kde));
    }
}

void shodaBench(const QString& domov, int pripadu)
{
    Aplikace::nastavDomov(domov);
    Uloziste u(true);
    int shodnych = 0;
    QElapsedTimer cas;
    cas.start();
    for (quint32 seme = 1; seme <= quint32(pripadu); ++seme) {
        const PlanSql::NahodnyPripad p = PlanSql::vytvorPripad(u, seme);
        const QString rozdil = PlanSql::porovnej(u, p);
        if (rozdil.isEmpty())
            ++shodnych;
        else
            radek(p.popis + QLatin1Char('\n') + rozdil);
    }
    radek(QStringLiteral("náhodné zakázky: %1 z %2 plánů shodných s plánem nad databází (%3 s)")
              .arg(shodnych).arg(pripadu).arg(cas.elapsed() / 1000.0, 0, 'f', 1));
}
