#include "optimiser/DelkaRezu.h"

#include <QRectF>
#include <algorithm>

namespace {

// The cuts that free one board from the waste around it in kus: a cut at each side with a gap,
// the cuts across the piece first in the direction that makes the shorter sum.
double orez(const QRectF& kus, const QRectF& d, double tolerance)
{
    const int svisle = int(d.left() - kus.left() > tolerance) + int(kus.right() - d.right() > tolerance);
    const int vodorovne = int(d.top() - kus.top() > tolerance) + int(kus.bottom() - d.bottom() > tolerance);
    return std::min(svisle * kus.height() + vodorovne * d.width(), vodorovne * kus.width() + svisle * d.height());
}

// The cut length inside kus (tenths) that frees every board of desky: a cut across the whole
// piece at a board's edge that no board straddles and that leaves boards on both sides, the
// first from the left, then from the top; a piece with one board is trimmed by orez.
double rezy(const QRectF& kus, std::vector<QRectF> desky, double tolerance)
{
    if (desky.empty())
        return 0;
    if (desky.size() == 1)
        return orez(kus, desky[0], tolerance);
    for (const bool svisly : {true, false}) {
        const auto od = [svisly](const QRectF& r) { return svisly ? r.left() : r.top(); };
        const auto po = [svisly](const QRectF& r) { return svisly ? r.right() : r.bottom(); };
        std::vector<double> hrany;
        for (const QRectF& d : desky)
            hrany.push_back(po(d));
        std::sort(hrany.begin(), hrany.end());
        for (const double hrana : hrany) {
            if (po(kus) - hrana <= tolerance)
                continue;
            std::vector<QRectF> pred, za;
            bool pres = false;
            for (const QRectF& d : desky) {
                pres = pres || (od(d) < hrana - 0.01 && po(d) > hrana + 0.01);
                (po(d) <= hrana + 0.01 ? pred : za).push_back(d);
            }
            if (pres || pred.empty() || za.empty())
                continue;
            QRectF prvni = kus, druhy = kus;
            if (svisly) {
                prvni.setRight(hrana);
                druhy.setLeft(hrana);
            } else {
                prvni.setBottom(hrana);
                druhy.setTop(hrana);
            }
            return (svisly ? kus.height() : kus.width()) + rezy(prvni, std::move(pred), tolerance) +
                   rezy(druhy, std::move(za), tolerance);
        }
    }
    // no guillotine cut parts them (not a plan of ours): each board's own outline, once
    double obvod = 0;
    for (const QRectF& d : desky)
        obvod += d.width() + d.height();
    return obvod;
}

} // namespace

double DelkaRezu(const PracovniTabulky& t, double srez, double samovani)
{
    double desetin = 0;
    for (const TabuleNP& tabule : t.tabule) {
        if (tabule.smazany || !tabule.ID)
            continue;
        std::vector<QRectF> desky;
        for (const DeskaNP& d : t.desky)
            if (d.ID && d.tabule == tabule.NCT)
                desky.emplace_back(d.XD, d.YD, d.OTOC ? d.y : d.x, d.OTOC ? d.x : d.y);
        desetin += rezy(QRectF(0, 0, tabule.x, tabule.y), std::move(desky), srez + samovani + 1);
    }
    return desetin / 10000;
}
