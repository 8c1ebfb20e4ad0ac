#include "optimiser/SrovnaniNP.h"

#include "core/Database.h"
#include "core/Nastaveni.h"
#include "core/Uloziste.h"
#include "optimiser/TichyPrompt.h"

std::optional<SrovnaniNP> srovnejZpusob(Uloziste& u, Prubeh& prubeh, const QString& zakazka, double idFormatu,
                                        ZpusobNP zpusob)
{
    TichyPrompt tichy;
    PlanRun run(u, tichy, prubeh);
    if (!run.SpustNP(zakazka, idFormatu, zpusob))
        return std::nullopt;
    Database& dataK = u.dataK();
    SrovnaniNP s;
    s.tabuli = dataK.hodnota(QStringLiteral("SELECT count(*) FROM SoupisTabuli")).toInt();
    const double tabule = dataK.hodnota(QStringLiteral("SELECT sum(x * y) FROM SoupisTabuli")).toDouble();
    const double desky = dataK.hodnota(QStringLiteral("SELECT sum(x * y) FROM SoupisDesek WHERE ID <> 0")).toDouble();
    s.vyuziti = tabule > 0 ? 100 * desky / tabule : 0;
    for (const auto& [ct, rezu] : run.RezyNaTabuli())
        s.rezu += rezu;
    const double xz = Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("XZ")) * 10;
    const double yz = Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("YZ")) * 10;
    const auto zbytek = dataK.prikaz(QStringLiteral(
        "SELECT XZP, YZP FROM SoupisZbytku WHERE ID <> 0 AND Oznaceni <> 'ZŘ' AND XZP >= ? AND YZP >= ? "
        "ORDER BY XZP * YZP DESC LIMIT 1"));
    zbytek->navaz(1, xz);
    zbytek->navaz(2, yz);
    if (zbytek->krok()) {
        s.zbytekX = zbytek->sloupec(0).toDouble() / 10;
        s.zbytekY = zbytek->sloupec(1).toDouble() / 10;
    }
    zbytek->reset();
    return s;
}
