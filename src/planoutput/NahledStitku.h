#pragma once
// The preview of the label sheet in the options dialog: the paper's labels in green, the grid
// the program prints in the highlight colour over them, the printer's margins in red, so that a
// user sees at once whether the print lies on the labels and inside the margins. It keeps its
// own 56.668 twips per millimetre, apart from the labels' 56.685.
#include "core/Moznosti.h"
#include "printing/Dokument.h"

namespace NahledStitku {

constexpr double TwipuNaMm = 56.668;
constexpr int NejviceRadku = 100;

struct Mrizka {           // millimetres
    double delka = 0, sirka = 0, zleva = 0, shora = 0, mezeraX = 0, mezeraY = 0;
    int sloupcu = 0, radku = 0;
};

struct Rozvrzeni {
    Mrizka papir, tisk;   // the paper's rows are counted, not read
    double okrajShora = 0, okrajZdola = 0, okrajZleva = 0, okrajZprava = 0;
};

// The fields of the dialog as typed (txtS through the unit, txtPS as numbers); a text that is
// no number reads as 0, as the old conversion read it.
Rozvrzeni zHodnot(const Moznosti::Hodnoty& hodnoty);
// The rows of labels the A4 paper holds: the row whose bottom passes the page is not counted.
int radkuNaPapire(const Mrizka& papir);

QColor barvaPapiru();     // green, 65280
QColor barvaTisku();      // the system's highlight colour
QColor barvaOkraju();     // red, 255

Dokument vykresli(const Rozvrzeni& r);

}
