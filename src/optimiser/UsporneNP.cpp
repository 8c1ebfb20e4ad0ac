// The run of "úsporně": the sheet and board lists of the run go to the search as plain structs,
// with the plans of the three described modes as starting points, and the plan found comes back
// as the working tables every other mode leaves.
#include "optimiser/PlanRun.h"

#include "core/Nastaveni.h"
#include "core/Uloziste.h"
#include "optimiser/PracovniTabulky.h"
#include "optimiser/TichyPrompt.h"
#include "optimiser/Usporne.h"

#include <QElapsedTimer>
#include <cmath>

namespace {

double nastaveni(const char* klic, double vychozi)
{
    const QString text = Nastaveni::GetSetting(QStringLiteral("Setting2"), QLatin1String(klic));
    return text.trimmed().isEmpty() ? vychozi : Nastaveni::cislo(QStringLiteral("Setting2"), QLatin1String(klic));
}

// The rows of SoupisTabuli by CT - 1: the order of use, in which the search takes the sheets.
std::vector<int> radkyPodleCT(const PracovniTabulky& t)
{
    std::vector<int> radky(t.tabule.size());
    for (int i = 0; i < int(t.tabule.size()); ++i)
        radky[t.tabule[i].CT - 1] = i;
    return radky;
}

Usporne::Zadani zadani(const PracovniTabulky& t, const std::vector<int>& radky, bool formatOV, double srez)
{
    Usporne::Zadani z;
    for (const DeskaNP& d : t.desky)
        z.desky.push_back({d.x, d.y, d.OV});
    // the full sheets close the list; what stands before them came from the offcut store
    const TabuleNP& plna = t.tabule[radky.back()];
    for (int r : radky)
        z.tabule.push_back({t.tabule[r].x, t.tabule[r].y, t.tabule[r].x != plna.x || t.tabule[r].y != plna.y});
    z.srez = srez;
    z.okraj = nastaveni("ZarovnaniFormatu", 1) == 1 ? srez : 0;
    z.vzor = formatOV;
    z.XZ = nastaveni("XZ", 0) * 10;
    z.YZ = nastaveni("YZ", 0) * 10;
    z.stupne = std::max(2, int(nastaveni("StupneUsporne", 3)));
    return z;
}

// The plans of the three described modes, each from a run of its own, read back from its working
// tables. Stops early when the user stops.
std::vector<Usporne::Plan> planyPopsanychZpusobu(Uloziste& u, Prubeh& prubeh, const QString& zakazka,
                                                 double idFormatu, const Usporne::Zadani& z)
{
    std::vector<Usporne::Plan> plany;
    TichyPrompt tichy;
    for (ZpusobNP zpusob : {ZpusobNP::Kombinovane, ZpusobNP::PodelneRezy, ZpusobNP::PricneRezy}) {
        PlanRun run(u, tichy, prubeh);
        run.bezZapisu(); // only its tables in memory are read
        if (!run.SpustNP(zakazka, idFormatu, zpusob))
            break;
        const PracovniTabulky& t = run.tabulky();
        std::map<int, int> ctPodleNCT;
        for (const TabuleNP& r : t.tabule)
            if (!r.smazany)
                ctPodleNCT[r.NCT] = r.CT;
        std::map<int, std::vector<RezovyPlan::Polozeni>> polozeni;
        for (int i = 0; i < int(t.desky.size()); ++i) {
            const DeskaNP& d = t.desky[i];
            if (d.ID)
                polozeni[ctPodleNCT[d.tabule] - 1].push_back(
                    {i, d.XD - z.okraj, d.YD - z.okraj, d.OTOC ? d.y : d.x, d.OTOC ? d.x : d.y, d.OTOC});
        }
        if (auto plan = Usporne::zPolozeni(z, polozeni))
            plany.push_back(std::move(*plan));
    }
    return plany;
}

// The plan as working tables, before the sheets are renumbered: placed boards with their
// sheet's CT, the used sheets, every waste piece as a remnant "KZ" (the row of the sheet's first
// cut it lies in as Rada), and the cuts per sheet (two more for the trimmed edges).
void doTabulek(PracovniTabulky& t, const std::vector<int>& radky, const Usporne::Zadani& z, const Usporne::Plan& plan)
{
    for (const Usporne::TabulePlanu& tp : plan.tabule) {
        TabuleNP& tabule = t.tabule[radky[tp.tabule]];
        tabule.ID = true;
        auto poloz = [&](const RezovyPlan::Kus& k, auto& sam) -> void {
            if (k.deska >= 0) {
                DeskaNP& d = t.desky[k.deska];
                d.ID = true;
                d.XD = z.okraj + k.x;
                d.YD = z.okraj + k.y;
                d.tabule = tabule.CT;
                d.OTOC = k.otoceno;
            }
            for (const RezovyPlan::Kus& dite : k.deti)
                sam(dite, sam);
        };
        poloz(tp.strom, poloz);
        int cislo = 0;
        const auto& rady = tp.strom.deti.empty() ? std::vector<RezovyPlan::Kus>{tp.strom} : tp.strom.deti;
        for (size_t r = 0; r < rady.size(); ++r)
            for (const RezovyPlan::Zbytek& zb : RezovyPlan::zbytky(rady[r], z.srez)) {
                ZbytekNP zbytek;
                zbytek.Oznaceni = DruhZbytku::KZ;
                zbytek.CT = tabule.CT;
                zbytek.Rada = int(r) + 1;
                zbytek.cislo = ++cislo;
                zbytek.XZP = zb.w;
                zbytek.YZP = zb.h;
                zbytek.XDP = z.okraj + zb.x;
                zbytek.YDP = z.okraj + zb.y;
                zbytek.ID = true;
                zbytek.plocha = zb.w * zb.h;
                t.zbytky.push_back(zbytek);
            }
        t.RezyNaTabuli[tabule.CT] = RezovyPlan::rezy(tp.strom) + (z.okraj > 0 ? 2 : 0);
    }
}

} // namespace

bool PlanRun::usporne()
{
    m_prubeh.zobraz();
    const std::vector<int> radky = radkyPodleCT(m_t);
    const Usporne::Zadani z =
        zadani(m_t, radky, m_formatOV, Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("Srez")) * 10);
    m_s.SrezNP = z.srez;
    m_s.SamovaniNP = Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("Samovani")) * 10;
    const std::vector<Usporne::Plan> vychozi = planyPopsanychZpusobu(m_uloziste, m_prubeh, m_zakazka, m_idFormatu, z);

    Usporne::Rizeni rizeni;
    rizeni.sekund = m_casUsporne.value_or(nastaveni("CasUsporne", 2));
    rizeni.prubeh = [this](int tabuli, double podil) {
        m_prubeh.popisek(QStringLiteral("Úsporně... nejméně tabulí zatím: %1").arg(tabuli));
        m_prubeh.hodnota(std::floor(podil * m_prubeh.maximum()));
        return m_prubeh.prerusit();
    };
    QElapsedTimer hodiny;
    hodiny.start();
    const Usporne::Plan plan = Usporne::hledej(z, vychozi, rizeni);
    m_sekundHledani = hodiny.nsecsElapsed() / 1e9;
    m_mezHledani = plan.mez;
    doTabulek(m_t, radky, z, plan);
    if (!plan.neusazene.empty())
        varujNeusazene();
    PrecislujTabule();
    zapisTabulky();
    return true;
}
