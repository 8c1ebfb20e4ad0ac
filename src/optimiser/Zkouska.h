#pragma once
// The trial placement: before a row (column) opens, the row is laid out once for every
// candidate size, each way round, on a copy of the unplaced boards, and what it would leave
// behind is written as scores on SoupisDesek. The real state is only read.
//
// The copies SoupisDesekKZ and SoupisZbytkuKZ of the old program live in memory. Every look-up
// keeps the query it stands for: its filter, its ORDER BY, equal rows in the order they were
// added, and numbers compared as the query text would carry them (15 digits). Direction 0 is
// the row trial, 1 its column mirror.
//
// Two things make a round cheap without changing a result. The copies are grouped by size and
// grain (a look-up asks each group for its first free board, and groups that fit nowhere in the
// rectangle are left out). And a trial's outcome is remembered for the round: copies of one size
// give the same trial, as long as nothing tells them apart (a board left turned by a trial that
// did not fit, or a board of the same size with the other grain, make the trial its own).
#include "optimiser/PlanRun.h"

#include <array>
#include <map>
#include <tuple>

class Zkouska {
public:
    explicit Zkouska(PlanRun& run);

    void ZkusebniUsazeni(int smer);  // one round over all candidates of one direction
    void ZkusebniUsazeniKomb();      // the combined round: one set-up, the row then the column pass

private:
    struct DeskaKZ {       // a row of SoupisDesekKZ
        double x, y;
        bool OV, OTOC = false, ID = false;
        int typ = -1;      // its group, -1 when it fits nowhere in the rectangle
    };
    struct Typ {           // the copies of one size and grain that may fit the rectangle
        double x, y;
        bool OV;
        bool rovneVejde;   // fits unturned: only then does a leftover OTOC matter
        bool dvojce;       // another group has the same size (and the other grain)
        std::vector<int> clenove;
        int zacatek = 0;   // members before it are all placed
        int pouzito = 0;
    };
    enum class Druh { ZT, ZR, KZ };
    struct ZbytekKZ {      // a row of SoupisZbytkuKZ
        Druh Oznaceni;
        int Rada = 0, cislo = 0, CT = 0;
        double XZP = 0, YZP = 0, XDP = 0, YDP = 0;
        bool ID = false;
    };
    struct Vysledek {      // what a trial leaves for the scores
        double koncove = 0, vsechny = 0;
        bool maZT = false, vejde = false, vejdeOtoc = false, zbyva = false;
        bool VZbytkuRadyKZ = false;
    };
    using Klic = std::tuple<int, bool, bool, int, std::vector<int>>;

    void PripravKZ();
    void seskup();
    void pruchod(int smer);
    void zkus(int smer, int deska, bool otoceno);
    Vysledek proved(int smer, int deska);
    void UsazeniKZ(int smer);
    void oznacKZ(int deska, bool otoceno);
    std::array<int, 8> najdi(int smer) const;
    int najdiZbytek(Druh druh, bool jenCekajici) const;
    void UlozZTKZ();
    void UlozZRKZ(int smer);
    void NovyKZ();
    void ZmenZRKZ();
    void zapisKZ(ZbytekKZ& z);
    void DalsiZbytekKZ(int smer);
    Vysledek vysledek() const;
    void HodnotPlochu(int smer, bool otoceno, double x, double y, const Vysledek& v);
    void HodnotTabuli(int smer, bool otoceno, double x, double y, const Vysledek& v);
    void VratKZ();
    int skutecna(int smer, bool otoceno, double x, double y, bool proTabuli) const;

    PlanRun& r;
    PlanRun::Stav& s;
    std::vector<DeskaKZ> m_desky;
    std::vector<Typ> m_typy;
    int m_mimoObdelnik = 0;                        // copies of no group: always free
    std::vector<int> m_dotcene;                    // copies changed since the last VratKZ
    std::vector<int> m_otocene;                    // free copies left turned that could lie unturned
    std::vector<ZbytekKZ> m_zbytky;
    std::map<Klic, Vysledek> m_zkousky;            // the round's trials
    std::map<std::pair<double, double>, int> m_podleRozmeru; // first unplaced real board of a size
    std::map<double, int> m_podleY;                // first unplaced real board of a y
};
