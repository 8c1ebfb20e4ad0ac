#include "optimiser/StartNP.h"

#include "core/Recordset.h"

namespace StartNP {

int pocetVariant(Database& dataS, const QString& zakazka, double idFormatu)
{
    return Recordset(dataS, QStringLiteral("SELECT * FROM Zakazky WHERE Zakazka = ? and IDFormat = ? ORDER BY Oznaceni"),
                     {zakazka, idFormatu})
        .recordCount();
}

Error chybaPracovniDatabaze(const Error& e)
{
    if (e.cislo() == Chyba::PristupKSouboru)
        return Error(e.cislo(), QStringLiteral("Porucha databáze - restartujte PC!"));
    return Error(e.cislo(), QStringLiteral("Databáze programu je používána jiným programem!\rUkončete toto používání!!!"));
}

} // namespace StartNP
