#pragma once
// A guillotine cutting plan as a tree of pieces, apart from any store: what the fewest-sheets
// search builds and what it measures (cuts, stages, remnants). Lengths are tenths of a
// millimetre "with the kerf": every piece is as long as it really is plus one kerf, so the
// children of a piece fill it exactly and the kerf needs no bookkeeping; a sheet is its usable
// size (after the near-edge trim) plus one kerf.
#include <optional>
#include <vector>

namespace RezovyPlan {

constexpr double Eps = 1e-6;

// A rectangle of a sheet and how it is cut: into its children laid side by side along osa
// (0 = along the sheet's X, so the cuts run along Y; 1 = along Y). A leaf is a board (deska is
// its index) or waste (deska -1); waste no longer than the kerf is the saw's own dust.
struct Kus {
    double x = 0, y = 0, w = 0, h = 0; // with the kerf, from the usable area's corner
    int deska = -1;
    bool otoceno = false; // the board lies with its y along the sheet's X
    int osa = 0;
    std::vector<Kus> deti;
};

struct Zbytek { // a waste leaf as it really is
    double x, y, w, h;
};

int rezy(const Kus& k);         // cuts through the saw
int stupne(const Kus& k);       // levels of cuts; a last cut that only trims a board is free
std::vector<Zbytek> zbytky(const Kus& k, double srez); // waste leaves longer than the kerf both ways
// The area of the largest waste leaf of at least xz by yz (real, in the sheet's directions).
double nejvetsiZbytek(const Kus& k, double srez, double xz, double yz);

// A board as it lies on a sheet, real size along the sheet's X and Y.
struct Polozeni {
    int deska;
    double x, y, w, h;
    bool otoceno;
};

// The cutting tree of the boards laid on a sheet of usable size w by h (real), when edge to
// edge cuts with the kerf between pieces separate them all; nothing when they cannot.
std::optional<Kus> zPolozeni(const std::vector<Polozeni>& desky, double w, double h, double srez);

}
