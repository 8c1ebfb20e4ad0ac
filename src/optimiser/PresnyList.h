#pragma once
// Whether a handful of boards can be cut from one sheet in three stages at all: strips across
// the sheet (either way), stacks side by side in a strip, pieces one over another in a stack, each
// trimmed to its width. An exact answer, not a try: it is what lets the fewest-sheets search
// prove that no plan of fewer sheets exists, and stop there.
#include <cstdint>
#include <vector>

namespace Usporne {

// One size of board on the sheet, with the kerf, in whole tenths of a millimetre.
struct Velikost {
    long x = 0, y = 0;
    bool otocit = true; // may lie turned
    int pocet = 1;
};

// True when all the boards go on a W x H sheet (usable size with the kerf). `prace` counts the
// steps taken. Meant for a sheet's worth of boards: the work grows with the product of
// (copies + 1) over the sizes.
bool vejdeSe(const std::vector<Velikost>& kusy, long W, long H, std::int64_t& prace);

}
