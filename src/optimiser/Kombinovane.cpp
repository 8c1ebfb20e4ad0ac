// The combined mode's own steps: the decision between a row and a column through Plochy, and
// the merge of stacked end remnants when a row has no waiting strip left.
#include "optimiser/Umisteni.h"

#include "core/Dotaz.h"
#include "optimiser/Zkouska.h"

#include <set>
#include <unordered_map>

namespace {

// A row of Plochy: one candidate of the decision.
struct Plocha {
    double hodnota;
    double YPSILON1 = 0, YPSILON2 = 0;
    bool Rada;
    int deska;
    bool otoceny;
};

// The four candidate queries, in this order into Plochy. The third and fourth test the column
// areas as bare truth values, and the fourth sorts by the row score: kept as they stand.
//  1 "SELECT * FROM SoupisDesek WHERE ID = False  and (PlochaKZ <> 0 or SumaKZ <> 0)  ORDER by
//     PlochaKZ, y DESC, x DESC"                                     -> PlochaKZ, YPSILON1 = y
//  2 "... and OV = False and (PlochaKZBOV <> 0 or SumaKZBOV <> 0) ORDER by PlochaKZBOV, x DESC,
//     y DESC"                                                      -> PlochaKZBOV, YPSILON2 = x
//  3 "... and (PlochaKZSloupec or sumaKZSloupec <> 0) ORDER by PlochaKZSLOUPEC, x DESC, y DESC"
//                                                                  -> PlochaKZSLOUPEC, YPSILON1 = x
//  4 "... and OV = False and (PlochaKZBOVSloupec or sumaKZBOVSloupec <> 0) ORDER by PlochaKZBOV,
//     y DESC, x DESC"                                              -> PlochaKZBOVSLOUPEC, YPSILON2 = y
struct Kandidat {
    int smer;          // whose scores: 0 the row's, 1 the column's
    bool otoceny;      // the extent goes to YPSILON2, and the board comes turned
    int razeni[2];     // ORDER BY: the score of [smer][otoceny]... as given, then y/x first
    bool yNejdriv;     // after the score: y DESC, x DESC (else x DESC, y DESC)
    bool rozmerY;      // the extent is the board's y (else x)
};
const Kandidat kandidati[] = {
    {0, false, {0, 0}, true, true},
    {0, true, {0, 1}, false, false},
    {1, false, {1, 0}, false, false},
    {1, true, {0, 1}, true, true},
};

// "SELECT * FROM SoupisZbytku WHERE ID = true and Oznaceni = 'KZ' and CT = {CisloTabule} and Rada =
// {CisloRady} ...": the end remnants of this sheet only; those of an earlier sheet with the same
// row number lie where this sheet has boards
bool jeKZ(const ZbytekNP& z, int tabule, int rada)
{
    return !z.smazany && z.ID && z.Oznaceni == DruhZbytku::KZ && z.CT == tabule && z.Rada == rada;
}

} // namespace

bool Umisteni::rozhodniKomb(Volani& v, int& kand, int& otoc)
{
    Zkouska(r).ZkusebniUsazeniKomb();
    if (r.m_prerusit)
        return false;
    std::vector<Plocha> plochy;
    for (const Kandidat& k : kandidati) {
        const int i = prvni(
            [&](const DeskaNP& d) {
                return !(k.otoceny && d.OV) && (d.Plocha[k.smer][k.otoceny] != 0 || d.Suma[k.smer][k.otoceny] != 0);
            },
            [&](const DeskaNP& p, const DeskaNP& q) {
                const double sp = p.Plocha[k.razeni[0]][k.razeni[1]], sq = q.Plocha[k.razeni[0]][k.razeni[1]];
                if (sp != sq)
                    return sp < sq;
                const double p1 = k.yNejdriv ? p.y : p.x, q1 = k.yNejdriv ? q.y : q.x;
                const double p2 = k.yNejdriv ? p.x : p.y, q2 = k.yNejdriv ? q.x : q.y;
                return p1 != q1 ? p1 > q1 : p2 > q2;
            });
        if (i < 0)
            continue;
        Plocha p{desky[i].Plocha[k.smer][k.otoceny], 0, 0, k.smer == 0, i, k.otoceny};
        (k.otoceny ? p.YPSILON2 : p.YPSILON1) = k.rozmerY ? desky[i].y : desky[i].x;
        plochy.push_back(p);
    }
    // "SELECT * FROM Plochy  ORDER by Hodnota": the lowest score, the first added among equals
    const Plocha* vitez = nullptr;
    for (const Plocha& p : plochy)
        if (!vitez || p.hodnota < vitez->hodnota)
            vitez = &p;
    if (!vitez)
        return false; // no KZ row, no look at the remnants
    v.RadaKomb = vitez->Rada;
    v.HodnotaRovne = vitez->YPSILON1;
    v.HodnotaOtoc = vitez->YPSILON2;
    (vitez->otoceny ? otoc : kand) = vitez->deska;
    return true;
}

void Umisteni::DalsiZbytekRadyKomb()
{
    if (const int i = nejnovejsi(DruhZbytku::ZR, true); i >= 0) {
        nactiObdelnik(i);
        s.VZbytkuRady = true;
        NP(ZpusobNP::Kombinovane);
        return;
    }
    // "SELECT * FROM SoupisDesek WHERE ID = False  and OTOC = False ": a board still waits
    if (r.m_neusazene.empty())
        return;
    if (sloucitKoncoveZbytky())
        DalsiZbytekRadyKomb(); // the merged block now waits as a strip
}

// Stacks of end remnants that stand on one another with exactly one kerf between them become
// one taller strip of the row, when a waiting board fits the largest such block. With kerf 0
// a remnant of height 0 lies on itself: a walk that comes back to a row it has seen ends there
// and the run carries a warning. Only the end remnants of this sheet take part: stacked with
// those of an earlier sheet, a block would reach over boards of this one.
bool Umisteni::sloucitKoncoveZbytky()
{
    const double k = s.SrezNP;
    const int rada = s.CisloRady;
    // "SELECT * FROM SoupisZbytku WHERE ID = true and Oznaceni = 'KZ' and Rada = {CisloRady} Order
    // by XDP desc", and the same rows by their YDP for the look-up above a remnant
    std::vector<int> zaklady;
    std::unordered_map<double, std::vector<int>> podleYDP;
    for (int i = 0; i < int(zbytky.size()); ++i)
        if (jeKZ(zbytky[i], s.CisloTabule, rada)) {
            zaklady.push_back(i);
            podleYDP[zbytky[i].YDP].push_back(i);
        }
    std::stable_sort(zaklady.begin(), zaklady.end(), [&](int a, int b) { return zbytky[a].XDP > zbytky[b].XDP; });
    // "SELECT * FROM SoupisZbytku WHERE ID = true and Oznaceni = 'KZ' and XDP <= {XDP} and YDP =
    // {YDP} and Rada = {CisloRady} Order by XDP desc": the first row, or -1
    auto nad = [&](double xdp, double ydp) {
        const auto it = podleYDP.find(Dotaz::jakoVDotazu(ydp));
        int nejlepsi = -1;
        if (it != podleYDP.end())
            for (int i : it->second)
                if (jeKZ(zbytky[i], s.CisloTabule, rada) && zbytky[i].XDP <= Dotaz::jakoVDotazu(xdp) &&
                    (nejlepsi < 0 || zbytky[i].XDP > zbytky[nejlepsi].XDP))
                    nejlepsi = i;
        return nejlepsi;
    };
    for (int b : zaklady) {
        ZbytekNP& zaklad = zbytky[b];
        double sp = zaklad.YDP, h = zaklad.YZP, t = h;
        std::set<int> videne{b};
        for (int n; (n = nad(zaklad.XDP, sp + h + k)) >= 0;) {
            if (!videne.insert(n).second) {
                r.m_smycka = true;
                break;
            }
            sp = zbytky[n].YDP;
            h = zbytky[n].YZP;
            t = t + h + k;
            zaklad.plocha = zaklad.XZP * t;
            zaklad.celkemY = t;
        }
    }
    // "... and Rada = {CisloRady} and plocha <> 0  Order by plocha desc"
    int blok = -1;
    for (int i : zaklady) // still KZ: nothing above changed a mark
        if (zbytky[i].plocha != 0 && (blok < 0 || zbytky[i].plocha > zbytky[blok].plocha || (zbytky[i].plocha == zbytky[blok].plocha && i < blok)))
            blok = i;
    if (blok < 0)
        return false;
    ZbytekNP& B = zbytky[blok];
    const double celkemY = B.celkemY, xdp = B.XDP;
    // "SELECT * FROM SoupisDesek WHERE ID = False  and OTOC = False and y <= {celkemY} and x <=
    // {XZP} ORDER BY y DESC, x DESC;": whether any board fits the block
    const double vyska = Dotaz::jakoVDotazu(celkemY), sirka = Dotaz::jakoVDotazu(B.XZP);
    if (!existuje([&](const DeskaNP& d) { return !d.OTOC && d.y <= vyska && d.x <= sirka; }))
        return false; // plocha and celkemY stay as they are
    double sp = B.YDP, h = B.YZP, t = h, w = B.XZP;
    B.YZP = celkemY;
    B.ID = false;
    B.Oznaceni = DruhZbytku::ZR;
    std::set<int> videne{blok};
    for (int n; (n = nad(xdp, sp + h + k)) >= 0;) {
        if (!videne.insert(n).second) {
            r.m_smycka = true;
            break;
        }
        ZbytekNP& N = zbytky[n];
        const double sirkaN = N.XZP;
        sp = N.YDP;
        h = N.YZP;
        N.YZP = celkemY - t - k;
        N.XZP = sirkaN - w - k;
        t = t + h + k;
        w = sirkaN;
    }
    for (ZbytekNP& z : zbytky) // "SELECT * FROM SoupisZbytku ": plocha and celkemY back to 0
        z.plocha = z.celkemY = 0;
    ++r.m_slouceni;
    return true;
}
