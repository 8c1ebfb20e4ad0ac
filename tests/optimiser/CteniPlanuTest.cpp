// The working tables read back as the outputs read them: what the one writer put there, in the
// order each output draws it, with only what it draws.
#include "optimiser/CteniPlanu.h"
#include "DomovTest.h"
#include "optimiser/PracovniTabulky.h"

namespace {

DeskaNP deska(const char* oznaceni, int tabule, double XD, double YD, double y, bool usazena = true)
{
    DeskaNP d;
    d.Oznaceni = QString::fromUtf8(oznaceni);
    d.Sestava = QStringLiteral("S'1");
    d.x = 1000;
    d.y = y;
    d.ID = usazena;
    d.tabule = tabule;
    d.XD = XD;
    d.YD = YD;
    d.IDHX1 = d.IDHX2 = d.IDHY1 = d.IDHY2 = 0.0; // as a board without bands stands in the order
    return d;
}

ZbytekNP zbytek(DruhZbytku druh, int ct, double YDP)
{
    ZbytekNP z;
    z.Oznaceni = druh;
    z.CT = ct;
    z.XZP = 500;
    z.YZP = 400;
    z.YDP = YDP;
    return z;
}

template <class T>
QStringList oznaceni(const std::vector<T>& radky)
{
    QStringList o;
    for (const T& r : radky)
        o << r.Oznaceni;
    return o;
}

} // namespace

class CteniPlanuTest : public DomovTest {};

TEST_F(CteniPlanuTest, DeskyTabuleAZbytkyVPoradiVystupu)
{
    uloziste().ObnovPracovniDatabazi();
    Database& k = uloziste().dataK();
    PracovniTabulky t;
    t.desky = {deska("a", 1, 100, 0, 500), deska("b", 1, 0, 0, 600), deska("c", 1, 0, 0, 800),
               deska("nezařazená", 0, 0, 0, 900, false), deska("e", 2, 0, 0, 300)};
    t.desky[4].IDHY2 = 7.5;
    t.tabule = {{3, 1, QStringLiteral("DTD"), 28000, 20700, true}, {4, 2, QStringLiteral("DTD"), 28000, 20700, true}};
    t.zbytky = {zbytek(DruhZbytku::ZT, 1, 30), zbytek(DruhZbytku::ZR, 1, 0), zbytek(DruhZbytku::KZ, 1, 10),
                zbytek(DruhZbytku::KZ, 2, 0)};
    t.zapis(k);

    EXPECT_EQ(CteniPlanu::posledniTabule(k), 2);
    ASSERT_TRUE(CteniPlanu::tabule(k, 1));
    EXPECT_EQ(CteniPlanu::tabule(k, 1)->CT, 3);
    EXPECT_EQ(CteniPlanu::tabule(k, 2)->x, 28000);
    EXPECT_FALSE(CteniPlanu::tabule(k, 3));
    EXPECT_EQ(CteniPlanu::plochaDesek(k, 1), 1000 * (500 + 600 + 800));
    // drawn by YD, XD, the wider first; labels by sheet, YD, XD, ties as written
    EXPECT_EQ(oznaceni(CteniPlanu::deskyTabule(k, 1)), QStringList({"c", "b", "a"}));
    EXPECT_EQ(oznaceni(CteniPlanu::usazeneDesky(k)), QStringList({"b", "c", "a", "e"}));
    EXPECT_EQ(CteniPlanu::usazeneDesky(k)[0].Sestava, QStringLiteral("S'1"));
    EXPECT_EQ(CteniPlanu::deskyTabule(k, 2)[0].hrany[3], 7.5);
    EXPECT_TRUE(CteniPlanu::hranaNaTabuli(k, 2, 7.5));
    EXPECT_FALSE(CteniPlanu::hranaNaTabuli(k, 1, 7.5));
    EXPECT_EQ(oznaceni(CteniPlanu::zbytkyTabule(k, 1)), QStringList({"KZ", "ZT"}));

    t = {};
    t.zapis(k);
    EXPECT_EQ(CteniPlanu::posledniTabule(k), 0);
    EXPECT_TRUE(CteniPlanu::deskyTabule(k, 1).empty());
}
