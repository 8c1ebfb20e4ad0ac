#pragma once
// The working tables of one plan run, held in memory while the run decides and written to the
// plan database once, at its end: SoupisDesek, SoupisTabuli, SoupisZbytku and the cuts per
// running sheet number. Rows stand in the order they were added (the store's rowid order);
// a deleted row stays in its place marked smazany, so the order of the others never moves.
// Every field holds what the store would hold; what no step writes keeps the store's default.
#include <QString>
#include <QVariant>
#include <map>
#include <vector>

class Database;

struct DeskaNP { // a row of SoupisDesek
    int CDesky = 0;
    QString Oznaceni, Sestava;
    double x = 0, y = 0;
    bool OV = false;
    QVariant IDHX1, IDHX2, IDHY1, IDHY2; // as the order stores them
    bool ID = false;                     // placed
    double XD = 0, YD = 0;
    int tabule = 0;
    bool OTOC = false;
    // the trial's scores: [0] rows, [1] columns; Plocha[smer][otoceno], Suma[smer][otoceno]
    double Plocha[2][2] = {{0, 0}, {0, 0}};
    double Suma[2][2] = {{0, 0}, {0, 0}};
    bool PVT = false, PD = false;
};

struct TabuleNP { // a row of SoupisTabuli
    int CT = 0, NCT = 0;
    QString Material;
    double x = 0, y = 0;
    bool ID = false; // at least one board lies on it
    bool smazany = false;
};

enum class DruhZbytku { ZT, ZR, KZ };

struct ZbytekNP { // a row of SoupisZbytku
    DruhZbytku Oznaceni = DruhZbytku::KZ;
    int CT = 0, Rada = 0, cislo = 0;
    double XZP = 0, YZP = 0, XDP = 0, YDP = 0;
    bool ID = false;
    double plocha = 0, celkemY = 0;
    bool smazany = false;
};

struct PracovniTabulky {
    std::vector<DeskaNP> desky;
    std::vector<TabuleNP> tabule;
    std::vector<ZbytekNP> zbytky;
    std::map<int, int> RezyNaTabuli; // by running sheet number (CT)

    // Empties SoupisDesek, SoupisTabuli and SoupisZbytku of dataK and writes these rows in
    // their order, in one transaction. Throws Error (3799 disk full, ...); on a throw the
    // tables keep what they held.
    void zapis(Database& dataK) const;
};

// The mark of a remnant as the store writes it: "ZT", "ZŘ", "KZ".
QString textZbytku(DruhZbytku druh);
