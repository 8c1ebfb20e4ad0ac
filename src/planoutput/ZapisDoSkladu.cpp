#include "planoutput/ZapisDoSkladu.h"

#include "core/Database.h"
#include "core/Prompt.h"
#include "optimiser/OdepisOdrezky.h"

namespace ZapisDoSkladu {
namespace {

// The mark's table: DataK is made afresh from DataS for every plan run, which never holds it.
const QString Tabulka = QStringLiteral("ZapisDoSkladu");

} // namespace

bool zapsano(Database& dataK)
{
    return dataK.hodnota(QStringLiteral("SELECT count(*) FROM sqlite_master WHERE type = 'table' and name = ?"), {Tabulka})
               .toInt() > 0;
}

bool zapis(Database& dataS, Database& dataK, Prompt& prompt, const QString& zakazka, double idFormatu)
{
    if (zapsano(dataK) && prompt.zprava(QString::fromUtf8(Znovu), QString(), Prompt::Ikona::Otaznik,
                                        Prompt::Tlacitka::AnoNeVychoziNe) != Prompt::Odpoved::Ano)
        return false;
    if (!OdepisOdrezky(dataS, dataK, prompt, zakazka, idFormatu))
        return false;
    dataK.executeSqlite(QStringLiteral("CREATE TABLE IF NOT EXISTS ") + Tabulka + QStringLiteral(" (Zapsano INTEGER)"));
    return true;
}

} // namespace ZapisDoSkladu
