#include "costing/Rezani.h"

#include "catalogues/Sklad.h"
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

// What a plan of the format hangs on besides the order: the cutting settings and, when the plan
// takes them, the stored offcuts of its material.
QString podpis(Uloziste& u, const QString& material)
{
    QStringList v;
    for (const char* klic : {"Srez", "Samovani", "POdrezky", "ZarovnaniFormatu"})
        v << Nastaveni::GetSetting(QStringLiteral("Setting2"), QLatin1String(klic));
    if (Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("POdrezky")) != 0 && !material.isEmpty())
        for (const Sklad::Odrezek& o : Sklad::nacti(u.dataS(), material, QStringLiteral("x,y")))
            v << QStringLiteral("%1x%2:%3").arg(o.x).arg(o.y).arg(o.pocet);
    return v.join(QLatin1Char('|'));
}

// The plan run made for the costing: kombinovaně, silent, nothing written.
std::optional<double> zmer(Uloziste& u, const QString& zakazka, double idFormatu)
{
    TichyPrompt tichy;
    TichyPrubeh prubeh;
    PlanRun run(u, tichy, prubeh);
    run.bezZapisu();
    if (!run.SpustNP(zakazka, idFormatu, ZpusobNP::Kombinovane))
        return std::nullopt; // no boards of this format
    return Zaokrouhli(DelkaRezu(run.tabulky(), run.SrezNP(), run.SamovaniNP()), 3);
}

} // namespace

std::optional<double> Pamet::delka(const QString& zakazka, double idFormatu, const QString& podpis,
                                   const std::function<std::optional<double>()>& zmer)
{
    const auto klic = std::make_pair(zakazka.toCaseFolded(), idFormatu);
    if (const auto it = m_delky.find(klic); it != m_delky.end() && it->second.podpis == podpis)
        return it->second.metru;
    const std::optional<double> metru = zmer(); // a plan that throws leaves nothing behind
    m_delky[klic] = {podpis, metru};
    return metru;
}

void Pamet::zahod(const QString& zakazka)
{
    std::erase_if(m_delky, [k = zakazka.toCaseFolded()](const auto& d) { return d.first.first == k; });
}

void Pamet::zahod()
{
    m_delky.clear();
}

double cenaZaMetr()
{
    return Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("CRez"));
}

std::vector<Format> zakazky(Uloziste& u, const QString& zakazka, const QStringList& sestavy, Pamet* pamet)
{
    if (Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("ZCR")) != 1 || !celaZakazka(u, zakazka, sestavy))
        return {};
    std::vector<Format> v;
    for (const Materialy::Material& f : Materialy::formaty(u.dataS(), zakazka)) {
        const auto plan = [&] { return zmer(u, zakazka, f.ID); };
        const std::optional<double> metru = pamet ? pamet->delka(zakazka, f.ID, podpis(u, f.nazev), plan) : plan();
        if (metru)
            v.push_back({QStringLiteral("Řezání ") + Jednotky::RozmerDesky(f.nazev, f.x, f.y), *metru});
    }
    return v;
}

} // namespace Rezani
