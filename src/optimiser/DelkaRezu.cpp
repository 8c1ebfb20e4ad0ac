#include "optimiser/DelkaRezu.h"

#include <QRectF>
#include <algorithm>
#include <optional>

namespace {

// The cut length inside kus (tenths) that frees every board of desky. A cut runs across the
// whole piece at a board's edge that no board straddles; a cut with boards on both sides comes
// before one that only trims waste off, and of those the first from the left or the top.
double rezy(const QRectF& kus, std::vector<QRectF> desky, double tolerance)
{
    if (desky.empty())
        return 0;
    if (desky.size() == 1 && desky[0].left() - kus.left() <= tolerance && kus.right() - desky[0].right() <= tolerance &&
        desky[0].top() - kus.top() <= tolerance && kus.bottom() - desky[0].bottom() <= tolerance)
        return 0;
    struct Rez {
        bool svisly;
        double poloha;
        bool obeStrany;
    };
    std::optional<Rez> nejlepsi;
    for (const bool svisly : {true, false}) {
        const double od = svisly ? kus.left() : kus.top(), po = svisly ? kus.right() : kus.bottom();
        for (const QRectF& d : desky)
            for (const double hrana : {svisly ? d.left() : d.top(), svisly ? d.right() : d.bottom()}) {
                if (hrana - od <= tolerance || po - hrana <= tolerance)
                    continue;
                bool pred = false, za = false, pres = false;
                for (const QRectF& e : desky) {
                    const double a = svisly ? e.left() : e.top(), b = svisly ? e.right() : e.bottom();
                    pres = pres || (a < hrana - 0.01 && b > hrana + 0.01);
                    pred = pred || b <= hrana + 0.01;
                    za = za || a >= hrana - 0.01;
                }
                if (pres)
                    continue;
                const Rez r{svisly, hrana, pred && za};
                if (!nejlepsi || (r.obeStrany && !nejlepsi->obeStrany) ||
                    (r.obeStrany == nejlepsi->obeStrany && r.svisly == nejlepsi->svisly && r.poloha < nejlepsi->poloha))
                    nejlepsi = r;
            }
    }
    if (!nejlepsi) { // no guillotine cut frees them: each board's own outline, shared sides once
        double obvod = 0;
        for (const QRectF& d : desky)
            obvod += d.width() + d.height();
        return obvod;
    }
    QRectF prvni = kus, druhy = kus;
    if (nejlepsi->svisly) {
        prvni.setRight(nejlepsi->poloha);
        druhy.setLeft(nejlepsi->poloha);
    } else {
        prvni.setBottom(nejlepsi->poloha);
        druhy.setTop(nejlepsi->poloha);
    }
    std::vector<QRectF> vPrvnim, veDruhem;
    for (const QRectF& d : desky)
        ((nejlepsi->svisly ? d.right() : d.bottom()) <= nejlepsi->poloha + 0.01 ? vPrvnim : veDruhem).push_back(d);
    return (nejlepsi->svisly ? kus.height() : kus.width()) + rezy(prvni, std::move(vPrvnim), tolerance) +
           rezy(druhy, std::move(veDruhem), tolerance);
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
