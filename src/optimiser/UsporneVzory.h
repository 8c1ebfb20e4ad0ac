#pragma once
// The shapes the fewest-sheets search lays boards in, shared by its ways of searching: a size of
// board with its two orientations, and a sheet cut in three stages (strips, stacks across a strip,
// pieces one over another in a stack). Lengths are tenths of a millimetre with the kerf.
#include <utility>
#include <vector>

namespace Usporne {

// One size of board: its copies are taken in the order of the order's list. Extents with the
// kerf along the sheet's X and Y, unturned [0] and turned [1].
struct Typ {
    double sx[2], sy[2];
    int orientaci;
    double plocha;
    std::vector<int> desky;
};

// The frame of a filling in direction smer: along its strips (w) and across them (h). Direction 1
// is the sheet turned, so one routine serves both.
inline double lw(const Typ& t, int o, int smer) { return smer == 0 ? t.sx[o] : t.sy[o]; }
inline double lh(const Typ& t, int o, int smer) { return smer == 0 ? t.sy[o] : t.sx[o]; }

// A stack: pieces one over another across the strip, each as wide as the stack or trimmed.
struct Stoh {
    double w = 0;
    std::vector<std::pair<int, int>> kusy; // type, orientation
};
struct Pas {
    double h = 0;
    std::vector<Stoh> stohy;
    double hodnota = 0;
};
// A sheet filled in strips across direction smer: 0 strips run along the sheet's X, 1 along Y.
struct Vyplneni {
    int smer = 0;
    std::vector<Pas> pasy;
    double hodnota = 0;
};

}
