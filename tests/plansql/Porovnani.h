#pragma once
// The in-memory plan engine against the engine on SQL: seeded random orders over everything
// that steers a plan (kerf 0, 3.2 and 4; the near-edge trim; grain with boards that must not
// turn; offcuts in the store taken first; the plan variant slider; ties of sizes and of names
// that differ only in case or accents; apostrophes and Czech letters in every name; boards
// larger than the sheet), each planned by both engines, and the working tables compared.
#include "optimiser/PlanRun.h"

#include <QString>

class Uloziste;

namespace PlanSql {

// One random case: the order (written into DataS, replacing every order and offcut there),
// the settings it sets, and what the run is asked for.
struct NahodnyPripad {
    QString zakazka;
    ZpusobNP zpusob;
    int volba;
    QString popis; // the settings and sizes in a line, for a failure's message
};
NahodnyPripad vytvorPripad(Uloziste& u, quint32 seme);

// Plans the case with both engines; empty when the working tables (every row and column of
// SoupisDesek, SoupisTabuli, SoupisZbytku), the cuts per sheet and the warning agree, otherwise
// the first difference in words.
QString porovnej(Uloziste& u, const NahodnyPripad& pripad);

} // namespace PlanSql
