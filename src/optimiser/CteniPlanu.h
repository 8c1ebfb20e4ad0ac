#pragma once
// The finished plan as its outputs read it back from the plan database: the one reader of the
// working tables SoupisDesek, SoupisTabuli and SoupisZbytku that PracovniTabulky writes. The
// plan pages and the labels call these instead of querying the tables themselves; each call is
// one query whose ORDER BY is the output's order, with its values bound. Every call throws Error
// when the store fails. (The CNC export and the offcut write-back keep their own walks: their
// query order, and the Part numbers the export writes on the way, are their algorithm.)
#include <QString>
#include <optional>
#include <vector>

class Database;

namespace CteniPlanu {

struct Deska { // a placed row of SoupisDesek, sizes in tenths of a millimetre
    QString Oznaceni, Sestava, popis;
    double x = 0, y = 0, XD = 0, YD = 0;
    double hrany[4] = {0, 0, 0, 0}; // IDHX1, IDHX2, IDHY1, IDHY2; 0 for no band
    bool OV = false, OTOC = false;
    int tabule = 0;
};

struct Tabule { // a row of SoupisTabuli
    int CT = 0;
    double x = 0, y = 0;
};

struct Zbytek { // a row of SoupisZbytku
    QString Oznaceni;
    double XZP = 0, YZP = 0, XDP = 0, YDP = 0;
};

// The number of the last sheet a board lies on (the sheets the plan needs), 0 when none does.
int posledniTabule(Database& dataK);
// The sheet of running number nct, if the plan has one.
std::optional<Tabule> tabule(Database& dataK, int nct);
// The area of the boards of sheet n, in square tenths of a millimetre.
double plochaDesek(Database& dataK, int n);
// The boards placed on sheet n, in the order they are drawn: YD, XD, the wider first.
std::vector<Deska> deskyTabule(Database& dataK, int n);
// Every placed board, in the order the labels are printed: sheet, YD, XD.
std::vector<Deska> usazeneDesky(Database& dataK);
// Whether a board placed on sheet n carries the band idHrany on one of its sides.
bool hranaNaTabuli(Database& dataK, int n, double idHrany);
// The remnants of sheet n that the page draws (all but the "ZŘ" marks), by YDP.
std::vector<Zbytek> zbytkyTabule(Database& dataK, int n);

} // namespace CteniPlanu
