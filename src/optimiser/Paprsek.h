#pragma once
// A plan built board by board, each laid at the front of the plan: on the last stack, in a new
// stack beside it, in a new strip, or on the next sheet once nothing more goes on this one. At
// each board a beam keeps the partial plans that have wasted least for the boards they hold, one
// of each kind; the sheets are filled in three stages as the other tries of the search fill them.
#include "optimiser/UsporneVzory.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace Usporne {

// A sheet as the beam sees it: its usable size with the kerf.
struct Plocha {
    double x = 0, y = 0;
    bool odrezek = false; // from the offcut store
};

struct PaprsekZadani {
    const std::vector<Typ>* typy = nullptr;
    std::vector<int> pocet;     // copies of each type to lay
    std::vector<Plocha> tabule; // in the order of use: offcuts first, then full sheets
    bool stejneTabule = false;  // every sheet alike: the waste so far bounds the sheets a plan needs
    int nejvic = 0;             // plans of more sheets are not wanted (0: any)
    int nejvicPlnych = -1;      // plans of more full sheets are not wanted (-1: any)
    bool stohy = true;         // a stack may hold more pieces than one (three stages of cuts)
    int sirka = 1;             // partial plans kept at each board
    int voditko = 0;           // which measure of waste orders the beam
    // Asked now and then (about every million steps): true ends the beam with no plan, for the
    // user's Storno or a spent budget to be heard within a long beam.
    std::function<bool()> zastavit;
};

struct ListPaprsku {
    int tabule; // index into PaprsekZadani::tabule
    Vyplneni vyplneni;
};

// The plan of the fewest full sheets, then the fewest sheets, the beam reaches with every board
// laid; nothing when it reaches none within the limits. `prace` counts the steps taken, so a budget can be kept.
std::optional<std::vector<ListPaprsku>> paprsek(const PaprsekZadani& zadani, std::int64_t& prace);

}
