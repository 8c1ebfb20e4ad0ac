#include "optimiser/Usporne.h"

#include "optimiser/Dukaz.h"
#include "optimiser/MezSloupcu.h"
#include "optimiser/Paprsek.h"
#include "optimiser/PlneTabule.h"
#include "optimiser/UsporneVzory.h"

#include <algorithm>
#include <ctime>
#include <cmath>
#include <cstdint>
#include <numeric>

using RezovyPlan::Eps;
using RezovyPlan::Kus;

namespace Usporne {

bool Hodnoceni::lepsiNez(const Hodnoceni& j) const
{
    if (neusazeno != j.neusazeno) return neusazeno < j.neusazeno;
    if (plnych != j.plnych) return plnych < j.plnych;
    if (vsech != j.vsech) return vsech < j.vsech;
    if (std::abs(zbytek - j.zbytek) > Eps) return zbytek > j.zbytek;
    return rezu < j.rezu;
}

Hodnoceni ohodnot(const Zadani& z, const Plan& p)
{
    Hodnoceni h;
    h.neusazeno = int(p.neusazene.size());
    for (const TabulePlanu& t : p.tabule) {
        ++h.vsech;
        h.plnych += !z.tabule[t.tabule].odrezek;
        h.zbytek = std::max(h.zbytek, RezovyPlan::nejvetsiZbytek(t.strom, z.srez, z.XZ, z.YZ));
        h.rezu += RezovyPlan::rezy(t.strom);
    }
    return h;
}

std::optional<Plan> zPolozeni(const Zadani& z, const std::map<int, std::vector<RezovyPlan::Polozeni>>& polozeni)
{
    Plan plan;
    std::vector<bool> polozena(z.desky.size(), false);
    for (const auto& [tabule, desky] : polozeni) {
        if (tabule < 0 || tabule >= int(z.tabule.size()))
            return std::nullopt;
        auto strom = RezovyPlan::zPolozeni(desky, z.tabule[tabule].x - z.okraj, z.tabule[tabule].y - z.okraj, z.srez);
        if (!strom)
            return std::nullopt;
        for (const RezovyPlan::Polozeni& p : desky) {
            if (p.deska < 0 || p.deska >= int(z.desky.size()) || polozena[p.deska])
                return std::nullopt;
            polozena[p.deska] = true;
        }
        plan.tabule.push_back({tabule, std::move(*strom)});
    }
    for (int i = 0; i < int(z.desky.size()); ++i)
        if (!polozena[i])
            plan.neusazene.push_back(i);
    return plan;
}

namespace {

bool vseUsazeno(const std::vector<int>& zbyva)
{
    return std::none_of(zbyva.begin(), zbyva.end(), [](int n) { return n > 0; });
}

// The knobs of one try: how much large boards weigh, how strictly a stack's first piece must
// match the strip's height, how many strip heights are tried, and a little noise.
struct Parametry {
    double mocnina = 1.2;
    double shoda = 2;
    int vysek = 8;
    double sum = 0;
    int varianty = 0; // further knobs tried on every sheet
};

// What a step of the inner loops costs beside the work around it, per board handled: trees,
// sums, copies. Counted so that small orders keep to their budget as large ones do.
constexpr long Rezie = 400;

class Hledani {
public:
    Hledani(const Zadani& z) : m_z(z) { pripravTypy(); }

    Plan hledej(const std::vector<Plan>& vychozi, const Rizeni& r);
    int mez() const { return m_mez; }

private:
    const Zadani& m_z;
    std::vector<Typ> m_typy;
    std::vector<int> m_pocet0;
    std::vector<int> m_mimo; // boards that fit no sheet
    std::vector<int> m_typDesky;
    std::vector<double> m_cena;
    std::vector<double> m_korekce;
    std::int64_t m_prace = 0;
    std::int64_t m_naDukaz = 0; // steps left for proofs of the fewest sheets
    int m_dokazovano = 0;       // the sheets of the plan last shown or not shown the fewest
    int m_mez = 0;              // no plan of fewer sheets exists
    int m_mezSloupcu = -1;      // the relaxation's bound, once worked out
    std::uint64_t m_nahoda = 0x9E3779B97F4A7C15ull;

    double nahodne()
    {
        m_nahoda ^= m_nahoda << 13;
        m_nahoda ^= m_nahoda >> 7;
        m_nahoda ^= m_nahoda << 17;
        return double(m_nahoda >> 11) / double(1ull << 53);
    }
    double sirka(const Tabule& t) const { return t.x - m_z.okraj + m_z.srez; }
    double vyska(const Tabule& t) const { return t.y - m_z.okraj + m_z.srez; }

    void pripravTypy();
    void ceny(const Parametry& p);
    template <typename Skore>
    std::pair<int, int> nejlepsiKus(const std::vector<int>& pocet, int smer, double w, double h, Skore skore);
    Pas pas(double H, double W, std::vector<int>& pocet, const Parametry& p, int smer);
    Vyplneni vypln(double W, double H, std::vector<int>& pocet, const Parametry& p, int smer);
    Vyplneni vypln(const Tabule& t, std::vector<int>& pocet, const Parametry& p, int smer)
    {
        return smer == 0 ? vypln(sirka(t), vyska(t), pocet, p, 0) : vypln(vyska(t), sirka(t), pocet, p, 1);
    }
    Vyplneni nejlepsiVyplneni(const Tabule& t, std::vector<int>& pocet, const Parametry& p);
    // desky[t] hands out the boards of type t, dalsi[t] is the next one to take
    Kus strom(const Vyplneni& v, const Tabule& t, const std::vector<std::vector<int>>& desky,
              std::vector<size_t>& dalsi) const;
    std::vector<std::vector<int>> deskyTypu() const;
    Parametry jineParametry();
    Plan sestav(const Parametry& p);
    void zbytekNaKonci(Plan& plan);
    void vyprazdni(Plan& plan, std::int64_t limit);
    void seradTabule(Plan& plan, const std::vector<double>& plochy, const std::vector<bool>& smazana) const;
    std::optional<Plan> prerezej(const Plan& plan);
    std::optional<Plan> veStupnich(const Plan& plan);
    void oprav(const Plan& plan);
    std::vector<int> deskyNa(const Kus& k) const;
    double plochaDesek(const Kus& k) const;
    // the boards given, by type: the lists to hand out and their counts
    std::pair<std::vector<std::vector<int>>, std::vector<int>> podleTypu(const std::vector<int>& desky) const;
    bool stejneTabule() const;
    int dolniMez() const;
    int dokazanaMez(const Plan& plan, int mez);
    bool nelzeNa(const Plan& plan, int tabuli, std::int64_t limit);
    std::optional<Plan> paprsek(int sirkaPaprsku, int voditko, int nejvic, int nejvicPlnych,
                                const std::function<bool()>& zastavit);
    bool naPlneTabule() const;
    // prubeh: the steps spent so far, for progress and Storno
    std::optional<Plan> sPlnymiTabulemi(std::int64_t limit, const std::function<bool(std::int64_t)>& prubeh);
    Plan spoj(const std::vector<Vyplneni>& listy, const Plan& zbytku, const std::vector<int>& puvodni) const;
    bool m_vnorene = false; // a search of the boards another left: no knapsack sheets of its own
};

void Hledani::pripravTypy()
{
    const double k = m_z.srez;
    std::vector<Tabule> velikosti = m_z.tabule;
    for (int i = 0; i < int(m_z.desky.size()); ++i) {
        const Deska& d = m_z.desky[i];
        const bool otocit = !(m_z.vzor && d.OV) && std::abs(d.x - d.y) > Eps;
        auto vejde = [&](const Tabule& t) {
            const double W = t.x - m_z.okraj, H = t.y - m_z.okraj;
            return (d.x <= W + Eps && d.y <= H + Eps) || (otocit && d.y <= W + Eps && d.x <= H + Eps);
        };
        if (d.x <= 0 || d.y <= 0 || std::none_of(m_z.tabule.begin(), m_z.tabule.end(), vejde)) {
            m_mimo.push_back(i);
            continue;
        }
        auto it = std::find_if(m_typy.begin(), m_typy.end(), [&](const Typ& t) {
            return std::abs(t.sx[0] - d.x - k) < Eps && std::abs(t.sy[0] - d.y - k) < Eps &&
                   t.orientaci == (otocit ? 2 : 1);
        });
        if (it == m_typy.end()) {
            Typ t{{d.x + k, d.y + k}, {d.y + k, d.x + k}, otocit ? 2 : 1, d.x * d.y, {}};
            m_typy.push_back(t);
            it = m_typy.end() - 1;
        }
        it->desky.push_back(i);
    }
    m_typDesky.assign(m_z.desky.size(), -1);
    for (size_t t = 0; t < m_typy.size(); ++t) {
        m_pocet0.push_back(int(m_typy[t].desky.size()));
        for (int d : m_typy[t].desky)
            m_typDesky[d] = int(t);
    }
    m_korekce.assign(m_typy.size(), 1.0);
    m_cena.assign(m_typy.size(), 0);
}

void Hledani::ceny(const Parametry& p)
{
    for (size_t t = 0; t < m_typy.size(); ++t)
        m_cena[t] = std::pow(m_typy[t].plocha, p.mocnina) * m_korekce[t] * (1 + p.sum * nahodne());
}

// The piece still wanted that fits w by h (in the frame of smer) and scores most; -1 for none.
template <typename Skore>
std::pair<int, int> Hledani::nejlepsiKus(const std::vector<int>& pocet, int smer, double w, double h, Skore skore)
{
    int nt = -1, no = 0;
    double nejvic = 0;
    for (size_t t = 0; t < m_typy.size(); ++t) {
        if (!pocet[t])
            continue;
        for (int o = 0; o < m_typy[t].orientaci; ++o) {
            if (lh(m_typy[t], o, smer) > h + Eps || lw(m_typy[t], o, smer) > w + Eps)
                continue;
            const double hodnota = skore(int(t), o);
            if (hodnota > nejvic) {
                nejvic = hodnota;
                nt = int(t);
                no = o;
            }
        }
    }
    m_prace += long(m_typy.size());
    return {nt, no};
}

// A strip of height H filled from its start with stacks; each stack opens with the piece whose
// height matches the strip best for its worth, then takes on the worthiest pieces that fit.
Pas Hledani::pas(double H, double W, std::vector<int>& pocet, const Parametry& p, int smer)
{
    Pas pas;
    pas.h = H;
    double u = 0;
    // how well each piece opens a stack of this strip, for its height
    std::vector<double> shoda(2 * m_typy.size(), 0);
    m_prace += 4 * long(m_typy.size());
    for (size_t t = 0; t < m_typy.size(); ++t)
        if (pocet[t])
            for (int o = 0; o < m_typy[t].orientaci; ++o)
                if (lh(m_typy[t], o, smer) <= H + Eps)
                    shoda[2 * t + o] = m_cena[t] * std::pow(lh(m_typy[t], o, smer) / H, p.shoda);
    for (;;) {
        const auto [bt, bo] = nejlepsiKus(pocet, smer, W - u, H, [&](int t, int o) { return shoda[2 * t + o]; });
        if (bt < 0)
            break;
        Stoh s;
        s.w = lw(m_typy[bt], bo, smer);
        s.kusy.push_back({bt, bo});
        --pocet[bt];
        pas.hodnota += m_cena[bt];
        double zbyva = H - lh(m_typy[bt], bo, smer);
        while (m_z.stupne >= 3) { // two stages: a stack holds its first piece alone
            const double sirka = s.w;
            const auto [ct, co] = nejlepsiKus(pocet, smer, sirka, zbyva, [&](int t, int o) {
                return m_cena[t] * (lw(m_typy[t], o, smer) / sirka);
            });
            if (ct < 0)
                break;
            s.kusy.push_back({ct, co});
            --pocet[ct];
            pas.hodnota += m_cena[ct];
            zbyva -= lh(m_typy[ct], co, smer);
        }
        u += s.w;
        pas.stohy.push_back(std::move(s));
    }
    return pas;
}

// A sheet W by H (with the kerf, in the frame of smer) filled strip by strip: of the tallest
// heights still wanted, the strip that fills its own area best goes next.
Vyplneni Hledani::vypln(double W, double H, std::vector<int>& pocet, const Parametry& p, int smer)
{
    Vyplneni v;
    v.smer = smer;
    double zbyva = H;
    for (;;) {
        std::vector<double> vysky;
        for (size_t t = 0; t < m_typy.size(); ++t)
            if (pocet[t])
                for (int o = 0; o < m_typy[t].orientaci; ++o)
                    if (lh(m_typy[t], o, smer) <= zbyva + Eps && lw(m_typy[t], o, smer) <= W + Eps)
                        vysky.push_back(lh(m_typy[t], o, smer));
        std::sort(vysky.begin(), vysky.end(), std::greater<>());
        vysky.erase(std::unique(vysky.begin(), vysky.end(), [](double a, double b) { return std::abs(a - b) < Eps; }),
                    vysky.end());
        if (vysky.empty())
            break;
        if (int(vysky.size()) > p.vysek)
            vysky.resize(p.vysek);
        Pas nejlepsi;
        std::vector<int> poNejlepsim;
        double ucinnost = -1;
        for (double h : vysky) {
            std::vector<int> zkusmo = pocet;
            m_prace += long(m_typy.size());
            Pas kandidat = pas(h, W, zkusmo, p, smer);
            const double u = kandidat.hodnota / (W * h);
            if (u > ucinnost + 1e-12) {
                ucinnost = u;
                nejlepsi = std::move(kandidat);
                poNejlepsim = std::move(zkusmo);
            }
        }
        if (nejlepsi.stohy.empty())
            break;
        pocet = std::move(poNejlepsim);
        zbyva -= nejlepsi.h;
        v.hodnota += nejlepsi.hodnota;
        v.pasy.push_back(std::move(nejlepsi));
    }
    return v;
}

// Both directions, with the try's own knobs and p.varianty others: the worthiest filling wins.
Vyplneni Hledani::nejlepsiVyplneni(const Tabule& t, std::vector<int>& pocet, const Parametry& p)
{
    Vyplneni nejlepsi;
    std::vector<int> poNejlepsim = pocet;
    for (int varianta = 0; varianta <= p.varianty; ++varianta) {
        Parametry q = p;
        if (varianta > 0) {
            q.shoda = 6 * nahodne();
            q.vysek = 2 + int(14 * nahodne());
        }
        for (int smer : {0, 1}) {
            std::vector<int> zbyva = pocet;
            Vyplneni v = vypln(t, zbyva, q, smer);
            if (v.hodnota > nejlepsi.hodnota + 1e-9) {
                nejlepsi = std::move(v);
                poNejlepsim = std::move(zbyva);
            }
        }
    }
    pocet = std::move(poNejlepsim);
    return nejlepsi;
}

// The cutting tree of a filling: the sheet into strips, a strip into stacks, a stack into
// pieces, a piece narrower than its stack trimmed; what is left at each end is waste.
Kus Hledani::strom(const Vyplneni& v, const Tabule& tab, const std::vector<std::vector<int>>& desky,
                   std::vector<size_t>& dalsi) const
{
    const int s = v.smer;
    // u runs along the strip, w across it; the frame of smer 1 is the sheet's turned
    auto kus = [&](double u, double w, double du, double dw) {
        Kus k;
        (s == 0 ? k.x : k.y) = u;
        (s == 0 ? k.y : k.x) = w;
        (s == 0 ? k.w : k.h) = du;
        (s == 0 ? k.h : k.w) = dw;
        return k;
    };
    const int podelPasu = s == 0 ? 0 : 1, napricPasu = 1 - podelPasu;
    auto uzavri = [](Kus k) { return k.deti.size() == 1 ? std::move(k.deti[0]) : k; };
    const double W = s == 0 ? sirka(tab) : vyska(tab), H = s == 0 ? vyska(tab) : sirka(tab);

    Kus tabule = kus(0, 0, W, H);
    tabule.osa = napricPasu;
    double w = 0;
    for (const Pas& p : v.pasy) {
        Kus pas = kus(0, w, W, p.h);
        pas.osa = podelPasu;
        double u = 0;
        for (const Stoh& st : p.stohy) {
            Kus stoh = kus(u, w, st.w, p.h);
            stoh.osa = napricPasu;
            double ww = w;
            for (const auto& [t, o] : st.kusy) {
                const Typ& typ = m_typy[t];
                const double du = lw(typ, o, s), dw = lh(typ, o, s);
                Kus deska = kus(u, ww, du, dw);
                deska.deska = desky[t][dalsi[t]++];
                deska.otoceno = o == 1;
                if (du < st.w - Eps) {
                    Kus orez = kus(u, ww, st.w, dw);
                    orez.osa = podelPasu;
                    orez.deti.push_back(deska);
                    orez.deti.push_back(kus(u + du, ww, st.w - du, dw));
                    stoh.deti.push_back(std::move(orez));
                } else {
                    stoh.deti.push_back(std::move(deska));
                }
                ww += dw;
            }
            if (ww < w + p.h - Eps)
                stoh.deti.push_back(kus(u, ww, st.w, w + p.h - ww));
            pas.deti.push_back(uzavri(std::move(stoh)));
            u += st.w;
        }
        if (u < W - Eps)
            pas.deti.push_back(kus(u, w, W - u, p.h));
        tabule.deti.push_back(uzavri(std::move(pas)));
        w += p.h;
    }
    if (w < H - Eps)
        tabule.deti.push_back(kus(0, w, W, H - w));
    return uzavri(std::move(tabule));
}

// The knobs of a whole plan after the first: weights, matching, heights and noise drawn anew.
Parametry Hledani::jineParametry()
{
    Parametry p;
    p.mocnina = 1.0 + 0.6 * nahodne();
    p.shoda = 0.5 + 5 * nahodne();
    p.vysek = 4 + int(12 * nahodne());
    p.sum = 0.3 * nahodne();
    p.varianty = int(4 * nahodne());
    return p;
}

Plan Hledani::sestav(const Parametry& p)
{
    m_prace += Rezie * long(m_z.desky.size());
    ceny(p);
    Plan plan;
    std::vector<int> pocet = m_pocet0;
    std::vector<size_t> dalsi(m_typy.size(), 0);
    const auto vsechny = deskyTypu();
    long zbyva = 0;
    for (int n : pocet)
        zbyva += n;
    for (int i = 0; i < int(m_z.tabule.size()) && zbyva > 0; ++i) {
        const Tabule& t = m_z.tabule[i];
        const std::vector<int> pred = pocet;
        const Vyplneni v = nejlepsiVyplneni(t, pocet, p);
        if (v.pasy.empty()) {
            if (t.odrezek)
                continue;
            break; // what is left fits only offcuts already passed
        }
        for (size_t j = 0; j < pocet.size(); ++j)
            zbyva -= pred[j] - pocet[j];
        plan.tabule.push_back({i, strom(v, t, vsechny, dalsi)});
    }
    plan.neusazene = m_mimo;
    for (size_t t = 0; t < m_typy.size(); ++t)
        for (size_t j = dalsi[t]; j < m_typy[t].desky.size(); ++j)
            plan.neusazene.push_back(m_typy[t].desky[j]);
    std::sort(plan.neusazene.begin(), plan.neusazene.end());
    zbytekNaKonci(plan);
    return plan;
}

std::vector<int> Hledani::deskyNa(const Kus& k) const
{
    std::vector<int> desky;
    auto sber = [&](const Kus& kus, auto& sam) -> void {
        if (kus.deska >= 0)
            desky.push_back(kus.deska);
        for (const Kus& d : kus.deti)
            sam(d, sam);
    };
    sber(k, sber);
    return desky;
}

double Hledani::plochaDesek(const Kus& k) const
{
    double plocha = 0;
    for (int d : deskyNa(k))
        plocha += m_z.desky[d].x * m_z.desky[d].y;
    return plocha;
}

std::pair<std::vector<std::vector<int>>, std::vector<int>> Hledani::podleTypu(const std::vector<int>& desky) const
{
    std::vector<std::vector<int>> seznamy(m_typy.size());
    std::vector<int> pocet(m_typy.size(), 0);
    std::vector<int> serazene = desky;
    std::sort(serazene.begin(), serazene.end());
    for (int d : serazene) {
        seznamy[m_typDesky[d]].push_back(d);
        ++pocet[m_typDesky[d]];
    }
    return {seznamy, pocet};
}

// The last sheet laid out again from its own boards, both ways, for the larger remnant.
void Hledani::zbytekNaKonci(Plan& plan)
{
    if (plan.tabule.empty())
        return;
    TabulePlanu& posledni = plan.tabule.back();
    const Tabule& t = m_z.tabule[posledni.tabule];
    const auto [vlastni, pocet] = podleTypu(deskyNa(posledni.strom));
    double nejvetsi = RezovyPlan::nejvetsiZbytek(posledni.strom, m_z.srez, m_z.XZ, m_z.YZ);
    for (int smer : {0, 1})
        for (double shoda : {0.0, 2.0, 6.0}) {
            Parametry p;
            p.shoda = shoda;
            p.vysek = 32;
            std::vector<int> zbyva = pocet;
            const Vyplneni v = vypln(t, zbyva, p, smer);
            if (!vseUsazeno(zbyva))
                continue;
            std::vector<size_t> dalsi(m_typy.size(), 0);
            Kus kandidat = strom(v, t, vlastni, dalsi);
            const double z = RezovyPlan::nejvetsiZbytek(kandidat, m_z.srez, m_z.XZ, m_z.YZ);
            if (z > nejvetsi + Eps) {
                nejvetsi = z;
                posledni.strom = std::move(kandidat);
            }
        }
}

// A plan cut in more stages than allowed, its sheets laid out again each from its own boards in
// the stages allowed; nothing when some sheet's boards will not go.
std::optional<Plan> Hledani::prerezej(const Plan& plan)
{
    Plan novy;
    novy.neusazene = plan.neusazene;
    for (const TabulePlanu& tp : plan.tabule) {
        const Tabule& t = m_z.tabule[tp.tabule];
        const auto [seznamy, pocet] = podleTypu(deskyNa(tp.strom));
        bool hotovo = false;
        for (int pokus = 0; pokus < 64 && !hotovo; ++pokus) {
            Parametry p;
            p.shoda = 6 * nahodne();
            p.vysek = 2 + int(30 * nahodne());
            for (size_t i = 0; i < m_typy.size(); ++i)
                m_cena[i] = m_typy[i].plocha * (1 + 0.5 * nahodne());
            for (int smer = 0; smer < 2 && !hotovo; ++smer) {
                std::vector<int> zbyva = pocet;
                const Vyplneni v = vypln(t, zbyva, p, smer);
                if (!vseUsazeno(zbyva))
                    continue;
                std::vector<size_t> dalsi(m_typy.size(), 0);
                novy.tabule.push_back({tp.tabule, strom(v, t, seznamy, dalsi)});
                hotovo = true;
            }
        }
        if (!hotovo)
            return std::nullopt;
    }
    return novy;
}

// Emptying the least full sheet: its boards and those of one to three others are laid out
// again, the others filled as well as they can be, the least full one taking the rest. A change
// stands when the others hold more than before; the least full sheet goes when nothing is left.
void Hledani::vyprazdni(Plan& plan, std::int64_t limit)
{
    std::vector<int> plne; // positions of the full sheets in the plan
    for (int i = 0; i < int(plan.tabule.size()); ++i)
        if (!m_z.tabule[plan.tabule[i].tabule].odrezek)
            plne.push_back(i);
    std::vector<double> plochy(plan.tabule.size());
    for (size_t i = 0; i < plan.tabule.size(); ++i)
        plochy[i] = plochaDesek(plan.tabule[i].strom);
    std::vector<bool> smazana(plan.tabule.size(), false);
    int zive = int(plne.size());
    while (m_prace < limit && zive >= 2) {
        int a = -1;
        for (int i : plne)
            if (!smazana[i] && (a < 0 || plochy[i] < plochy[a]))
                a = i;
        const int kolik = std::min(zive - 1, 1 + int(3 * nahodne()));
        std::vector<int> partneri;
        while (int(partneri.size()) < kolik) {
            // the less full of two sheets drawn: there is room to gain, and on a large order a
            // partner drawn evenly is nearly always one of the many already tightly filled
            int b = plne[size_t(nahodne() * double(plne.size())) % plne.size()];
            const int c = plne[size_t(nahodne() * double(plne.size())) % plne.size()];
            if (c != a && !smazana[c] && plochy[c] < plochy[b])
                b = c;
            if (b != a && !smazana[b] && std::find(partneri.begin(), partneri.end(), b) == partneri.end())
                partneri.push_back(b);
        }
        const Tabule& t = m_z.tabule[plan.tabule[a].tabule];
        std::vector<int> desky = deskyNa(plan.tabule[a].strom);
        const std::vector<int> zA = desky;
        double pred = 0;
        for (int b : partneri) {
            pred += plochy[b];
            for (int d : deskyNa(plan.tabule[b].strom))
                desky.push_back(d);
        }
        m_prace += Rezie * long(desky.size());
        const auto [seznamy, pocet] = podleTypu(desky);
        Parametry p;
        p.shoda = 6 * nahodne();
        p.vysek = 2 + int(14 * nahodne());
        for (size_t i = 0; i < m_typy.size(); ++i)
            m_cena[i] = m_typy[i].plocha * (1 + 0.4 * nahodne());
        for (int d : zA)
            m_cena[m_typDesky[d]] *= 1.2; // pull the boards of the least full sheet over
        std::vector<int> zbyva = pocet;
        std::vector<Vyplneni> vyplneni;
        for (size_t i = 0; i < partneri.size(); ++i)
            vyplneni.push_back(nejlepsiVyplneni(t, zbyva, p));
        double po = 0;
        for (size_t i = 0; i < m_typy.size(); ++i)
            po += (pocet[i] - zbyva[i]) * m_typy[i].plocha;
        if (po <= pred + Eps)
            continue;
        const bool prazdna = vseUsazeno(zbyva);
        Vyplneni va;
        if (!prazdna) {
            p.varianty = 2;
            va = nejlepsiVyplneni(t, zbyva, p);
            if (!vseUsazeno(zbyva))
                continue;
        }
        std::vector<size_t> dalsi(m_typy.size(), 0);
        for (size_t i = 0; i < partneri.size(); ++i) {
            plan.tabule[partneri[i]].strom = strom(vyplneni[i], t, seznamy, dalsi);
            plochy[partneri[i]] = plochaDesek(plan.tabule[partneri[i]].strom);
        }
        if (prazdna) {
            smazana[a] = true;
            --zive;
        } else {
            plan.tabule[a].strom = strom(va, t, seznamy, dalsi);
            plochy[a] = plochaDesek(plan.tabule[a].strom);
        }
    }
    seradTabule(plan, plochy, smazana);
    zbytekNaKonci(plan);
}

// Full sheets are alike: of those left (not smazana), the fullest take the first of them and the
// least full goes last, after the offcuts as they stand.
void Hledani::seradTabule(Plan& plan, const std::vector<double>& plochy, const std::vector<bool>& smazana) const
{
    std::vector<TabulePlanu> odrezky, plneTabule;
    std::vector<std::pair<double, int>> poradi;
    int prvniPlna = 0;
    while (prvniPlna < int(m_z.tabule.size()) && m_z.tabule[prvniPlna].odrezek)
        ++prvniPlna;
    for (int i = 0; i < int(plan.tabule.size()); ++i) {
        if (smazana[i])
            continue;
        if (m_z.tabule[plan.tabule[i].tabule].odrezek) {
            odrezky.push_back(std::move(plan.tabule[i]));
        } else {
            poradi.push_back({-plochy[i], i});
        }
    }
    std::stable_sort(poradi.begin(), poradi.end());
    for (size_t j = 0; j < poradi.size(); ++j) {
        plneTabule.push_back(std::move(plan.tabule[poradi[j].second]));
        plneTabule.back().tabule = prvniPlna + int(j);
    }
    plan.tabule = std::move(odrezky);
    for (TabulePlanu& t : plneTabule)
        plan.tabule.push_back(std::move(t));
}

std::vector<std::vector<int>> Hledani::deskyTypu() const
{
    std::vector<std::vector<int>> desky;
    for (const Typ& t : m_typy)
        desky.push_back(t.desky);
    return desky;
}

// Boards that ended on thin sheets weigh more in the next try, so they go in earlier.
void Hledani::oprav(const Plan& plan)
{
    std::vector<double> soucet(m_typy.size(), 0), pocet(m_typy.size(), 0);
    std::vector<int> typDesky(m_z.desky.size(), -1);
    for (size_t t = 0; t < m_typy.size(); ++t)
        for (int d : m_typy[t].desky)
            typDesky[d] = int(t);
    for (const TabulePlanu& tp : plan.tabule) {
        const Tabule& t = m_z.tabule[tp.tabule];
        std::vector<int> desky;
        double plocha = 0;
        auto sber = [&](const Kus& k, auto& sam) -> void {
            if (k.deska >= 0) {
                desky.push_back(k.deska);
                plocha += m_z.desky[k.deska].x * m_z.desky[k.deska].y;
            }
            for (const Kus& d : k.deti)
                sam(d, sam);
        };
        sber(tp.strom, sber);
        const double vyuziti = plocha / ((t.x - m_z.okraj) * (t.y - m_z.okraj));
        for (int d : desky) {
            soucet[typDesky[d]] += 1 / std::max(vyuziti, 0.05);
            pocet[typDesky[d]] += 1;
        }
    }
    for (size_t t = 0; t < m_typy.size(); ++t)
        if (pocet[t] > 0)
            m_korekce[t] = 0.6 * m_korekce[t] + 0.4 * std::pow(soucet[t] / pocet[t], 2);
}

// The plan of a beam of the given width, of at most nejvic sheets (0: any) and nejvicPlnych full
// sheets (-1: any) when it finds one.
std::optional<Plan> Hledani::paprsek(int sirkaPaprsku, int voditko, int nejvic, int nejvicPlnych,
                                     const std::function<bool()>& zastavit)
{
    PaprsekZadani pz;
    pz.typy = &m_typy;
    pz.pocet = m_pocet0;
    for (const Tabule& t : m_z.tabule)
        pz.tabule.push_back({sirka(t), vyska(t), t.odrezek});
    pz.stejneTabule = stejneTabule();
    pz.nejvic = nejvic;
    pz.nejvicPlnych = nejvicPlnych;
    pz.stohy = m_z.stupne >= 3;
    pz.sirka = sirkaPaprsku;
    pz.voditko = voditko;
    pz.zastavit = zastavit;
    const auto listy = Usporne::paprsek(pz, m_prace);
    if (!listy)
        return std::nullopt;
    Plan plan;
    const auto vsechny = deskyTypu();
    std::vector<size_t> dalsi(m_typy.size(), 0);
    for (const ListPaprsku& l : *listy)
        plan.tabule.push_back({l.tabule, strom(l.vyplneni, m_z.tabule[l.tabule], vsechny, dalsi)});
    plan.neusazene = m_mimo;
    zbytekNaKonci(plan);
    return plan;
}

// Every sheet a full one of the same size: no offcuts.
bool Hledani::stejneTabule() const
{
    return std::all_of(m_z.tabule.begin(), m_z.tabule.end(), [&](const Tabule& t) {
        return !t.odrezek && std::abs(t.x - m_z.tabule[0].x) < Eps && std::abs(t.y - m_z.tabule[0].y) < Eps;
    });
}

// The sheets the boards' area needs at least, when every sheet is a full one.
int Hledani::dolniMez() const
{
    if (m_z.tabule.empty())
        return 0;
    const Tabule& t = m_z.tabule.back();
    double plocha = 0;
    for (size_t i = 0; i < m_typy.size(); ++i)
        plocha += m_typy[i].sx[0] * m_typy[i].sy[0] * m_pocet0[i];
    return int(std::ceil(plocha / (sirka(t) * vyska(t)) - 1e-9));
}

// A plan of another mode as it is when it keeps the stage limit, or else each sheet laid out again
// from its own boards.
std::optional<Plan> Hledani::veStupnich(const Plan& p)
{
    const bool vStupnich = std::all_of(p.tabule.begin(), p.tabule.end(), [&](const TabulePlanu& t) {
        return RezovyPlan::stupne(t.strom) <= m_z.stupne;
    });
    return vStupnich ? std::optional<Plan>(p) : prerezej(p);
}

// The bound `mez` raised to the sheets of the plan when a plan of a sheet fewer is shown not to
// exist. A third of the budget may go to it: each time the best plan gets a sheet fewer, a sheet
// fewer is tried.
int Hledani::dokazanaMez(const Plan& plan, int mez)
{
    const int tabuli = int(plan.tabule.size());
    if (tabuli <= mez || tabuli == m_dokazovano || m_naDukaz <= 0)
        return mez;
    m_dokazovano = tabuli;
    const std::int64_t pred = m_prace;
    const bool nelze = nelzeNa(plan, tabuli - 1, m_naDukaz);
    m_naDukaz -= m_prace - pred;
    return nelze ? tabuli : mez;
}

// True when the boards provably do not go on `tabuli` sheets of a plan in three stages on sheets
// alike, within `limit` steps: first by the relaxation over sheet patterns (an order of a few
// sizes), then, for a few boards, by trying every way with the steps the first left.
bool Hledani::nelzeNa(const Plan& plan, int tabuli, std::int64_t limit)
{
    const bool odrezky = std::any_of(m_z.tabule.begin(), m_z.tabule.end(), [](const Tabule& t) { return t.odrezek; });
    if (m_z.tabule.empty() || odrezky || m_z.stupne != 3)
        return false;
    std::vector<Velikost> desky;
    for (size_t t = 0; t < m_typy.size(); ++t)
        desky.push_back({std::lround(m_typy[t].sx[0]), std::lround(m_typy[t].sy[0]), m_typy[t].orientaci == 2, m_pocet0[t]});
    const Tabule& t = m_z.tabule.back();
    const long W = std::lround(sirka(t)), H = std::lround(vyska(t));
    const bool malo = std::accumulate(m_pocet0.begin(), m_pocet0.end(), 0) <= NejvicDesekDukazu;
    const std::int64_t konec = m_prace + limit;
    if (m_mezSloupcu < 0) { // the search only ever asks of fewer sheets than it asked before
        std::vector<std::vector<int>> vzory; // the plan's sheets: patterns the relaxation starts from
        for (const TabulePlanu& tp : plan.tabule)
            vzory.push_back(podleTypu(deskyNa(tp.strom)).second);
        m_mezSloupcu = mezSloupcu(desky, W, H, tabuli + 1, m_prace, konec, vzory);
    }
    if (m_mezSloupcu > tabuli)
        return true;
    return malo && Usporne::nelzeNa(desky, W, H, tabuli, m_prace, konec);
}

// Steps of the inner loops per second of the budget: about a processor second of this project's
// two-core build box (2026).
constexpr double KrokuZaSekundu = 400e6;

// Knapsack sheets pay on a large order of sheets alike, many boards to a sheet.
bool Hledani::naPlneTabule() const
{
    const int mez = dolniMez();
    return !m_vnorene && stejneTabule() && mez >= 10 && std::accumulate(m_pocet0.begin(), m_pocet0.end(), 0) >= 10 * mez;
}

// A plan whose first sheets the knapsacks fill, up to two thirds of the boards' area; the boards
// they leave are laid by a search of their own with the steps left of `limit`.
std::optional<Plan> Hledani::sPlnymiTabulemi(std::int64_t limit, const std::function<bool(std::int64_t)>& prubeh)
{
    PlneTabuleZadani pz;
    pz.typy = &m_typy;
    pz.W = sirka(m_z.tabule[0]);
    pz.H = vyska(m_z.tabule[0]);
    pz.stohy = m_z.stupne >= 3;
    double nejvetsi = 0, plocha = 0;
    for (size_t t = 0; t < m_typy.size(); ++t) {
        nejvetsi = std::max(nejvetsi, m_typy[t].plocha);
        plocha += m_pocet0[t] * m_typy[t].plocha;
    }
    for (const Typ& t : m_typy) // large boards a little worthier: the small ones fill the last sheets
        pz.ceny.push_back(std::pow(t.plocha / nejvetsi, 1.1));
    pz.doZbytku = plocha / 3;
    pz.zastavit = [&] { return prubeh(m_prace); };
    std::vector<int> pocet = m_pocet0;
    const std::vector<Vyplneni> listy = plneTabule(pz, pocet, m_prace, limit);
    if (listy.empty() || m_prace >= limit)
        return std::nullopt;
    Zadani zbytek = m_z; // the boards left, each by its index in the order
    zbytek.desky.clear();
    std::vector<int> puvodni;
    for (size_t t = 0; t < m_typy.size(); ++t)
        for (size_t i = m_pocet0[t] - pocet[t]; i < m_typy[t].desky.size(); ++i) {
            puvodni.push_back(m_typy[t].desky[i]);
            zbytek.desky.push_back(m_z.desky[puvodni.back()]);
        }
    Hledani vnorene(zbytek);
    vnorene.m_vnorene = true;
    Rizeni rz;
    rz.sekund = double(limit - m_prace) / KrokuZaSekundu;
    rz.prubeh = [&](int, double) { return prubeh(m_prace + vnorene.m_prace); };
    const Plan zbytku = vnorene.hledej({}, rz);
    m_prace += vnorene.m_prace;
    if (listy.size() + zbytku.tabule.size() > m_z.tabule.size())
        return std::nullopt;
    return spoj(listy, zbytku, puvodni);
}

// The knapsack sheets first, then the sheets of the plan of the boards they left, whose boards
// are numbered as in that plan's order: puvodni gives their numbers in this one.
Plan Hledani::spoj(const std::vector<Vyplneni>& listy, const Plan& zbytku, const std::vector<int>& puvodni) const
{
    Plan plan;
    const auto vsechny = deskyTypu();
    std::vector<size_t> dalsi(m_typy.size(), 0);
    for (size_t i = 0; i < listy.size(); ++i)
        plan.tabule.push_back({int(i), strom(listy[i], m_z.tabule[i], vsechny, dalsi)});
    auto precisluj = [&](Kus& k, auto& sam) -> void {
        if (k.deska >= 0)
            k.deska = puvodni[k.deska];
        for (Kus& d : k.deti)
            sam(d, sam);
    };
    for (TabulePlanu t : zbytku.tabule) {
        precisluj(t.strom, precisluj);
        t.tabule += int(listy.size());
        plan.tabule.push_back(std::move(t));
    }
    plan.neusazene = m_mimo;
    for (int d : zbytku.neusazene)
        plan.neusazene.push_back(puvodni[d]);
    std::sort(plan.neusazene.begin(), plan.neusazene.end());
    return plan;
}

Plan Hledani::hledej(const std::vector<Plan>& vychozi, const Rizeni& r)
{
    const std::clock_t start = std::clock();
    int& mez = m_mez;
    mez = dolniMez();
    std::int64_t limit = std::int64_t(std::max(r.sekund, 0.0) * KrokuZaSekundu);
    std::optional<Plan> nejlepsi;
    Hodnoceni hn;
    const bool odrezky = std::any_of(m_z.tabule.begin(), m_z.tabule.end(), [](const Tabule& t) { return t.odrezek; });
    bool uMeze = false;
    m_naDukaz = limit / 3;
    auto zkus = [&](Plan p) {
        const Hodnoceni h = ohodnot(m_z, p);
        if (!nejlepsi || h.lepsiNez(hn)) {
            hn = h;
            nejlepsi = std::move(p);
        }
        if (hn.neusazeno == int(m_mimo.size()))
            mez = dokazanaMez(*nejlepsi, mez);
    };
    for (const Plan& p : vychozi)
        if (auto v = veStupnich(p))
            zkus(std::move(*v));
    auto prubeh = [&](std::int64_t kroku) {
        return r.prubeh && r.prubeh(hn.vsech, std::min(1.0, double(kroku) / double(std::max<std::int64_t>(limit, 1))));
    };
    auto konec = [&] {
        // a safety net for a machine far slower than counted: processor time, not the clock on
        // the wall, so that other programs' load does not change the plan
        const double sekund = double(std::clock() - start) / CLOCKS_PER_SEC;
        const bool dost = m_prace >= limit || sekund > 4 * r.sekund + 1;
        return prubeh(m_prace) || dost;
    };
    // A quarter of the budget for beams, each twice as wide as the last and at most as wide as a
    // million children of a layer (the memory a long budget may not outgrow), each after a plan
    // of a sheet fewer than the best; with offcuts, of no more full sheets (fewer offcuts used is
    // better too). The rest: half for whole plans tried with other knobs, half for emptying the
    // best's sheets; on a large order of many copies, all of it for knapsack sheets and the rest.
    std::int64_t posledni = 0;
    const int nejsirsi = int(std::max<size_t>(16, 1'000'000 / (6 * m_typy.size() + 1)));
    for (int pokus = 0; odrezky || !nejlepsi || hn.vsech > mez; ++pokus) {
        const std::int64_t pred = m_prace;
        if (pred + 2 * posledni > limit / 4 || (1 << (pokus / 2)) > nejsirsi)
            break;
        const int nejvic = !nejlepsi || odrezky ? 0 : hn.vsech - 1;
        const int nejvicPlnych = !nejlepsi || !odrezky ? -1 : hn.plnych;
        // (the first beam runs whole: a stop needs a plan to keep)
        const auto zastavit = nejlepsi ? std::function<bool()>(konec) : std::function<bool()>();
        if (auto plan = paprsek(1 << (pokus / 2), pokus % 2, nejvic, nejvicPlnych, zastavit))
            zkus(std::move(*plan));
        posledni = m_prace - pred;
        if (konec() && nejlepsi) // without a plan yet, the strip-by-strip try below makes one
            return std::move(*nejlepsi);
    }
    if (hn.vsech > mez && naPlneTabule()) { // what the beams left of the budget
        if (auto p = sPlnymiTabulemi(limit, prubeh))
            zkus(std::move(*p));
        if (konec())
            return std::move(*nejlepsi);
    }
    for (int pokus = 0; pokus == 0 || m_prace < limit / 2; ++pokus) {
        const Plan plan = sestav(pokus == 0 ? Parametry{} : jineParametry());
        oprav(plan);
        zkus(plan);
        if (!uMeze && !odrezky && hn.neusazeno == int(m_mimo.size()) && hn.vsech <= mez) {
            uMeze = true; // no fewer sheets can be: a little more only for the remnant
            limit = std::min(limit, m_prace + limit / 4);
        }
        if (konec())
            return std::move(*nejlepsi);
    }
    // one plan emptied on and on: a round that frees no sheet still leaves its sheets more
    // unevenly full, which the next round builds on
    Plan plan = *nejlepsi;
    while (!konec()) {
        vyprazdni(plan, std::min(limit, m_prace + limit / 20));
        zkus(plan);
    }
    return std::move(*nejlepsi);
}

} // namespace

Plan hledej(const Zadani& zadani, const std::vector<Plan>& vychozi, const Rizeni& rizeni)
{
    Hledani h(zadani);
    Plan plan = h.hledej(vychozi, rizeni);
    plan.mez = h.mez();
    return plan;
}

}
