#pragma once
// A lower bound on the sheets of an order from the relaxation over sheet patterns (column
// generation): whatever worth y the boards of each size are given, no sheet holds more than the
// most one sheet can be worth, so the order needs at least sum(copies * y) / that much. The
// relaxation's optimum gives the worths that make this largest; the bound holds at every step,
// so running out of budget only leaves it lower. For orders of a few sizes, many copies or not,
// where counting collections of boards (nelzeNa) cannot go.
#include "optimiser/PresnyList.h"

#include <cstdint>
#include <vector>

namespace Usporne {

// Sizes a relaxation takes at most; beyond, a simplex of its kind is too slow to be worth it.
constexpr int NejvicVelikostiMeze = 64;

// The fewest sheets of W x H (usable sizes with the kerf, every sheet alike) the boards provably
// need in three stages: at most `cil`, reached once shown, 0 when nothing was shown within
// `limit` steps. `prace` counts the steps taken. Patterns known to fit (copies of each size on a
// sheet of a plan found) start the relaxation nearer its end.
int mezSloupcu(const std::vector<Velikost>& desky, long W, long H, int cil, std::int64_t& prace,
               std::int64_t limit, const std::vector<std::vector<int>>& vzory = {});

}
