#include "optimiser/PlanRun.h"

#include "catalogues/Sklad.h"
#include "core/Database.h"
#include "core/Dotaz.h"
#include "core/Nastaveni.h"
#include "core/Recordset.h"
#include "core/Uloziste.h"
#include "orders/RadkyZakazky.h"
#include "optimiser/Umisteni.h"

#include <algorithm>
#include <numeric>

namespace {

const QString NeniCoNarezat = QStringLiteral("V zakázce není co nařezat!!!!!");
const QString DeskyVetsiNezTabule =
    QStringLiteral("V zakázce máte desky, které jsou větší než je rozměr tabule \n"
                   "a proto je nelze usadit do nářezového plánu!!!\n"
                   "Tyto desky jsou vypsány ve - Výpisu plošného materiálu -");
const QString SmyckaZbytku =
    QStringLiteral("Při slučování koncových zbytků se narazilo na zbytek nulové výšky (šířka řezu 0).\n"
                   "Slučování bylo v tom místě ukončeno; plán je dokončen, zkontrolujte jej.");
constexpr int SkutecnychTabuli = 1000; // the fixed ceiling of full sheets in a run
constexpr int MsMeziVydeji = 20;        // the event loop's turn: often enough for Storno, rare enough to cost nothing

} // namespace

PlanRun::PlanRun(Uloziste& uloziste, Prompt& prompt, Prubeh& prubeh)
    : m_uloziste(uloziste), m_prompt(prompt), m_prubeh(prubeh)
{
}

PlanRun::~PlanRun() = default;

std::vector<FormatNP> PlanRun::formatySDeskami(Database& dataS, const QString& zakazka)
{
    std::vector<FormatNP> formaty;
    for (Recordset rs = RadkyZakazky::materialy(dataS, zakazka, RadkyZakazky::Pouziti::Formaty); !rs.eof(); rs.moveNext()) {
        const double id = rs.cislo(QStringLiteral("ID"));
        if (RadkyZakazky::deskyFormatu(dataS, zakazka, id).prazdny())
            continue;
        formaty.push_back({id, rs.text(QStringLiteral("Material")) + QStringLiteral(" ( ") +
                                   Dotaz::cislo(rs.cislo(QStringLiteral("RozmerX"))) + QStringLiteral(" x ") +
                                   Dotaz::cislo(rs.cislo(QStringLiteral("RozmerY"))) + QStringLiteral(" )")});
    }
    return formaty;
}

bool PlanRun::SpustNP(const QString& zakazka, double idFormatu, ZpusobNP zpusob, int volba)
{
    m_zakazka = zakazka;
    m_idFormatu = idFormatu;
    m_zpusob = zpusob;
    m_volbaNP = volba != 0;
    m_volbaNPDeska = volba;
    m_prerusit = m_varovani = m_smycka = false;
    m_slouceni = 0;
    m_usazeno = 0;
    m_s = Stav{};
    m_t = PracovniTabulky{};
    m_odVydeje.start();

    // DataS is read here as the old copy would have been: the copy is only the tables' carrier.
    SoupisTabuliNP();
    if (vydej(true))
        return false;
    SoupisDesekNP();
    if (vydej(true))
        return false;
    if (m_t.desky.empty()) {
        m_prompt.zprava(NeniCoNarezat, QString(), Prompt::Ikona::Kriticka);
        return false;
    }
    if (m_zpusob == ZpusobNP::Usporne)
        return usporne(); // a stop during its search keeps the best plan found
    ridic();
    if (m_smycka)
        m_prompt.zprava(SmyckaZbytku, QStringLiteral("Upozornění"), Prompt::Ikona::Vykricnik);
    if (vydej(true))
        return false;
    PrecislujTabule();
    zapisTabulky();
    return true;
}

void PlanRun::zapisTabulky()
{
    if (!m_zapsat)
        return;
    m_uloziste.ObnovPracovniDatabazi();
    m_t.zapis(m_uloziste.dataK());
}

bool PlanRun::vydej(bool hned)
{
    if (!m_prerusit && (hned || m_odVydeje.elapsed() >= MsMeziVydeji)) {
        m_prerusit = m_prubeh.prerusit();
        m_odVydeje.restart();
    }
    return m_prerusit;
}

void PlanRun::SoupisTabuliNP()
{
    Database& dataS = m_uloziste.dataS();
    const auto format = RadkyZakazky::material(dataS, m_zakazka, m_idFormatu);
    if (!format)
        return;
    m_formatOV = format->ano(QStringLiteral("OV"));
    const QString material = format->text(QStringLiteral("Material"));

    int ct = 1;
    // "SELECT * FROM SkladOdrezku  WHERE Material = ? ORDER BY x,y" (a format without a name has none)
    if (Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("POdrezky")) != 0 && !material.isEmpty()) {
        for (const Sklad::Odrezek& o : Sklad::nacti(dataS, material, QStringLiteral("x,y")))
            for (int i = 1; i <= o.pocet; ++i)
                m_t.tabule.push_back({0, 0, o.material, o.x * 10, o.y * 10});
        // "SELECT * FROM SoupisTabuli  ORDER BY y,x": the offcuts are used first, smallest y first
        std::vector<int> poradi(m_t.tabule.size());
        std::iota(poradi.begin(), poradi.end(), 0);
        std::stable_sort(poradi.begin(), poradi.end(), [&](int a, int b) {
            const TabuleNP &p = m_t.tabule[a], &q = m_t.tabule[b];
            return p.y != q.y ? p.y < q.y : p.x < q.x;
        });
        for (int i : poradi)
            m_t.tabule[i].CT = ct++;
    }
    for (int i = 0; i < SkutecnychTabuli; ++i)
        m_t.tabule.push_back({ct++, 0, material, format->cislo(QStringLiteral("RozmerX")) * 10,
                              format->cislo(QStringLiteral("RozmerY")) * 10});
}

void PlanRun::SoupisDesekNP()
{
    m_prubeh.popisek(QStringLiteral("Vytváření soupisu desek..."));
    Database& dataS = m_uloziste.dataS();
    const auto format = RadkyZakazky::material(dataS, m_zakazka, m_idFormatu);
    const bool formatOV = format && format->ano(QStringLiteral("OV"));
    QString posledni;
    for (Recordset rady = RadkyZakazky::radky(dataS, m_zakazka, QStringLiteral("Sestava")); !rady.eof(); rady.moveNext()) {
        const QString sestava = rady.text(QStringLiteral("Sestava"));
        if (sestava == posledni)
            continue;
        posledni = sestava;
        // "... and Sestava = '{Sestava}' and IDFormat = {IDFormatuNP} ORDER BY Oznaceni": the
        // assembly's rows in that order, those of the format kept
        Recordset desky = RadkyZakazky::radkySestavy(dataS, m_zakazka, sestava, QStringLiteral("Oznaceni"));
        int cDesky = 1;
        for (; !desky.eof(); desky.moveNext()) {
            if (desky.cislo(QStringLiteral("IDFormat")) != Dotaz::jakoVDotazu(m_idFormatu))
                continue;
            DeskaNP d;
            d.CDesky = cDesky++;
            d.Oznaceni = desky.text(QStringLiteral("Oznaceni"));
            d.Sestava = desky.text(QStringLiteral("Sestava"));
            d.x = desky.cislo(QStringLiteral("x")) * 10;
            d.y = desky.cislo(QStringLiteral("y")) * 10;
            d.OV = formatOV && desky.ano(QStringLiteral("OV"));
            d.IDHX1 = desky.value(QStringLiteral("IDHX1"));
            d.IDHX2 = desky.value(QStringLiteral("IDHX2"));
            d.IDHY1 = desky.value(QStringLiteral("IDHY1"));
            d.IDHY2 = desky.value(QStringLiteral("IDHY2"));
            const double kopie = desky.cislo(QStringLiteral("pocetelementuVsestave")) * desky.cislo(QStringLiteral("Pocet"));
            for (double i = 1; i <= kopie; ++i)
                m_t.desky.push_back(d);
        }
    }
    m_neusazene.resize(m_t.desky.size());
    std::iota(m_neusazene.begin(), m_neusazene.end(), 0);
}

void PlanRun::ridic()
{
    m_prubeh.zobraz();
    m_prubeh.popisek(QStringLiteral("Optimalizuji... - tabule č. 1"));
    m_prubeh.hodnota(0);
    m_s.SrezNP = Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("Srez")) * 10;
    m_s.SamovaniNP = Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("Samovani")) * 10;
    // "SELECT * FROM SoupisTabuli WHERE ID = False  ORDER BY CT "
    std::vector<int> tabule(m_t.tabule.size());
    std::iota(tabule.begin(), tabule.end(), 0);
    std::stable_sort(tabule.begin(), tabule.end(), [&](int a, int b) { return m_t.tabule[a].CT < m_t.tabule[b].CT; });
    const bool zarovnat = Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("ZarovnaniFormatu")) == 1;
    const double okraj = zarovnat ? m_s.SrezNP : 0;
    m_s.CisloTabule = 1;
    Umisteni umisteni(*this);
    for (size_t dalsi = 0;; ++dalsi) {
        if (dalsi == tabule.size()) {
            m_varovani = true;
            m_prompt.zprava(DeskyVetsiNezTabule, QStringLiteral("Upozornění"), Prompt::Ikona::Kriticka);
            break;
        }
        if (vydej(true))
            break;
        m_tabule = tabule[dalsi];
        m_zbytkyTabule = int(m_t.zbytky.size());
        m_s.TabuleX = m_t.tabule[m_tabule].x - okraj;
        m_s.TabuleY = m_t.tabule[m_tabule].y - okraj;
        m_s.Pozice[0] = m_s.Pozice[1] = okraj;
        m_t.RezyNaTabuli[m_s.CisloTabule] = 1;
        m_s.Zbyva[0] = m_s.TabuleX;
        m_s.Zbyva[1] = m_s.TabuleY;
        m_s.CisloRady = 1;
        m_s.PoradiDesky = 1;
        m_s.NovaRada = false;
        m_s.VZbytkuRady = false;
        umisteni.NP(m_zpusob);
        if (m_prerusit)
            break;
        // "SELECT * FROM SoupisDesek WHERE ID = False ORDER BY y desc , x desc;": only whether one is left
        if (m_neusazene.empty())
            break;
        ++m_s.CisloTabule;
        m_prubeh.popisek(QStringLiteral("Optimalizuji... - tabule č. ") + QString::number(m_s.CisloTabule));
    }
}

void PlanRun::PrecislujTabule()
{
    // "SELECT * FROM SoupisTabuli Where id=False ORDER BY CT": deleted; the used ones, in CT
    // order, get NCT from 1, and their boards and remnants the new number.
    std::vector<int> pouzite;
    for (int i = 0; i < int(m_t.tabule.size()); ++i) {
        m_t.tabule[i].smazany = !m_t.tabule[i].ID;
        if (m_t.tabule[i].ID)
            pouzite.push_back(i);
    }
    std::stable_sort(pouzite.begin(), pouzite.end(), [&](int a, int b) { return m_t.tabule[a].CT < m_t.tabule[b].CT; });
    std::map<int, int> nove; // CT -> NCT
    int citac = 1;
    for (int i : pouzite) {
        m_t.tabule[i].NCT = citac;
        nove[m_t.tabule[i].CT] = citac++;
    }
    // Boards and remnants carry the running sheet number, which is the sheet's CT.
    for (DeskaNP& d : m_t.desky)
        if (auto it = nove.find(d.tabule); it != nove.end())
            d.tabule = it->second;
    for (ZbytekNP& zb : m_t.zbytky)
        if (auto it = nove.find(zb.CT); it != nove.end())
            zb.CT = it->second;
}

void PlanRun::oznacDesku(int deska, bool otoceno)
{
    DeskaNP& d = m_t.desky[deska];
    m_s.Rozmery[0] = otoceno ? d.y : d.x;
    m_s.Rozmery[1] = otoceno ? d.x : d.y;
    d.ID = true;
    d.XD = m_s.Pozice[0];
    d.YD = m_s.Pozice[1];
    d.tabule = m_s.CisloTabule;
    if (otoceno)
        d.OTOC = true;
    m_neusazene.erase(std::lower_bound(m_neusazene.begin(), m_neusazene.end(), deska));
    m_t.tabule[m_tabule].ID = true;
    krokPrubehu();
}

void PlanRun::krokPrubehu()
{
    ++m_usazeno;
    m_prubeh.hodnota(m_prubeh.maximum() * m_usazeno / double(m_t.desky.size()));
    m_prubeh.popisek(QStringLiteral("Optimalizuji... - tabule č. ") + QString::number(m_s.CisloTabule) +
                     QStringLiteral(" deska č. ") + QString::number(m_s.PoradiDesky));
}

void PlanRun::varujNeusazene()
{
    m_varovani = true;
    m_prompt.zprava(DeskyVetsiNezTabule, QStringLiteral("Upozornění"), Prompt::Ikona::Kriticka);
}
