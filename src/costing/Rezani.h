#pragma once
// The cutting as a cost of its own, when the setting ZCR ("započítat cenu řezání") is on: per
// format with boards, the cut length of its plan (DelkaRezu) times "Cena řezu" (CRez) per
// metre. The plan is a run made for the costing: kombinovaně, in memory, silent, nothing
// written to DataK, so the costing tables there stay as they are.
#include <QString>
#include <QStringList>
#include <vector>

class Uloziste;

namespace Rezani {

struct Format {
    QString material; // "Řezání " and the format as a board's row names it
    double metru = 0; // the plan's cut length, to three decimals
};

// Nothing when the setting is off, or when sestavy leaves some assembly of the order out (a
// plan cuts the whole order). Throws Error from the store.
std::vector<Format> zakazky(Uloziste& u, const QString& zakazka, const QStringList& sestavy = {});

double cenaZaMetr(); // "Cena řezu", CRez in section Setting2

} // namespace Rezani
