#pragma once
// The cutting as a cost of its own, when the setting ZCR ("započítat cenu řezání") is on: per
// format with boards, the cut length of its plan (DelkaRezu) times "Cena řezu" (CRez) per
// metre. The plan is a run made for the costing: kombinovaně, in memory, silent, nothing
// written to DataK, so the costing tables there stay as they are.
#include <QString>
#include <QStringList>
#include <functional>
#include <map>
#include <optional>
#include <utility>
#include <vector>

class Uloziste;

namespace Rezani {

// The cut lengths measured for the costing, by order and format, so that the price panels do
// not run a plan per format on every selection. Whoever edits an order, its boards or formats
// drops its lengths (zahod); a length measured under other cutting settings or other stored
// offcuts (its podpis) is measured again by itself.
class Pamet {
public:
    // The length of the order's format as measured under podpis, else what zmer measures now
    // (nothing: the format has no boards), kept for the next call.
    std::optional<double> delka(const QString& zakazka, double idFormatu, const QString& podpis,
                                const std::function<std::optional<double>()>& zmer);
    void zahod(const QString& zakazka); // the order's lengths, after an edit of it
    void zahod();                       // every order's, after a restore

private:
    struct Delka {
        QString podpis;
        std::optional<double> metru;
    };
    std::map<std::pair<QString, double>, Delka> m_delky; // by the case-folded order name and format ID
};

struct Format {
    QString material; // "Řezání " and the format as a board's row names it
    double metru = 0; // the plan's cut length, to three decimals
};

// Nothing when the setting is off, or when sestavy leaves some assembly of the order out (a
// plan cuts the whole order). With pamet, the lengths it holds are taken and the new ones kept
// there. Throws Error from the store.
std::vector<Format> zakazky(Uloziste& u, const QString& zakazka, const QStringList& sestavy = {}, Pamet* pamet = nullptr);

double cenaZaMetr(); // "Cena řezu", CRez in section Setting2

} // namespace Rezani
