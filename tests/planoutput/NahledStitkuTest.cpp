// The label sheet preview: how many labels the paper holds, the print grid over them, the
// printer's margins.
#include "DomovTest.h"
#include "core/Moznosti.h"
#include "core/Nastaveni.h"
#include "planoutput/NahledStitku.h"

namespace {

struct Pocty {
    int papir = 0, tisk = 0, okraje = 0;
    QRectF okraj;
};

Pocty spocitej(const Dokument& d)
{
    Pocty p;
    for (const Operace& op : d.strana(1).operace)
        if (const auto* o = std::get_if<OpObdelnik>(&op)) {
            if (o->stetec.pruhledny && o->pero.barva == NahledStitku::barvaOkraju()) {
                ++p.okraje;
                p.okraj = o->ramec;
            } else if (o->stetec.barva == NahledStitku::barvaPapiru())
                ++p.papir;
            else if (o->stetec.barva == NahledStitku::barvaTisku())
                ++p.tisk;
        }
    return p;
}

using Nahled = NastavenyDomov;

} // namespace

TEST_F(Nahled, VychoziArchAHorniOkraj)
{
    Moznosti::Hodnoty h = Moznosti::nacti();
    Pocty p = spocitej(NahledStitku::vykresli(NahledStitku::zHodnot(h)));
    EXPECT_EQ(p.papir, 24); // 8 rows of 36 mm under a 5 mm margin, 3 across
    EXPECT_EQ(p.tisk, 24);
    EXPECT_EQ(p.okraje, 1);
    EXPECT_NEAR(p.okraj.left(), 10 * 56.668, 1e-6);
    EXPECT_NEAR(p.okraj.bottom(), 16839.9 - 15 * 56.668, 1e-6);
    h[QStringLiteral("OkrajShora")] = QStringLiteral("10");
    p = spocitej(NahledStitku::vykresli(NahledStitku::zHodnot(h)));
    EXPECT_EQ(p.papir, 21);
    EXPECT_EQ(p.tisk, 24);
}

TEST(NahledStitku, RadkyPapiruSMezerouANeplatnymiHodnotami)
{
    NahledStitku::Mrizka m;
    m.sirka = 36;
    m.mezeraY = 5; // the 7th row ends at 36 + 6 x 41 = 282 mm, the 8th at 323, past 297
    EXPECT_EQ(NahledStitku::radkuNaPapire(m), 7);
    m.sirka = 0;   // a sheet of empty rows stops at the hundredth
    m.mezeraY = 0;
    EXPECT_EQ(NahledStitku::radkuNaPapire(m), NahledStitku::NejviceRadku);
    Moznosti::Hodnoty h;
    h[QStringLiteral("PocetSloupcuStitku")] = QStringLiteral("abc");
    EXPECT_EQ(NahledStitku::zHodnot(h).papir.sloupcu, 0);
}
