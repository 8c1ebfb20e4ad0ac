#pragma once
// A proof that an order of a few boards cannot go on fewer sheets: sheet by sheet, every
// collection of the remaining boards that one sheet can hold (in three stages) and that nothing
// more fits beside, with the largest board first, while the waste so far leaves room. When no
// way through remains, no plan of that many sheets exists and the search may stop looking.
#include "optimiser/PresnyList.h"

#include <cstdint>
#include <vector>

namespace Usporne {

// Boards a proof takes at most: more and the ways grow beyond any budget.
constexpr int NejvicDesekDukazu = 64;

// True when the boards provably do not go on `tabuli` sheets of W x H (usable sizes with the
// kerf, every sheet alike); false when they may, or the work reached `limit` before it was
// known. `prace` counts the steps taken.
bool nelzeNa(const std::vector<Velikost>& desky, long W, long H, int tabuli, std::int64_t& prace,
             std::int64_t limit);

}
