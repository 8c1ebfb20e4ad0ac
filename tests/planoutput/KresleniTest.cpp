// The drawing primitives read through what they record: where band marks stand on a board as
// placed and as turned, which form of text a board of each shape gets, and what a remnant and
// a label write.
#include "CteniDokumentu.h"
#include "DomovTest.h"
#include "core/Nastaveni.h"
#include "planoutput/KresleniNP.h"

#include <gtest/gtest.h>

namespace {

class Kresleni : public DomovTest {
protected:
    void SetUp() override
    {
        DomovTest::SetUp();
        Nastaveni::ZapisVychoziNastaveni(0, 0, 800, 600);
        d.StartDoc();
    }
    // A board of x by y mm at the sheet's origin, drawn one page unit per tenth of a mm / 4.
    int deska(double x, double y, const QString& popis = QStringLiteral("00"), const HranyDesky& hrany = {})
    {
        return KresliDesku(d, 0, 0, 1000, 1000, x * 10, y * 10, 0.25, QStringLiteral("bok"), popis,
                           QStringLiteral("Skříň"), hrany, 0, StylNP::desky());
    }
    Dokument d;
};

const QColor HX1(255, 0, 0), HX2(0, 255, 0), HY1(0, 0, 255), HY2(255, 255, 0);

// A 600 x 400 mm board at scale 0.25 is 1500 x 1000 twips from (1000, 1000): right 2500,
// bottom 2000. A mark stands 20 twips inside its side and runs p / 2 = 15 in from each corner.
TEST_F(Kresleni, ZnackyHranSleduji_OtoceniDesky)
{
    deska(600, 400, QStringLiteral("10"), {HX1, HX2, HY1, HY2});
    auto cary = operace<OpCara>(d);
    ASSERT_EQ(cary.size(), 4u);
    EXPECT_EQ(cary[0].pero.barva, HX1); // IDHX1: far Y side
    EXPECT_DOUBLE_EQ(cary[0].y1, 1980);
    EXPECT_DOUBLE_EQ(cary[0].y2, 1980);
    EXPECT_DOUBLE_EQ(cary[0].x1, 1015);
    EXPECT_DOUBLE_EQ(cary[0].x2, 1015 + 1500 - 30);
    EXPECT_DOUBLE_EQ(cary[1].y1, 1020); // IDHX2: near Y side
    EXPECT_DOUBLE_EQ(cary[2].x1, 1020); // IDHY1: near X side
    EXPECT_DOUBLE_EQ(cary[3].x1, 2480); // IDHY2: far X side
    EXPECT_DOUBLE_EQ(cary[0].pero.sirka, 30);

    d.StartDoc();
    deska(600, 400, QStringLiteral("11"), {HX1, HX2, HY1, HY2});
    cary = operace<OpCara>(d);
    ASSERT_EQ(cary.size(), 4u);
    EXPECT_DOUBLE_EQ(cary[0].x1, 2480); // turned, IDHX1 moves to the far X side
    EXPECT_DOUBLE_EQ(cary[0].x2, 2480);
    EXPECT_DOUBLE_EQ(cary[0].y1, 1015);
    EXPECT_DOUBLE_EQ(cary[1].x1, 1020); // IDHX2 to the near X side
    EXPECT_DOUBLE_EQ(cary[2].y1, 1980); // IDHY1 to the far Y side
    EXPECT_DOUBLE_EQ(cary[3].y1, 1020); // IDHY2 to the near Y side

    // No band, a band row that is gone, or marks switched off: no line at all.
    d.StartDoc();
    deska(600, 400, QStringLiteral("10"), {});
    deska(600, 400, QStringLiteral("00"), {HX1, HX2, HY1, HY2});
    EXPECT_TRUE(operace<OpCara>(d).empty());
    EXPECT_DOUBLE_EQ(d.pero.sirka, 1);
}

TEST_F(Kresleni, TvarTextuPodleTvaruDesky)
{
    // A large board writes its name across, with both sizes: form 1.
    EXPECT_EQ(deska(2000, 1000), 1);
    auto t = operace<OpText>(d);
    ASSERT_EQ(t.size(), 3u);
    EXPECT_EQ(t[0].text, QStringLiteral("bok (Skříň)"));
    EXPECT_EQ(t[0].uhel, 0);
    EXPECT_EQ(t[1].text, QStringLiteral("2000 mm")); // along X, at the top edge
    EXPECT_DOUBLE_EQ(t[1].y, 1000);
    EXPECT_EQ(t[2].text, QStringLiteral("1000 mm")); // along Y, upward at the left edge
    EXPECT_EQ(t[2].uhel, 900);
    EXPECT_DOUBLE_EQ(t[2].x, 1000);

    // A square board is written across; one just narrower than tall upward.
    d.StartDoc();
    deska(1000, 1000);
    EXPECT_EQ(operace<OpText>(d)[0].uhel, 0);
    d.StartDoc();
    deska(999, 1000);
    EXPECT_EQ(operace<OpText>(d)[0].uhel, 900);

    // A tall narrow strip: the name upward, the font shrunk until it fits.
    d.StartDoc();
    const int forma = deska(60, 2000);
    ASSERT_GE(forma, 1);
    t = operace<OpText>(d);
    EXPECT_EQ(t[0].uhel, 900);
    EXPECT_LT(t[0].pismo.velikost, 14);
    EXPECT_GE(t[0].pismo.velikost, 5);

    // Too small for anything even at size 5: the rectangle alone.
    d.StartDoc();
    EXPECT_EQ(deska(8, 8), 0);
    EXPECT_TRUE(operace<OpText>(d).empty());
    EXPECT_EQ(operace<OpObdelnik>(d).size(), 1u);
}

// Whatever the form, no text of a board leaves its rectangle.
TEST_F(Kresleni, TextyNepresahujiDesku)
{
    const double rozmery[][2] = {{2000, 1000}, {60, 2000}, {2000, 60}, {300, 120}, {120, 300}, {40, 40}, {700, 30}};
    for (const auto& r : rozmery) {
        d.StartDoc();
        deska(r[0], r[1]);
        const QRectF deskaR = operace<OpObdelnik>(d)[0].ramec.adjusted(-1, -1, 1, 1);
        for (const OpText& t : operace<OpText>(d))
            EXPECT_TRUE(deskaR.contains(ramecTextu(d, t))) << r[0] << " x " << r[1] << ": " << t.text.toStdString();
    }
}

TEST_F(Kresleni, OdrezekPiseJenRozmery)
{
    EXPECT_EQ(KresliOdrezek(d, 0, 0, 0, 0, 8000, 4000, 0.25, QStringLiteral("KZ"), 0, StylNP::odrezku()), 1);
    const QStringList t = texty<OpText>(d);
    EXPECT_EQ(t, QStringList({"800 mm", "400 mm"}));
    EXPECT_FALSE(t.contains(QStringLiteral("ZZZ")));
    EXPECT_EQ(operace<OpObdelnik>(d)[0].stetec.barva, QColor(0xc0, 0xc0, 0xc0));
    // The trim shifts the whole layout in from the sheet's edge.
    d.StartDoc();
    KresliOdrezek(d, 0, 0, 0, 0, 8000, 4000, 0.25, QStringLiteral("KZ"), 100, StylNP::odrezku());
    EXPECT_DOUBLE_EQ(operace<OpObdelnik>(d)[0].ramec.left(), 25);
}

TEST_F(Kresleni, StitekSeZnamenimVzoru)
{
    KresliStitek(d, 3118, 1247, 500, 700, 7200, 3200, 1, QStringLiteral("bok"), QStringLiteral("10"),
                 QStringLiteral("Skříň"), true, {HX1, {}, {}, {}}, StylNP::desky());
    const auto cary = operace<OpCara>(d);
    ASSERT_EQ(cary.size(), 4u); // three grain lines, then the band mark
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(cary[i].pero.barva, QColor(Qt::black));
        EXPECT_DOUBLE_EQ(cary[i].y1, 700 + 1247 - 100 * (i + 1));
        EXPECT_DOUBLE_EQ(cary[i].x1, 500 + 3118 / 2.0 - 200);
        EXPECT_DOUBLE_EQ(cary[i].x2, 500 + 3118 / 2.0 + 400);
    }
    EXPECT_EQ(cary[3].pero.barva, HX1);
    const auto ramec = operace<OpObdelnik>(d)[0];
    EXPECT_TRUE(ramec.stetec.pruhledny); // the label stock stays white
    EXPECT_EQ(ramec.ramec, QRectF(500, 700, 3118, 1247));
    EXPECT_TRUE(texty<OpText>(d).contains(QStringLiteral("bok (Skříň)")));
}

} // namespace
