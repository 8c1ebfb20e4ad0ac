// Knapsack sheets: the fillings fit their sheet and never take a board that is not there, they
// find the sheets of no waste a strip-by-strip fill misses, they give up on a grid too fine.
#include "optimiser/PlneTabule.h"

#include <gtest/gtest.h>

#include <random>

using namespace Usporne;

namespace {

Typ typ(double x, double y, bool otocit = true)
{
    return Typ{{x, y}, {y, x}, otocit ? 2 : 1, x * y, {}};
}

// Strips within the sheet, stacks within their strip, pieces within their stack; the boards
// taken by type.
std::vector<int> zkontroluj(const Vyplneni& v, const std::vector<Typ>& typy, double W, double H)
{
    std::vector<int> vzato(typy.size(), 0);
    const double delka = v.smer == 0 ? W : H, sirka = v.smer == 0 ? H : W;
    double vyska = 0;
    for (const Pas& p : v.pasy) {
        vyska += p.h;
        double u = 0;
        for (const Stoh& s : p.stohy) {
            u += s.w;
            double h = 0;
            for (const auto& [t, o] : s.kusy) {
                EXPECT_LT(o, typy[t].orientaci);
                EXPECT_LE(lw(typy[t], o, v.smer), s.w);
                h += lh(typy[t], o, v.smer);
                ++vzato[t];
            }
            EXPECT_LE(h, p.h);
        }
        EXPECT_LE(u, delka);
    }
    EXPECT_LE(vyska, sirka);
    return vzato;
}

// A sheet of 2800 x 2070 mm with the kerf.
PlneTabuleZadani naList(const std::vector<Typ>& typy, std::vector<double> ceny)
{
    PlneTabuleZadani z;
    z.typy = &typy;
    z.ceny = std::move(ceny);
    z.W = 28000;
    z.H = 20700;
    return z;
}

} // namespace

// Strips of 28000 take two 9000s and a 10000 exactly; the widest first (two 10000s) wastes 8000
// of every strip. Thirty strips of 6900, three to a sheet: ten sheets with nothing left over.
TEST(PlneTabule, NajdeListyBezOdpaduAVejdouSe)
{
    const std::vector<Typ> typy = {typ(9000, 6900, false), typ(10000, 6900, false)};
    const PlneTabuleZadani z = naList(typy, {1, 1.1});
    std::vector<int> pocet = {60, 30};
    std::int64_t prace = 0;
    const std::vector<Vyplneni> listy = plneTabule(z, pocet, prace, 1'000'000'000);
    EXPECT_EQ(listy.size(), 10u);
    EXPECT_EQ(pocet, (std::vector<int>{0, 0}));
    std::vector<int> vsech(2, 0);
    for (const Vyplneni& v : listy) {
        const std::vector<int> vzato = zkontroluj(v, typy, z.W, z.H);
        vsech[0] += vzato[0];
        vsech[1] += vzato[1];
    }
    EXPECT_EQ(vsech, (std::vector<int>{60, 30}));
    EXPECT_GT(prace, 0);
}

// Few copies of many sizes, some turned, two stages or three: whatever the knapsacks choose,
// the boards laid fit and no size is taken more often than it is ordered; it stops where told.
TEST(PlneTabule, NahodneZakazkyVejdouANepretahnou)
{
    std::mt19937 n(7);
    for (int pripad = 0; pripad < 40; ++pripad) {
        std::vector<Typ> typy;
        std::vector<int> pocet;
        for (int t = 0, druhu = 1 + int(n() % 20); t < druhu; ++t) {
            typy.push_back(typ(10.0 * (50 + n() % 2000), 10.0 * (40 + n() % 1500), n() % 3 != 0));
            pocet.push_back(1 + int(n() % 12));
        }
        PlneTabuleZadani z = naList(typy, {});
        for (const Typ& t : typy)
            z.ceny.push_back(t.plocha);
        z.stohy = pripad % 4 != 0;
        double plocha = 0;
        for (size_t t = 0; t < typy.size(); ++t)
            plocha += pocet[t] * typy[t].plocha;
        z.doZbytku = plocha / 3;
        const std::vector<int> pred = pocet;
        std::int64_t prace = 0;
        const std::vector<Vyplneni> listy = plneTabule(z, pocet, prace, 1'000'000'000);
        std::vector<int> vsech(typy.size(), 0);
        double posledni = 0; // the area of the last sheet's boards
        for (const Vyplneni& v : listy) {
            const std::vector<int> vzato = zkontroluj(v, typy, z.W, z.H);
            posledni = 0;
            for (size_t t = 0; t < typy.size(); ++t) {
                vsech[t] += vzato[t];
                posledni += vzato[t] * typy[t].plocha;
                if (!z.stohy) {
                    for (const Pas& p : v.pasy)
                        for (const Stoh& s : p.stohy)
                            EXPECT_EQ(s.kusy.size(), 1u);
                }
            }
        }
        double zbyva = 0;
        for (size_t t = 0; t < typy.size(); ++t) {
            EXPECT_EQ(vsech[t] + pocet[t], pred[t]) << "případ " << pripad;
            zbyva += pocet[t] * typy[t].plocha;
        }
        if (!listy.empty()) { // the last sheet was laid while more than the third was left
            EXPECT_GT(zbyva + posledni, z.doZbytku) << "případ " << pripad;
        }
    }
}

// Sizes to the tenth of a millimetre on a large sheet: a table of every tenth would be too
// large for a knapsack per strip; no sheets, every board left for the other tries.
TEST(PlneTabule, PrilisJemnaMrizkaNicNevezme)
{
    const std::vector<Typ> typy = {typ(7001, 5003), typ(3007, 2011)};
    const PlneTabuleZadani z = naList(typy, {1, 1});
    std::vector<int> pocet = {20, 20};
    std::int64_t prace = 0;
    EXPECT_TRUE(plneTabule(z, pocet, prace, 1'000'000'000).empty());
    EXPECT_EQ(pocet, (std::vector<int>{20, 20}));
}
