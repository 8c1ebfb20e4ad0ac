// The bound from the relaxation over sheet patterns: the pricing of one sheet, the simplex, and the
// bound itself, which must never claim more sheets than a plan shows are enough.
#include "optimiser/MezSloupcu.h"
#include "optimiser/NejcennejsiList.h"
#include "optimiser/Relaxace.h"
#include "optimiser/Usporne.h"

#include <gtest/gtest.h>

#include <random>

using Usporne::Velikost;

namespace {

double nejvic(const std::vector<Velikost>& kusy, const std::vector<double>& ceny, std::vector<int>& pocty,
              long W = 100, long H = 100)
{
    std::int64_t prace = 0;
    return Usporne::NejcennejsiList(kusy, W, H).nejvic(ceny, pocty, prace);
}

}

TEST(NejcennejsiList, TriStupneAPoctyOdpovidajiHodnote)
{
    std::vector<int> pocty;
    // four 60 x 40 pieces fill 96 % of the sheet only as a pinwheel: three stages hold three
    EXPECT_DOUBLE_EQ(nejvic({{60, 40}}, {1}, pocty), 3);
    EXPECT_EQ(pocty, std::vector<int>{3});
    // kept to its grain, two one over another, whichever way the strips run
    EXPECT_DOUBLE_EQ(nejvic({{60, 40, false}}, {1}, pocty), 2);
    // 50 x 15 is worth more for its area than 50 x 30: twelve of them, however stacked, and not
    // a 50 x 30 in the waste; the counts read back give the worth
    const std::vector<Velikost> dva = {{50, 30}, {50, 15}};
    const std::vector<double> ceny = {1, 0.6};
    const double v = nejvic(dva, ceny, pocty);
    EXPECT_DOUBLE_EQ(v, pocty[0] * ceny[0] + pocty[1] * ceny[1]);
    EXPECT_NEAR(v, 12 * 0.6, 1e-12);
    // a size worth nothing is not placed; a sheet smaller than every piece holds nothing
    EXPECT_DOUBLE_EQ(nejvic(dva, {0, 1}, pocty), 12);
    EXPECT_EQ(pocty[0], 0);
    EXPECT_DOUBLE_EQ(nejvic({{120, 40}}, {1}, pocty, 100, 100), 0);
}

TEST(Relaxace, OptimumASimplexNaMaleUloze)
{
    // three of size A (two to a sheet alone), two of B (one alone); a sheet of one of each:
    // two such sheets and half a sheet of A's, 2.5 sheets; each board worth what it saves
    std::int64_t prace = 0;
    Usporne::Relaxace r({3, 2}, {2, 1});
    ASSERT_TRUE(r.res(prace));
    EXPECT_NEAR(r.tabuli(), 3.5, 1e-9);
    r.pridej({1, 1});
    ASSERT_TRUE(r.res(prace));
    EXPECT_NEAR(r.tabuli(), 2.5, 1e-9);
    const std::vector<double> y = r.ceny();
    EXPECT_NEAR(3 * y[0] + 2 * y[1], 2.5, 1e-9);
    EXPECT_NEAR(y[0], 0.5, 1e-9);
}

TEST(MezSloupcu, VicNezPlochaANikdyNadPlan)
{
    std::int64_t prace = 0;
    // 70 boards of 60 x 60: the area asks for 26 sheets, one per sheet is the truth
    EXPECT_EQ(Usporne::mezSloupcu({{60, 60, true, 70}}, 100, 100, 70, prace, 1'000'000'000), 70);
    // it stops at what it was asked to show, and without steps claims nothing
    EXPECT_EQ(Usporne::mezSloupcu({{60, 60, true, 70}}, 100, 100, 50, prace, 1'000'000'000), 50);
    prace = 0;
    EXPECT_EQ(Usporne::mezSloupcu({{60, 60, true, 70}}, 100, 100, 70, prace, 0), 0);
    // a board larger than the sheet: no bound of this kind
    EXPECT_EQ(Usporne::mezSloupcu({{60, 60}, {120, 10}}, 100, 100, 3, prace, 1'000'000'000), 0);

    // on random orders of a few sizes and many copies, never above the sheets of a plan found
    std::mt19937 los(7);
    for (int pokus = 0; pokus < 15; ++pokus) {
        Usporne::Zadani z;
        std::vector<Velikost> velikosti;
        const int druhu = 1 + int(los() % 6);
        for (int d = 0; d < druhu; ++d) {
            const long x = 10 * (200 + long(los() % 1800)), y = 10 * (100 + long(los() % 900));
            const bool otocit = los() % 4 != 0;
            const int kusu = 1 + int(los() % 12);
            velikosti.push_back({x, y, otocit, kusu});
            for (int i = 0; i < kusu; ++i)
                z.desky.push_back({double(x), double(y), !otocit});
        }
        z.vzor = true;
        for (int i = 0; i < 80; ++i)
            z.tabule.push_back({28000, 20700, false});
        const Usporne::Plan plan = Usporne::hledej(z, {}, Usporne::Rizeni{0.1, {}});
        ASSERT_TRUE(plan.neusazene.empty());
        std::int64_t p = 0;
        const int mez = Usporne::mezSloupcu(velikosti, 28000, 20700, 1000, p, 2'000'000'000);
        EXPECT_LE(mez, int(plan.tabule.size())) << "pokus " << pokus;
        EXPECT_LE(plan.mez, int(plan.tabule.size())) << "pokus " << pokus;
    }
}

TEST(MezSloupcu, HledaniNadSedesatDesekKonciNaMezi)
{
    // 70 boards a sheet each: beyond the boards that trying every way takes, the relaxation shows it
    Usporne::Zadani z;
    for (int i = 0; i < 80; ++i)
        z.tabule.push_back({1000, 1000, false});
    for (int i = 0; i < 70; ++i)
        z.desky.push_back({600, 600, false});
    const Usporne::Plan plan = Usporne::hledej(z, {}, Usporne::Rizeni{});
    EXPECT_EQ(plan.tabule.size(), 70u);
    EXPECT_EQ(plan.mez, 70);
}
