#include "optimiser/StartNP.h"

#include "core/ZpravaChyby.h"
#include "orders/RadkyZakazky.h"

namespace StartNP {

int pocetVariant(Database& dataS, const QString& zakazka, double idFormatu)
{
    return RadkyZakazky::deskyFormatu(dataS, zakazka, idFormatu).recordCount();
}

Error chybaPracovniDatabaze(const Error& e)
{
    return Error(e.cislo(), ZpravaChyby::pracovniDatabaze(e), e.podrobnosti());
}

} // namespace StartNP
