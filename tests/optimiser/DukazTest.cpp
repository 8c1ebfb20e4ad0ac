// Whether boards go on a sheet in three stages, exactly, and the proof built on it that an order
// needs the sheets its plan has.
#include "optimiser/Dukaz.h"
#include "optimiser/Usporne.h"

#include <gtest/gtest.h>

using Usporne::Velikost;

namespace {

bool vejde(const std::vector<Velikost>& kusy, long W = 100, long H = 100)
{
    std::int64_t prace = 0;
    return Usporne::vejdeSe(kusy, W, H, prace);
}

}

TEST(PresnyList, TriStupneAZadnyJiny)
{
    // a strip of 50: the 60 x 50 board and a stack of 30 + 20 beside it; a strip of 50 below
    EXPECT_TRUE(vejde({{60, 50}, {40, 30}, {40, 20}, {100, 50}}));
    // the stack's pieces trimmed to their width (35 of 40), and copies counted as one size
    EXPECT_TRUE(vejde({{60, 50}, {35, 25, true, 2}, {100, 50}}));
    EXPECT_FALSE(vejde({{60, 50}, {35, 25, true, 3}, {100, 50}}));
    // four 70 x 30 boards go (two strips), the square of the pinwheel does not: the sheet is
    // full, yet no cut runs from edge to edge
    EXPECT_TRUE(vejde({{70, 30, true, 4}}));
    EXPECT_FALSE(vejde({{70, 30, true, 4}, {40, 40}}));
    // strips either way: these boards keep their grain and go only in strips along Y (two
    // 25 x 50 side by side over a 50 x 50, beside a 50 x 100)
    EXPECT_TRUE(vejde({{25, 50, false, 2}, {50, 50, false, 1}, {50, 100, false, 1}}));
}

TEST(PresnyList, DeskaDrziVzor)
{
    // a board that keeps the grain lies only as it is: 100 x 30 across a strip of 30, and the
    // upright 30 x 100 then has no room
    EXPECT_FALSE(vejde({{100, 30, false, 1}, {30, 100, false, 1}}));
    EXPECT_TRUE(vejde({{100, 30, false, 1}, {30, 100, true, 1}}));
    // not square: 120 x 80 turned does not fit a 100 x 150 sheet kept as it is
    EXPECT_FALSE(vejde({{120, 80, false, 1}}, 100, 150));
    EXPECT_TRUE(vejde({{120, 80, true, 1}}, 100, 150));
}

TEST(Dukaz, NelzeNaMeneTabuli)
{
    // four boards of 60 x 60: two sheets by area, yet no two share a sheet
    const std::vector<Velikost> ctverce{{60, 60, true, 4}};
    std::int64_t prace = 0;
    EXPECT_TRUE(Usporne::nelzeNa(ctverce, 100, 100, 3, prace, 1'000'000));
    EXPECT_FALSE(Usporne::nelzeNa(ctverce, 100, 100, 4, prace, 1'000'000));
    // no work allowed: nothing is shown
    prace = 0;
    EXPECT_FALSE(Usporne::nelzeNa(ctverce, 100, 100, 3, prace, 0));
    // too many boards to try all ways: nothing is claimed
    EXPECT_FALSE(Usporne::nelzeNa({{60, 60, true, Usporne::NejvicDesekDukazu + 1}}, 100, 100, 3, prace, 1'000'000));
}

TEST(Dukaz, HledaniSkonciNaDokazaneMezi)
{
    // ten boards whose area needs three sheets; the plan has four, and no plan has fewer
    Usporne::Zadani z;
    for (int i = 0; i < 10; ++i)
        z.tabule.push_back({2500, 2500, false});
    const double rozmery[][2] = {{167, 184}, {114, 118}, {167, 152}, {83, 140}, {70, 86},
                                 {143, 166}, {120, 160}, {66, 148},  {87, 141}, {69, 165}};
    for (const auto& r : rozmery)
        z.desky.push_back({10 * r[0], 10 * r[1], false});
    const Usporne::Plan plan = Usporne::hledej(z, {}, Usporne::Rizeni{});
    EXPECT_EQ(plan.tabule.size(), 4u);
    EXPECT_EQ(plan.mez, 4);
    // with an offcut among the sheets the proof does not hold, and the area bound stays
    z.tabule.insert(z.tabule.begin(), {2000, 2000, true});
    EXPECT_EQ(Usporne::hledej(z, {}, Usporne::Rizeni{0.3, {}}).mez, 3);
}
