// The cut length of a plan, the measure the costing prices the cutting by: the guillotine cuts
// that free each board, the trim and the kerf's gaps not counted twice.
#include "optimiser/DelkaRezu.h"

#include <gtest/gtest.h>

namespace {

// A plan of one sheet of x by y (tenths) with the boards given as x, y, XD, YD, turned.
PracovniTabulky plan(double x, double y, std::initializer_list<std::tuple<double, double, double, double, bool>> desky)
{
    PracovniTabulky t;
    TabuleNP tabule;
    tabule.NCT = 1;
    tabule.x = x;
    tabule.y = y;
    tabule.ID = true;
    t.tabule.push_back(tabule);
    for (const auto& [dx, dy, xd, yd, otoc] : desky) {
        DeskaNP d;
        d.x = dx;
        d.y = dy;
        d.XD = xd;
        d.YD = yd;
        d.OTOC = otoc;
        d.ID = true;
        d.tabule = 1;
        t.desky.push_back(d);
    }
    return t;
}

} // namespace

TEST(DelkaRezu, RezyPruhuDeskyAOrezu)
{
    // a board filling its sheet needs no cut; turned, it fills it too
    EXPECT_EQ(DelkaRezu(plan(4000, 2000, {{4000, 2000, 0, 0, false}}), 40, 0), 0);
    EXPECT_EQ(DelkaRezu(plan(4000, 2000, {{2000, 4000, 0, 0, true}}), 40, 0), 0);
    // one rip of the strip (0.5 m), then the second board cross-cut (0.6 m) and trimmed (0.2 m):
    // the kerf beside it is no cut of its own
    EXPECT_DOUBLE_EQ(DelkaRezu(plan(10000, 5000, {{4000, 5000, 0, 0, false}, {4000, 2000, 4040, 0, false}}), 40, 0), 1.3);
    // four boards in two strips: the rip, the cross-cut of each strip and the trims
    EXPECT_DOUBLE_EQ(DelkaRezu(plan(10000, 5000, {{4000, 2000, 0, 0, false}, {4000, 2000, 0, 2040, false},
                                                  {4000, 2000, 4040, 0, false}, {4000, 2000, 4040, 2040, false}}),
                               40, 0),
                     2.8);
    // a sheet trimmed at its edges: the trim is no cut either
    EXPECT_EQ(DelkaRezu(plan(4100, 2100, {{4000, 2000, 50, 50, false}}), 0, 50), 0);
    // boards left out and sheets without boards cost nothing
    PracovniTabulky prazdny = plan(4000, 2000, {{1000, 1000, 0, 0, false}});
    prazdny.desky[0].ID = false;
    EXPECT_EQ(DelkaRezu(prazdny, 40, 0), 0);
}
