#pragma once
// Sheets filled one after another, each as full as two knapsacks make it: along a strip of each
// height, over stacks of one size (copies one over another, topped by one narrower piece); then
// across the sheet, over those strips. On an order of many copies, sheets of next to no waste
// exist and filling strip by strip misses them; the boards left over are for the other tries of
// the search, which lay a few hundred boards well.
#include "optimiser/UsporneVzory.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace Usporne {

struct PlneTabuleZadani {
    const std::vector<Typ>* typy = nullptr;
    std::vector<double> ceny; // the worth of one board of each type
    double W = 0, H = 0;      // the usable sheet with the kerf, tenths of a millimetre
    bool stohy = true;        // a stack may hold more pieces than one (three stages of cuts)
    double doZbytku = 0;      // no further sheet once the boards left have no more area than this
    std::function<bool()> zastavit; // asked before each sheet: true ends the filling (Storno)
};

// The sheets filled, `pocet` lowered by the boards they hold: none when the sizes need a grid
// finer than the knapsacks can afford or are too many, fewer when the budget (`limit` steps)
// ends or zastavit says so first. `prace` counts the steps.
std::vector<Vyplneni> plneTabule(const PlneTabuleZadani& zadani, std::vector<int>& pocet, std::int64_t& prace,
                                 std::int64_t limit);

}
