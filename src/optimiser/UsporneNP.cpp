// The run of "úsporně": the sheet and board lists of the run go to the search as plain structs,
// with the plans of the three described modes as starting points, and the plan found comes back
// as the working tables every other mode leaves.
#include "optimiser/PlanRun.h"

#include "core/Database.h"
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

// SoupisDesek and SoupisTabuli as the lists of the run left them, in rowid and CT order.
PracovniTabulky nactiSoupisy(Database& dataK)
{
    PracovniTabulky t;
    for (Recordset rs(dataK, QStringLiteral("SoupisDesek")); !rs.eof(); rs.moveNext()) {
        DeskaNP d;
        d.CDesky = int(rs.cislo(QStringLiteral("CDesky")));
        d.Oznaceni = rs.text(QStringLiteral("Oznaceni"));
        d.Sestava = rs.text(QStringLiteral("Sestava"));
        d.x = rs.cislo(QStringLiteral("x"));
        d.y = rs.cislo(QStringLiteral("y"));
        d.OV = rs.ano(QStringLiteral("OV"));
        d.IDHX1 = rs.value(QStringLiteral("IDHX1"));
        d.IDHX2 = rs.value(QStringLiteral("IDHX2"));
        d.IDHY1 = rs.value(QStringLiteral("IDHY1"));
        d.IDHY2 = rs.value(QStringLiteral("IDHY2"));
        t.desky.push_back(d);
    }
    for (Recordset rs(dataK, QStringLiteral("SELECT * FROM SoupisTabuli ORDER BY CT")); !rs.eof(); rs.moveNext()) {
        TabuleNP r;
        r.CT = int(rs.cislo(QStringLiteral("CT")));
        r.Material = rs.text(QStringLiteral("Material"));
        r.x = rs.cislo(QStringLiteral("x"));
        r.y = rs.cislo(QStringLiteral("y"));
        t.tabule.push_back(r);
    }
    return t;
}

Usporne::Zadani zadani(const PracovniTabulky& soupisy, bool formatOV, double srez)
{
    Usporne::Zadani z;
    for (const DeskaNP& d : soupisy.desky)
        z.desky.push_back({d.x, d.y, d.OV});
    // the full sheets close the list; what stands before them came from the offcut store
    for (const TabuleNP& t : soupisy.tabule)
        z.tabule.push_back({t.x, t.y, t.x != soupisy.tabule.back().x || t.y != soupisy.tabule.back().y});
    z.srez = srez;
    z.okraj = nastaveni("ZarovnaniFormatu", 1) == 1 ? srez : 0;
    z.vzor = formatOV;
    z.XZ = nastaveni("XZ", 0) * 10;
    z.YZ = nastaveni("YZ", 0) * 10;
    z.stupne = std::max(2, int(nastaveni("StupneUsporne", 3)));
    return z;
}

// The plans of the three described modes, each from a run of its own (DataK is made anew for
// each) read back from SoupisDesek and SoupisTabuli. Stops early when the user stops.
std::vector<Usporne::Plan> planyPopsanychZpusobu(Uloziste& u, Prubeh& prubeh, const QString& zakazka,
                                                 double idFormatu, const Usporne::Zadani& z)
{
    std::vector<Usporne::Plan> plany;
    TichyPrompt tichy;
    for (ZpusobNP zpusob : {ZpusobNP::Kombinovane, ZpusobNP::PodelneRezy, ZpusobNP::PricneRezy}) {
        PlanRun run(u, tichy, prubeh);
        if (!run.SpustNP(zakazka, idFormatu, zpusob))
            break;
        std::map<int, int> ctPodleNCT;
        for (Recordset rs(u.dataK(), QStringLiteral("SoupisTabuli")); !rs.eof(); rs.moveNext())
            ctPodleNCT[int(rs.cislo(QStringLiteral("NCT")))] = int(rs.cislo(QStringLiteral("CT")));
        std::map<int, std::vector<RezovyPlan::Polozeni>> polozeni;
        int i = 0;
        for (Recordset rs(u.dataK(), QStringLiteral("SoupisDesek")); !rs.eof(); rs.moveNext(), ++i) {
            if (!rs.ano(QStringLiteral("ID")))
                continue;
            const bool otoc = rs.ano(QStringLiteral("OTOC"));
            const double x = rs.cislo(QStringLiteral("x")), y = rs.cislo(QStringLiteral("y"));
            const int tabule = ctPodleNCT[int(rs.cislo(QStringLiteral("tabule")))] - 1;
            polozeni[tabule].push_back({i, rs.cislo(QStringLiteral("XD")) - z.okraj, rs.cislo(QStringLiteral("YD")) - z.okraj,
                                        otoc ? y : x, otoc ? x : y, otoc});
        }
        if (auto plan = Usporne::zPolozeni(z, polozeni))
            plany.push_back(std::move(*plan));
    }
    return plany;
}

// The plan as working tables, before the sheets are renumbered: placed boards with their
// sheet's CT, the used sheets, every waste piece as a remnant "KZ" (the row of the sheet's first
// cut it lies in as Rada), and the cuts per sheet (two more for the trimmed edges).
void doTabulek(PracovniTabulky& t, const Usporne::Zadani& z, const Usporne::Plan& plan)
{
    for (const Usporne::TabulePlanu& tp : plan.tabule) {
        TabuleNP& tabule = t.tabule[tp.tabule];
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
    std::erase_if(t.tabule, [](const TabuleNP& r) { return !r.ID; });
}

} // namespace

bool PlanRun::usporne()
{
    m_prubeh.zobraz();
    PracovniTabulky tabulky = nactiSoupisy(*m_dataK);
    const Usporne::Zadani z =
        zadani(tabulky, m_formatOV, Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("Srez")) * 10);
    m_s.SrezNP = z.srez;
    m_s.SamovaniNP = Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("Samovani")) * 10;
    const std::vector<Usporne::Plan> vychozi = planyPopsanychZpusobu(m_uloziste, m_prubeh, m_zakazka, m_idFormatu, z);
    m_dataK = &m_uloziste.dataK();

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
    doTabulek(tabulky, z, plan);
    tabulky.zapis(*m_dataK);
    m_rezy = tabulky.RezyNaTabuli;
    if (!plan.neusazene.empty())
        varujNeusazene();
    PrecislujTabule();
    return true;
}
