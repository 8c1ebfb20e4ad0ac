#pragma once
// The costing tables: SoupisProKalkulaci (a row per board, accessory and band side) for one
// piece of each assembly (NaplnKalkulaciSestav, with its totals per assembly and material in
// SoupisProKalkulaciCelkem), per material over the order (NaplnKalkulaciMaterialu) or for the whole order
// (NaplnKalkulaciZakazky), and the two prices of the main window's status bar (ZobrazCeny). They fill the tables of the plan
// database DataK.
#include "costing/Rezani.h"

#include <QString>
#include <QStringList>

class Database;
class Uloziste;

namespace Kalkulace {

// The assemblies the calculation covers; empty: all.
using Vyber = QStringList;

// cislo of the cutting's rows (rezani): one per format, of the order (Sestava ""), priced per
// metre of cut without discount; none when rezani is empty.
constexpr int CisloRezani = 4;

// Throws Error 5 naming board and assembly when a board's format row is gone.
void NaplnKalkulaciZakazky(Database& dataK, const QString& zakazka, const Vyber& sestavy = {},
                           const std::vector<Rezani::Format>& rezani = {});
void NaplnKalkulaciSestav(Database& dataK, const QString& zakazka, const Vyber& sestavy = {},
                          const std::vector<Rezani::Format>& rezani = {});
// One piece's rows, and totals per material over the order for the purchase list: popis of a
// total is "Hrana", "Prislusenstvi", "Rezani" or empty for sheet material.
void NaplnKalkulaciMaterialu(Database& dataK, const QString& zakazka, const Vyber& sestavy = {},
                             const std::vector<Rezani::Format>& rezani = {});
// The workshop list's table SoupisProDilnu: sizes, band colours and notes, no prices.
void NaplnSoupisProDilnu(Database& dataK, const QString& zakazka, const Vyber& sestavy = {});

// The texts of panels 2 and 3: the order's price with VAT and one piece of the assembly's,
// "1234,50 Kč" (empty number when nothing is priced). Remakes DataK and closes it again. The
// cut lengths of the cutting's rows come through delkyRezu where one is given.
struct Ceny {
    QString zakazka;
    QString sestava;
};
Ceny ZobrazCeny(Uloziste& u, const QString& zakazka, const QString& sestava, Rezani::Pamet* delkyRezu = nullptr);

// The materials of SoupisProKalkulaci priced at 0 (each once, by name): they cost nothing, and
// a missing price should be noticed.
QStringList bezCeny(Database& dataK);
// How many rows the workshop list's table holds.
int radkuDilny(Database& dataK);

// The sum of SoupisProKalkulaci with VAT, rounded as the panel rounds it.
double sDPH(double zaklad);

} // namespace Kalkulace
