// Row placement and its mirror: hand-worked plans, run both ways. A turned input (sheet and
// every board with x and y exchanged) laid out by columns gives the turned plan.
#include "PlanTest.h"

namespace {

struct Smer {
    ZpusobNP zpusob;
    bool pricne;
    // x, y of the row case as this direction sees them
    double x(double rx, double ry) const { return pricne ? ry : rx; }
    double y(double rx, double ry) const { return pricne ? rx : ry; }
    const char* X(const char* rada, const char* sloupec) const { return pricne ? sloupec : rada; }
};

} // namespace

class RadySloupceTest : public PlanTest, public ::testing::WithParamInterface<Smer> {};

INSTANTIATE_TEST_SUITE_P(ObaSmery, RadySloupceTest,
                         ::testing::Values(Smer{ZpusobNP::PodelneRezy, false}, Smer{ZpusobNP::PricneRezy, true}),
                         [](const auto& info) { return info.param.pricne ? "Pricne" : "Podelne"; });

// Sheet 1000 x 500, no kerf, no trim; A 400 x 300 and B 300 x 200. The trial scores A at 4000
// both ways round against B's turned 4000: the tie goes to the unturned A, which opens the row;
// B turned fills the rest of its height, and the row ends in one KZ under the sheet's ZT.
TEST_P(RadySloupceTest, SchodyARezyPodleZkusebnihoUsazeni)
{
    const Smer s = GetParam();
    nastav("Srez", "0");
    nastav("ZarovnaniFormatu", "0");
    zakazka(s.x(1000, 500), s.y(1000, 500), false,
            {{"A", s.x(400, 300), s.y(400, 300)}, {"B", s.x(300, 200), s.y(300, 200)}});
    const QJsonObject plan = spust(s.zpusob);

    const QString plocha = QLatin1String(s.X("PlochaKZ", "PlochaKZSLOUPEC")), suma = QLatin1String(s.X("SumaKZ", "SumaKZSloupec")),
                  bov = QLatin1String(s.X("PlochaKZBOV", "PlochaKZBOVSLOUPEC"));
    EXPECT_EQ(pole(radek(plan, "SoupisDesek", 0), {"ID", "OTOC", "XD", "YD", plocha, suma, bov}),
              (QJsonObject{{"ID", -1}, {"OTOC", 0}, {"XD", 0}, {"YD", 0}, {plocha, 4000}, {suma, 32e6}, {bov, 5500}}));
    EXPECT_EQ(pole(radek(plan, "SoupisDesek", 1), {"OTOC", "XD", "YD", "tabule", plocha, suma, bov}),
              (QJsonObject{{"OTOC", -1}, {"XD", s.x(4000, 0)}, {"YD", s.y(4000, 0)}, {"tabule", 1}, {plocha, 7000},
                           {suma, 44e6}, {bov, 4000}}));

    ASSERT_EQ(plan["SoupisZbytku"].toArray().size(), 2);
    EXPECT_EQ(pole(radek(plan, "SoupisZbytku", 0), {"Oznaceni", "ID", "XZP", "YZP", "XDP", "YDP"}),
              (QJsonObject{{"Oznaceni", "ZT"}, {"ID", -1}, {"XZP", s.x(10000, 2000)}, {"YZP", s.y(10000, 2000)},
                           {"XDP", s.x(0, 3000)}, {"YDP", s.y(0, 3000)}}));
    EXPECT_EQ(pole(radek(plan, "SoupisZbytku", 1), {"Oznaceni", "Rada", "cislo", "CT", "XZP", "XDP"}),
              (QJsonObject{{"Oznaceni", "KZ"}, {"Rada", 1}, {"cislo", 1}, {"CT", 1}, {"XZP", s.x(4000, 3000)}, {"XDP", s.x(6000, 0)}}));
    EXPECT_EQ(plan["RezyNaTabuli"].toObject(), QJsonObject({{"1", 3}}));
    EXPECT_EQ(plan["SoupisTabuli"].toArray().size(), 1);
    EXPECT_FALSE(plan["warning"].toBool());
}

// With the trim on, the first board stands one kerf in, and a board of the usable size is an
// exact fit: no remnant at all.
TEST_P(RadySloupceTest, DeskaVelikostiTabulePoSamovani)
{
    const Smer s = GetParam();
    zakazka(s.x(1000, 500), s.y(1000, 500), false, {{"cela", s.x(996, 496), s.y(996, 496)}});
    const QJsonObject plan = spust(s.zpusob);
    EXPECT_EQ(pole(radek(plan, "SoupisDesek", 0), {"ID", "XD", "YD"}), (QJsonObject{{"ID", -1}, {"XD", 40}, {"YD", 40}}));
    EXPECT_TRUE(plan["SoupisZbytku"].toArray().isEmpty());
    EXPECT_EQ(plan["RezyNaTabuli"].toObject(), QJsonObject({{"1", 1}}));
}

// The first board spans the whole width: a ZT above it, the row of one board is complete,
// and a second such board opens row 2 in the remainder, shrinking ZT in place.
TEST_P(RadySloupceTest, PrvniDeskaPresCelouSirku)
{
    const Smer s = GetParam();
    nastav("Srez", "0");
    nastav("ZarovnaniFormatu", "0");
    zakazka(s.x(1000, 500), s.y(1000, 500), false,
            {{"pruh", s.x(1000, 200), s.y(1000, 200), 2}});
    const QJsonObject plan = spust(s.zpusob);
    EXPECT_EQ(radek(plan, "SoupisDesek", 1)["XD"].toDouble(), s.x(0, 2000));
    EXPECT_EQ(radek(plan, "SoupisDesek", 1)["YD"].toDouble(), s.y(0, 2000));
    ASSERT_EQ(plan["SoupisZbytku"].toArray().size(), 1);
    EXPECT_EQ(pole(radek(plan, "SoupisZbytku", 0), {"XZP", "YZP", "YDP", "ID"}),
              (QJsonObject{{"XZP", s.x(10000, 1000)}, {"YZP", s.y(10000, 1000)}, {"YDP", s.y(0, 4000)}, {"ID", 0}}));
    EXPECT_EQ(plan["RezyNaTabuli"].toObject(), QJsonObject({{"1", 5}}));
}

// A board larger than the sheet either way is left out with the warning; the rest is planned,
// the sheets it walked through vanish in the renumbering.
TEST_P(RadySloupceTest, DeskaVetsiNezTabuleZustaneStranou)
{
    const Smer s = GetParam();
    zakazka(s.x(1000, 500), s.y(1000, 500), false,
            {{"velka", s.x(1200, 600), s.y(1200, 600)}, {"mala", s.x(300, 200), s.y(300, 200)}});
    const QJsonObject plan = spust(s.zpusob);
    // the board list is in Oznaceni order: "mala" before "velka"
    EXPECT_EQ(radek(plan, "SoupisDesek", 0)["ID"].toInt(), -1);
    EXPECT_EQ(radek(plan, "SoupisDesek", 1)["ID"].toInt(), 0);
    EXPECT_TRUE(plan["warning"].toBool());
    ASSERT_EQ(prompt.zpravy.size(), 1);
    EXPECT_TRUE(prompt.zpravy[0].startsWith(QStringLiteral("V zakázce máte desky, které jsou větší")));
    EXPECT_EQ(prompt.titulky[0], QStringLiteral("Upozornění"));
    ASSERT_EQ(plan["SoupisTabuli"].toArray().size(), 1);
    EXPECT_EQ(radek(plan, "SoupisTabuli", 0)["NCT"].toInt(), 1);
}

// A grain format, a board that fits only turned. The row trial marks it as closing the sheet
// and placing the last board; the column trial's turned test opens its real board by "y" twice
// and finds it only for a square size, so nothing is marked there.
TEST(ZrcadleniNeniPresne, OtocenyTestTabuleVeSloupcichJenProCtverec)
{
    struct Pripad : PlanTest {
        void TestBody() override {}
        QJsonObject beh(ZpusobNP z)
        {
            SetUp();
            nastav("Srez", "0");
            nastav("ZarovnaniFormatu", "0");
            zakazka(1000, 500, true, {{"D", 400, 600}});
            QJsonObject plan = spust(z);
            TearDown();
            return plan;
        }
    };
    const QJsonObject rady = Pripad().beh(ZpusobNP::PodelneRezy);
    const QJsonObject sloupce = Pripad().beh(ZpusobNP::PricneRezy);
    EXPECT_EQ(pole(radek(rady, "SoupisDesek", 0), {"PVT", "PD", "PlochaKZBOV", "SumaKZBOV", "OTOC"}),
              (QJsonObject{{"PVT", -1}, {"PD", -1}, {"PlochaKZBOV", 4000}, {"SumaKZBOV", 26e6}, {"OTOC", -1}}));
    EXPECT_EQ(pole(radek(sloupce, "SoupisDesek", 0), {"PVT", "PD", "PlochaKZBOVSLOUPEC", "SumaKZBOVSloupec", "OTOC"}),
              (QJsonObject{{"PVT", 0}, {"PD", 0}, {"PlochaKZBOVSLOUPEC", 1000}, {"SumaKZBOVSloupec", 26e6}, {"OTOC", -1}}));
}
