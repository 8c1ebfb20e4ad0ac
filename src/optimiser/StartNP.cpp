#include "optimiser/StartNP.h"

#include "orders/RadkyZakazky.h"

namespace StartNP {

int pocetVariant(Database& dataS, const QString& zakazka, double idFormatu)
{
    return RadkyZakazky::deskyFormatu(dataS, zakazka, idFormatu).recordCount();
}

Error chybaPracovniDatabaze(const Error& e)
{
    if (e.cislo() == Chyba::PristupKSouboru)
        return Error(e.cislo(), QStringLiteral("Porucha databáze - restartujte PC!"));
    return Error(e.cislo(), QStringLiteral("Databáze programu je používána jiným programem!\rUkončete toto používání!!!"));
}

} // namespace StartNP
