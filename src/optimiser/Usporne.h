#pragma once
// The search of the fourth way to cut, "úsporně": the plan with the fewest sheets under the
// constraints the other three keep (kerf between every two pieces, the near-edge trim, grain,
// offcuts before full sheets), cut edge to edge in at most as many stages as allowed. Among
// plans of the fewest sheets it prefers the largest usable remnant, then the fewest cuts.
// Plain structs in, cutting trees out: no store, no windows. The same input gives the same
// plan: the search counts its work in steps, not in seconds.
#include "optimiser/RezovyPlan.h"

#include <functional>
#include <map>
#include <optional>
#include <vector>

namespace Usporne {

struct Deska { // tenths of a millimetre
    double x = 0, y = 0;
    bool OV = false; // keeps its grain: never turned on a format with grain
};

struct Tabule {
    double x = 0, y = 0;
    bool odrezek = false; // from the offcut store
};

struct Zadani {
    std::vector<Deska> desky;
    std::vector<Tabule> tabule; // in the order of use: offcuts first, then full sheets
    double srez = 0;            // the kerf, SrezNP
    double okraj = 0;           // the near-edge trim: the usable area starts here on both axes
    bool vzor = false;          // the format has a grain
    double XZ = 0, YZ = 0;      // the smallest remnant worth keeping, tenths of a millimetre
    int stupne = 3;             // most levels of cuts
};

struct TabulePlanu {
    int tabule; // index into Zadani::tabule
    RezovyPlan::Kus strom;
};

struct Plan {
    std::vector<TabulePlanu> tabule;
    std::vector<int> neusazene; // boards larger than every sheet, or left when sheets ran out
    int mez = 0; // no plan of fewer sheets exists: by the boards' area, the relaxation, or trying all
};

// The order of plans: fewer boards left out, fewer full sheets, fewer sheets, the larger
// usable remnant, fewer cuts.
struct Hodnoceni {
    int neusazeno = 0, plnych = 0, vsech = 0;
    double zbytek = 0;
    int rezu = 0;
    bool lepsiNez(const Hodnoceni& jiny) const;
};
Hodnoceni ohodnot(const Zadani& zadani, const Plan& plan);

struct Rizeni {
    double sekund = 2; // the budget; steps per second are fixed, so the plan does not depend on load
    // Called after each plan tried, with the best sheet count so far and the share of the budget
    // spent; returns true to stop (the best plan found is kept).
    std::function<bool(int tabuli, double podil)> prubeh;
};

// The best plan found. Plans of other modes in vychozi take part as they are when their trees
// keep the stage limit, or else with each sheet laid out again from its own boards.
Plan hledej(const Zadani& zadani, const std::vector<Plan>& vychozi, const Rizeni& rizeni);

// A plan of boards laid by another mode: by the sheet's index into Zadani::tabule, the boards
// lying on it (positions from the usable area's corner). Nothing when a sheet cannot be cut
// edge to edge, whatever the stages; unplaced boards are those that lie nowhere.
std::optional<Plan> zPolozeni(const Zadani& zadani, const std::map<int, std::vector<RezovyPlan::Polozeni>>& polozeni);

}
