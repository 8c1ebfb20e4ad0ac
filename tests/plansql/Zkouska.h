#pragma once
// The trial placement: before a row (column) opens, the row is laid out once for every
// candidate size, each way round, on a copy of the unplaced boards, and what it would leave
// behind is written as scores on SoupisDesek. The real state is only read.
//
// The copies SoupisDesekKZ and SoupisZbytkuKZ of the old program are kept in memory: each
// trial is a few hundred look-ups, and a table per look-up made long orders take hours. Every
// look-up keeps the query it stands for: its filter, its ORDER BY, equal rows in the order
// they were added, and numbers compared as the query text would carry them (15 digits).
// Direction 0 is the row trial, 1 its column mirror.
#include "plansql/PlanRun.h"

#include <QHash>
#include <functional>

namespace PlanSql {

class Zkouska {
public:
    explicit Zkouska(PlanRun& run);

    void ZkusebniUsazeni(int smer);  // one round over all candidates of one direction
    void ZkusebniUsazeniKomb();      // the combined round: one set-up, the row then the column pass

private:
    struct DeskaKZ {       // a row of SoupisDesekKZ
        double x, y;
        bool OV, OTOC = false, ID = false;
        double XD = 0, YD = 0;
    };
    enum class Druh { ZT, ZR, KZ };
    struct ZbytekKZ {      // a row of SoupisZbytkuKZ
        Druh Oznaceni;
        int Rada = 0, cislo = 0, CT = 0;
        double XZP = 0, YZP = 0, XDP = 0, YDP = 0;
        bool ID = false;
    };
    struct Skutecna {      // an unplaced row of SoupisDesek
        qint64 rowid;
        double x, y;
        bool PVT;
    };

    void PripravKZ();
    void pruchod(int smer);
    void zkus(int smer, DeskaKZ& deska, bool otoceno);
    void UsazeniKZ(int smer);
    void oznacKZ(DeskaKZ& d, bool otoceno);
    template <typename Pasuje>
    int najdi(int smer, bool otoceno, Pasuje pasuje) const;
    int najdiDesku(int smer, int krok) const;
    int najdiSchod(int smer, bool otoceno) const;
    int najdiZbytek(Druh druh, bool jenCekajici) const;
    void UlozZTKZ();
    void UlozZRKZ(int smer);
    void NovyKZ();
    void ZmenZRKZ();
    void zapisKZ(ZbytekKZ& z);
    void DalsiZbytekKZ(int smer);
    void HodnotPlochu(int smer, bool otoceno, double x, double y);
    void HodnotTabuli(int smer, bool otoceno, double x, double y);
    void VratKZ();
    int skutecna(int smer, bool otoceno, double x, double y, bool proTabuli) const;
    void zapisSkore(int i, const QString& sql, const QVariantList& hodnoty);

    PlanRun& r;
    PlanRun::Stav& s;
    std::vector<DeskaKZ> m_desky;
    std::vector<ZbytekKZ> m_zbytky;
    std::vector<Skutecna> m_skutecne;           // unplaced real boards, in rowid order
    QHash<QPair<double, double>, int> m_podleRozmeru; // first of each size (x, y)
    QHash<double, int> m_podleY;                // first of each y
};

} // namespace PlanSql
