#include "optimiser/StartNP.h"

#include "core/Recordset.h"
#include "core/ZpravaChyby.h"

namespace StartNP {

int pocetVariant(Database& dataS, const QString& zakazka, double idFormatu)
{
    return Recordset(dataS, QStringLiteral("SELECT * FROM Zakazky WHERE Zakazka = ? and IDFormat = ? ORDER BY Oznaceni"),
                     {zakazka, idFormatu})
        .recordCount();
}

Error chybaPracovniDatabaze(const Error& e)
{
    return Error(e.cislo(), ZpravaChyby::pracovniDatabaze(e), e.podrobnosti());
}

} // namespace StartNP
