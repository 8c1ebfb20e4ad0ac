#include "costing/Rezani.h"

#include "core/Jednotky.h"
#include "core/Nastaveni.h"
#include "core/Uloziste.h"
#include "core/Zaokrouhleni.h"
#include "optimiser/DelkaRezu.h"
#include "optimiser/PlanRun.h"
#include "optimiser/TichyPrompt.h"
#include "orders/Materialy.h"
#include "orders/Strom.h"

namespace Rezani {
namespace {

bool celaZakazka(Uloziste& u, const QString& zakazka, const QStringList& sestavy)
{
    if (sestavy.isEmpty())
        return true;
    const auto uzel = UzelZakazkyPodleNazvu(u.dataS(), zakazka);
    return !uzel || std::all_of(uzel->sestavy.begin(), uzel->sestavy.end(),
                                [&](const UzelSestavy& s) { return sestavy.contains(s.nazev, Qt::CaseInsensitive); });
}

} // namespace

double cenaZaMetr()
{
    return Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("CRez"));
}

std::vector<Format> zakazky(Uloziste& u, const QString& zakazka, const QStringList& sestavy)
{
    if (Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("ZCR")) != 1 || !celaZakazka(u, zakazka, sestavy))
        return {};
    TichyPrompt tichy;
    TichyPrubeh prubeh;
    std::vector<Format> v;
    for (const Materialy::Material& f : Materialy::formaty(u.dataS(), zakazka)) {
        PlanRun run(u, tichy, prubeh);
        run.bezZapisu();
        if (!run.SpustNP(zakazka, f.ID, ZpusobNP::Kombinovane))
            continue; // no boards of this format
        v.push_back({QStringLiteral("Řezání ") + Jednotky::RozmerDesky(f.nazev, f.x, f.y),
                     Zaokrouhli(DelkaRezu(run.tabulky(), run.SrezNP(), run.SamovaniNP()), 3)});
    }
    return v;
}

} // namespace Rezani
