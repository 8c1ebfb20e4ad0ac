#pragma once
// A plan checker that knows nothing of how any mode lays boards out: it takes the boards as they
// lie and says what is wrong. Every board placed once, inside its sheet after the trim, no two
// closer than the kerf, a grain board not turned, and each sheet cut apart by edge-to-edge cuts
// (recursively: some straight cut through the whole piece touches no board, and each side is
// again such a piece), in at most the given levels of cuts that separate boards.
#include <QJsonObject>
#include <QStringList>
#include <map>
#include <vector>

namespace KontrolaPlanu {

struct Deska {
    int index;          // the board's row
    int tabule;         // 0 when not placed
    double x, y, w, h;  // as placed, along the sheet's X and Y
    bool otoc = false, OV = false;
};

struct Vstup {
    std::vector<Deska> desky;
    std::map<int, std::pair<double, double>> tabule; // by sheet number: size
    double srez = 0, okraj = 0;
    bool vzor = false;
    int stupne = 1000;
};

// The faults found, in Czech; empty when the plan is sound.
QStringList chyby(const Vstup& vstup);

// The input from the working tables of a run (the --dump form): boards of SoupisDesek with
// their sheet's NCT, sheet sizes of SoupisTabuli.
Vstup zVypisu(const QJsonObject& vypis, double srez, double okraj, bool vzor);

}
