// The combined mode's own steps.
#include "PlanTest.h"

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
