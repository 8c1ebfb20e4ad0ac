#include "optimiser/RezovyPlan.h"

#include <algorithm>

namespace RezovyPlan {

int rezy(const Kus& k)
{
    if (k.deti.empty())
        return 0;
    int n = int(k.deti.size()) - 1; // the last child ends at the piece's own edge
    for (const Kus& d : k.deti)
        n += rezy(d);
    return n;
}

namespace {

bool jeOrez(const Kus& k) // one board and the waste beside it
{
    int desek = 0;
    for (const Kus& d : k.deti) {
        if (!d.deti.empty())
            return false;
        desek += d.deska >= 0;
    }
    return desek == 1;
}

} // namespace

int stupne(const Kus& k)
{
    if (k.deti.empty() || jeOrez(k))
        return 0;
    int n = 0;
    for (const Kus& d : k.deti)
        n = std::max(n, stupne(d));
    return n + 1;
}

std::vector<Zbytek> zbytky(const Kus& k, double srez)
{
    std::vector<Zbytek> vysledek;
    auto projdi = [&](const Kus& kus, auto& sam) -> void {
        for (const Kus& d : kus.deti)
            sam(d, sam);
        if (kus.deti.empty() && kus.deska < 0 && kus.w - srez > Eps && kus.h - srez > Eps)
            vysledek.push_back({kus.x, kus.y, kus.w - srez, kus.h - srez});
    };
    projdi(k, projdi);
    return vysledek;
}

double nejvetsiZbytek(const Kus& k, double srez, double xz, double yz)
{
    double nejvetsi = 0;
    for (const Zbytek& z : zbytky(k, srez))
        if (z.w >= xz - Eps && z.h >= yz - Eps)
            nejvetsi = std::max(nejvetsi, z.w * z.h);
    return nejvetsi;
}

namespace {

double zacatek(const Kus& k, int osa) { return osa == 0 ? k.x : k.y; }
double delka(const Kus& k, int osa) { return osa == 0 ? k.w : k.h; }

Kus vyrez(const Kus& rodic, int osa, double od, double po)
{
    Kus k = rodic;
    k.deti.clear();
    k.deska = -1;
    (osa == 0 ? k.x : k.y) = od;
    (osa == 0 ? k.w : k.h) = po - od;
    return k;
}

std::optional<Kus> rozrez(const Kus& obdelnik, std::vector<Kus> kusy, int prvniOsa);

// The pieces of obdelnik cut along osa into groups that no cut across osa separates, with the
// waste between them; nothing when the axis gives fewer than two children.
std::optional<Kus> podel(const Kus& obdelnik, std::vector<Kus> kusy, int osa)
{
    std::sort(kusy.begin(), kusy.end(),
              [&](const Kus& a, const Kus& b) { return zacatek(a, osa) < zacatek(b, osa); });
    Kus k = obdelnik;
    k.osa = osa;
    double pozice = zacatek(obdelnik, osa);
    const double konec = pozice + delka(obdelnik, osa);
    std::vector<std::vector<Kus>> skupiny;
    std::vector<std::pair<double, double>> meze;
    for (const Kus& kus : kusy) {
        const double od = zacatek(kus, osa), po = od + delka(kus, osa);
        if (skupiny.empty() || od >= meze.back().second - Eps) {
            skupiny.emplace_back();
            meze.emplace_back(od, po);
        }
        skupiny.back().push_back(kus);
        meze.back().second = std::max(meze.back().second, po);
    }
    if (skupiny.size() == 1 && meze[0].first <= pozice + Eps && meze[0].second >= konec - Eps)
        return std::nullopt; // no cut along this axis
    for (size_t i = 0; i < skupiny.size(); ++i) {
        if (meze[i].first > pozice + Eps)
            k.deti.push_back(vyrez(obdelnik, osa, pozice, meze[i].first));
        auto dite = rozrez(vyrez(obdelnik, osa, meze[i].first, meze[i].second), std::move(skupiny[i]), 1 - osa);
        if (!dite)
            return std::nullopt;
        k.deti.push_back(std::move(*dite));
        pozice = meze[i].second;
    }
    if (konec > pozice + Eps)
        k.deti.push_back(vyrez(obdelnik, osa, pozice, konec));
    if (k.deti.size() < 2)
        return std::nullopt;
    return k;
}

std::optional<Kus> rozrez(const Kus& obdelnik, std::vector<Kus> kusy, int prvniOsa)
{
    if (kusy.size() == 1) {
        const Kus& d = kusy[0];
        if (std::abs(d.x - obdelnik.x) < Eps && std::abs(d.y - obdelnik.y) < Eps && std::abs(d.w - obdelnik.w) < Eps &&
            std::abs(d.h - obdelnik.h) < Eps)
            return d;
    }
    if (auto k = podel(obdelnik, kusy, prvniOsa))
        return k;
    return podel(obdelnik, std::move(kusy), 1 - prvniOsa);
}

} // namespace

std::optional<Kus> zPolozeni(const std::vector<Polozeni>& desky, double w, double h, double srez)
{
    Kus tabule;
    tabule.w = w + srez;
    tabule.h = h + srez;
    std::vector<Kus> kusy;
    for (const Polozeni& p : desky) {
        if (p.x < -Eps || p.y < -Eps || p.x + p.w > w + Eps || p.y + p.h > h + Eps)
            return std::nullopt;
        Kus k;
        k.x = p.x;
        k.y = p.y;
        k.w = p.w + srez;
        k.h = p.h + srez;
        k.deska = p.deska;
        k.otoceno = p.otoceno;
        kusy.push_back(k);
    }
    if (kusy.empty())
        return std::nullopt;
    auto podelX = rozrez(tabule, kusy, 0);
    auto podelY = rozrez(tabule, std::move(kusy), 1);
    if (podelX && podelY)
        return stupne(*podelY) < stupne(*podelX) ? podelY : podelX;
    return podelX ? podelX : podelY;
}

}
