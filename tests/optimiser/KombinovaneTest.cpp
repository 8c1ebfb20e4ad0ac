// The combined mode's own steps.
#include "PlanTest.h"

#include "KontrolaPlanu.h"
#include "optimiser/VypisNP.h"

#include <QRandomGenerator>

class Kombinovane : public PlanTest {};

// With kerf 0 an end remnant of height 0 lies on itself, and the stack walk would never end:
// the walk stops there, the plan is finished, and the run says so.
TEST_F(Kombinovane, NulovyZbytekPriSrezuNulaUkonciSlucovaniSVarovanim)
{
    nastav("Srez", "0");
    nastav("ZarovnaniFormatu", "0");
    zakazka(1000, 500, false, {{"d0", 100, 200}, {"d1", 100, 100}, {"d2", 300, 100}});
    const QJsonObject plan = spust(ZpusobNP::Kombinovane);
    for (const QJsonValue& d : plan["SoupisDesek"].toArray())
        EXPECT_EQ(d.toObject()["ID"].toInt(), -1);
    EXPECT_TRUE(plan["warning"].toBool());
    ASSERT_EQ(prompt.zpravy.size(), 1);
    EXPECT_TRUE(prompt.zpravy[0].contains(QStringLiteral("nulové výšky")));
}

// A sheet opened by an exact look-up uses the column forms: a board equal to the whole usable
// sheet is placed by the first one, with nothing left over.
TEST_F(Kombinovane, DeskaCeleTabuleSeUsadiPrvnimDotazem)
{
    zakazka(1000, 500, false, {{"cela", 996, 496}, {"dalsi", 996, 496}});
    const QJsonObject plan = spust(ZpusobNP::Kombinovane);
    EXPECT_EQ(plan["SoupisTabuli"].toArray().size(), 2);
    EXPECT_TRUE(plan["SoupisZbytku"].toArray().isEmpty());
    EXPECT_FALSE(plan["warning"].toBool());
}

// Stacked end remnants merged into a taller strip of the row let one more board in: among
// seeded orders of mixed sizes some plans merge, and those plans pass the plan checker, the
// merged strip's boards included.
TEST_F(Kombinovane, SlouceniKoncovychZbytkuUsadiDalsiDesku)
{
    int planuSeSloucenim = 0;
    for (quint32 seme = 1; seme <= 40 && planuSeSloucenim < 3; ++seme) {
        QRandomGenerator nahoda(seme);
        std::vector<DeskaTest> desky;
        for (int i = 0; i < 10; ++i)
            desky.push_back({QStringLiteral("d%1").arg(i), double(100 + 50 * nahoda.bounded(12)),
                             double(60 + 20 * nahoda.bounded(10)), 1 + int(nahoda.bounded(2))});
        const QString nazev = QStringLiteral("Z%1").arg(seme);
        zakazka(1200, 800, false, desky, nazev);
        TichyPrubeh prubeh;
        PlanRun run(uloziste(), prompt, prubeh);
        run.SpustNP(nazev, 5000001, ZpusobNP::Kombinovane);
        if (run.slouceni() == 0)
            continue;
        ++planuSeSloucenim;
        // the default kerf and trim of 4 mm
        const QStringList chyby = KontrolaPlanu::chyby(KontrolaPlanu::zVypisu(VypisNP(uloziste().dataK(), run), 40, 40, false));
        EXPECT_TRUE(chyby.isEmpty()) << "seed " << seme << ": " << chyby.join(QStringLiteral("; ")).toStdString();
    }
    EXPECT_GT(planuSeSloucenim, 0);
}
