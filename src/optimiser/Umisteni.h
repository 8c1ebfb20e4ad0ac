#pragma once
// The real placement of one sheet: NPRady (rows), NPSloupce (columns) and NPKomb (each strip
// decided between row and column), as one routine with a direction. Direction 0 is a row: the
// strip runs along the sheet's X and its boards step down in Y; direction 1 is its mirror
// across the diagonal. The remnant writers (UlozZT, SmazZT, UlozZR, UlozKZ, ZmenZRnaKZ) serve
// both directions, and the combined mode calls them as it calls the pure ones.
//
// Every look-up works on the run's tables in memory and names the query of Dotazy.h it stands
// for: its filter, its ORDER BY, equal rows in the order they were added, numbers compared as
// the query text would carry them (15 significant digits).
#include "optimiser/PlanRun.h"

#include <algorithm>

class Umisteni {
public:
    explicit Umisteni(PlanRun& run);

    // Fills the current rectangle and everything that hangs from it (recursive).
    void NP(ZpusobNP zpusob);

private:
    // The locals of one call of the placement routine.
    struct Volani {
        ZpusobNP zpusob;
        bool RadaKomb = false; // combined mode: the open strip is a row (empty means column)
        double HodnotaRovne = 0;
        double HodnotaOtoc = 0;
        int RadaRozpracovana = 0;
        int smer() const;
    };
    enum class Druh { Presne, Napric, Podel, Schod };

    // Look-ups over SoupisDesek: the index of the board, or -1.
    int najdiDesku(int smer, int krok) const;          // Dotazy::Kroky[krok][smer]
    int najdiSchod(int smer, bool otoceno) const;      // Dotazy::Schod, Dotazy::SchodOtoc
    template <typename Pasuje, typename Pred>
    int prvni(Pasuje pasuje, Pred pred) const;
    template <typename Pasuje>
    bool existuje(Pasuje pasuje) const; // a query that is only asked whether it has a row

    void poloz(Volani& v, Druh druh, int smer, int deska, bool otoceno);
    bool otevri(Volani& v, int smer, int& kand, int& otoc);
    bool rozhodniKomb(Volani& v, int& kand, int& otoc);
    void konecRady(Volani& v);

    // Look-ups over SoupisZbytku of the current sheet: the index of the row, or -1.
    int zbytekZT(bool jenCekajici) const;                   // Dotazy::ZT, Dotazy::ZTCekajici
    int nejnovejsi(DruhZbytku druh, bool jenCekajici) const; // Dotazy::ZR, KZ, ZRCekajici

    void UlozZT();
    void SmazZT();
    void UlozZR(int smer);
    void UlozKZ();
    void ZmenZRnaKZ();
    void zapisKZ(ZbytekNP& z, int posledniKZ);
    void nactiObdelnik(int zbytek); // the current rectangle from a remnant, marked taken
    void DalsiZbytekRady(ZpusobNP zpusob);
    void DalsiRada(ZpusobNP zpusob);
    void DalsiZbytekRadyKomb();
    bool sloucitKoncoveZbytky();

    PlanRun& r;
    PlanRun::Stav& s;
    std::vector<DeskaNP>& desky;
    std::vector<ZbytekNP>& zbytky;
};

// The first unplaced board (rowid order) that pasuje() accepts, of those pred() puts first:
// the ORDER BY of a query with rowid as its last key.
template <typename Pasuje, typename Pred>
inline int Umisteni::prvni(Pasuje pasuje, Pred pred) const
{
    int nejlepsi = -1;
    for (int i : r.m_neusazene)
        if (pasuje(desky[i]) && (nejlepsi < 0 || pred(desky[i], desky[nejlepsi])))
            nejlepsi = i;
    return nejlepsi;
}

template <typename Pasuje>
inline bool Umisteni::existuje(Pasuje pasuje) const
{
    return std::any_of(r.m_neusazene.begin(), r.m_neusazene.end(), [&](int i) { return pasuje(desky[i]); });
}
