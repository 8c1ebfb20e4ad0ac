#pragma once
// The trial placement: before a row (column) opens, the row is laid out once for every
// candidate size, each way round, on the copies SoupisDesekKZ and SoupisZbytkuKZ, and what it
// would leave behind is written as scores on SoupisDesek. The real state is only read.
// Direction 0 is the row trial (ZkusebniUsazeni, UsazeniKZ, ...), 1 its column mirror.
#include "optimiser/PlanRun.h"

class Zkouska {
public:
    explicit Zkouska(PlanRun& run);

    void ZkusebniUsazeni(int smer);  // one round over all candidates of one direction
    void ZkusebniUsazeniKomb();      // the combined round: one set-up, the row then the column pass

private:
    void PripravKZ();
    void pruchod(int smer);
    void zkus(int smer, Recordset& deska, bool otoceno);
    void UsazeniKZ(int smer);
    void oznacKZ(Recordset& rs, bool otoceno);
    void UlozZTKZ();
    void UlozZRKZ(int smer);
    void NovyKZ();
    void ZmenZRKZ();
    void zapisKZ(Recordset& rs);
    void DalsiZbytekKZ(int smer);
    void HodnotPlochu(int smer, bool otoceno, double x, double y);
    void HodnotTabuli(int smer, bool otoceno, double x, double y);
    void VratKZ(int smer);
    std::optional<Recordset> prvni(const QString& sql);

    PlanRun& r;
    PlanRun::Stav& s;
};
