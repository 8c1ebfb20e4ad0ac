#include "plansql/PlanRun.h"

#include "core/Database.h"
#include "core/Dotaz.h"
#include "core/Error.h"
#include "core/Nastaveni.h"
#include "core/Uloziste.h"
#include "core/Val.h"
#include "plansql/Umisteni.h"

#include <QRegularExpression>
#include <algorithm>
#include <cmath>

namespace PlanSql {

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

QString z(const QString& zakazka)
{
    return Dotaz::text(zakazka);
}

} // namespace

PlanRun::PlanRun(Uloziste& uloziste, Prompt& prompt, Prubeh& prubeh)
    : m_uloziste(uloziste), m_prompt(prompt), m_prubeh(prubeh)
{
}

PlanRun::~PlanRun() = default;

bool PlanRun::SpustNP(const QString& zakazka, double idFormatu, ZpusobNP zpusob, int volba)
{
    m_zakazka = zakazka;
    m_idFormatu = idFormatu;
    m_zpusob = zpusob;
    m_volbaNP = volba != 0;
    m_volbaNPDeska = volba;
    m_prerusit = false;
    m_varovani = false;
    m_smycka = false;
    m_slouceni = 0;
    m_rezy.clear();
    m_s = Stav{};
    m_hodnotaPrubehu = 0;

    m_uloziste.ObnovPracovniDatabazi();
    m_dataK = &m_uloziste.dataK();
    SoupisTabuliNP();
    if (vydej())
        return false;
    SoupisDesekNP();
    if (vydej())
        return false;
    if (Recordset(*m_dataK, QStringLiteral("SoupisDesek")).prazdny()) {
        m_prompt.zprava(NeniCoNarezat, QString(), Prompt::Ikona::Kriticka);
        return false;
    }
    ridic();
    if (m_smycka)
        m_prompt.zprava(SmyckaZbytku, QStringLiteral("Upozornění"), Prompt::Ikona::Vykricnik);
    if (vydej())
        return false;
    PrecislujTabule();
    return !m_prerusit;
}

bool PlanRun::vydej()
{
    if (!m_prerusit && m_prubeh.prerusit())
        m_prerusit = true;
    return m_prerusit;
}

void PlanRun::SoupisTabuliNP()
{
    {
        Recordset rs(*m_dataK, QStringLiteral("SoupisTabuli"));
        for (; !rs.eof(); rs.moveNext())
            rs.remove();
    }
    Recordset format(m_uloziste.dataS(),
                     QStringLiteral("SELECT * FROM ZakazkyMaterialy WHERE Zakazka = '") + z(m_zakazka) +
                         QStringLiteral("'and ID = ") + Dotaz::cislo(m_idFormatu));
    if (format.eof())
        return;
    m_formatOV = format.ano(QStringLiteral("OV"));
    const QString material = format.text(QStringLiteral("Material"));

    Recordset tabule(*m_dataK, QStringLiteral("SoupisTabuli"));
    auto pridej = [&](int ct, const QString& nazev, double x, double y) {
        tabule.addNew();
        if (ct)
            tabule.set(QStringLiteral("CT"), ct);
        tabule.set(QStringLiteral("Material"), nazev);
        tabule.set(QStringLiteral("x"), x);
        tabule.set(QStringLiteral("y"), y);
        tabule.set(QStringLiteral("OTOC"), false);
        tabule.update();
    };
    int ct = 1;
    if (Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("POdrezky")) != 0) {
        Recordset odrezky(*m_dataK, QStringLiteral("SELECT * FROM SkladOdrezku  WHERE Material = '") +
                                        Dotaz::text(material) + QStringLiteral("' ORDER BY x,y"));
        for (; !odrezky.eof(); odrezky.moveNext())
            for (int i = 1; i <= odrezky.cislo(QStringLiteral("Pocet")); ++i)
                pridej(0, odrezky.text(QStringLiteral("Material")), odrezky.cislo(QStringLiteral("x")) * 10,
                       odrezky.cislo(QStringLiteral("y")) * 10);
        Recordset poradi(*m_dataK, QStringLiteral("SELECT * FROM SoupisTabuli  ORDER BY y,x"));
        for (; !poradi.eof(); poradi.moveNext()) {
            poradi.edit();
            poradi.set(QStringLiteral("CT"), ct++);
            poradi.update();
        }
    }
    for (int i = 0; i < SkutecnychTabuli; ++i)
        pridej(ct++, material, format.cislo(QStringLiteral("RozmerX")) * 10,
               format.cislo(QStringLiteral("RozmerY")) * 10);
}

void PlanRun::SoupisDesekNP()
{
    m_prubeh.popisek(QStringLiteral("Vytváření soupisu desek..."));
    Recordset soupis(*m_dataK, QStringLiteral("SoupisDesek"));
    Recordset rady(*m_dataK, QStringLiteral("SELECT * FROM Zakazky WHERE Zakazka = '") + z(m_zakazka) +
                                 QStringLiteral("' ORDER BY Sestava"));
    QString posledni;
    for (; !rady.eof(); rady.moveNext()) {
        const QString sestava = rady.text(QStringLiteral("Sestava"));
        if (sestava == posledni)
            continue;
        posledni = sestava;
        Recordset desky(*m_dataK, QStringLiteral("SELECT * FROM Zakazky WHERE Zakazka = '") + z(m_zakazka) +
                                      QStringLiteral("' and Sestava = '") + Dotaz::text(sestava) +
                                      QStringLiteral("' and IDFormat = ") + Dotaz::cislo(m_idFormatu) +
                                      QStringLiteral(" ORDER BY Oznaceni"));
        const Recordset format(*m_dataK, QStringLiteral("SELECT * FROM ZakazkyMaterialy WHERE Zakazka = '") +
                                             z(m_zakazka) + QStringLiteral("'and ID = ") +
                                             Dotaz::cislo(m_idFormatu));
        const bool formatOV = !format.eof() && format.ano(QStringLiteral("OV"));
        int cDesky = 1;
        for (; !desky.eof(); desky.moveNext()) {
            const double kopie = desky.cislo(QStringLiteral("pocetelementuVsestave")) * desky.cislo(QStringLiteral("Pocet"));
            for (double i = 1; i <= kopie; ++i) {
                soupis.addNew();
                soupis.set(QStringLiteral("CDesky"), cDesky);
                for (const char* pole : {"Oznaceni", "Sestava", "IDHX1", "IDHX2", "IDHY1", "IDHY2"})
                    soupis.set(QLatin1String(pole), desky.value(QLatin1String(pole)));
                soupis.set(QStringLiteral("x"), desky.cislo(QStringLiteral("x")) * 10);
                soupis.set(QStringLiteral("y"), desky.cislo(QStringLiteral("y")) * 10);
                soupis.set(QStringLiteral("OV"), formatOV && desky.ano(QStringLiteral("OV")));
                soupis.update();
            }
            ++cDesky;
        }
    }
    Recordset vse(*m_dataK, QStringLiteral("SELECT * FROM SoupisDesek "));
    if (!vse.eof()) {
        vse.moveLast();
        m_krokPrubehu = std::floor(m_prubeh.maximum() / (vse.recordCount() + 2));
    }
}

void PlanRun::ridic()
{
    m_prubeh.zobraz();
    m_prubeh.popisek(QStringLiteral("Optimalizuji... - tabule č. 1"));
    m_hodnotaPrubehu = 2 * m_krokPrubehu;
    m_prubeh.hodnota(m_hodnotaPrubehu);
    m_s.SrezNP = Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("Srez")) * 10;
    m_s.SamovaniNP = Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("Samovani")) * 10;
    m_rsTabule.emplace(*m_dataK, QStringLiteral("SELECT * FROM SoupisTabuli WHERE ID = False  ORDER BY CT "));
    m_s.CisloTabule = 1;
    Umisteni umisteni(*this);
    const QString zbyvaji = m_zpusob == ZpusobNP::PricneRezy
                                ? QStringLiteral("SELECT * FROM SoupisDesek WHERE ID = False ORDER BY x desc , y desc;")
                                : QStringLiteral("SELECT * FROM SoupisDesek WHERE ID = False ORDER BY y desc , x desc;");
    for (;;) {
        if (m_rsTabule->eof()) {
            m_varovani = true;
            m_prompt.zprava(DeskyVetsiNezTabule, QStringLiteral("Upozornění"), Prompt::Ikona::Kriticka);
            break;
        }
        if (vydej())
            break;
        const bool zarovnat = Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("ZarovnaniFormatu")) == 1;
        const double okraj = zarovnat ? m_s.SrezNP : 0;
        m_s.TabuleX = m_rsTabule->cislo(QStringLiteral("x")) - okraj;
        m_s.TabuleY = m_rsTabule->cislo(QStringLiteral("y")) - okraj;
        m_s.Pozice[0] = m_s.Pozice[1] = okraj;
        m_rezy[m_s.CisloTabule] = 1;
        for (auto& r : m_s.Rozmery)
            r.assign(1001, 0);
        m_s.Zbyva[0] = m_s.TabuleX;
        m_s.Zbyva[1] = m_s.TabuleY;
        m_s.CisloRady = 1;
        m_s.PoradiDesky = 1;
        m_s.NovaRada = false;
        m_s.VZbytkuRady = false;
        umisteni.NP(m_zpusob);
        if (m_prerusit)
            break;
        if (Recordset(*m_dataK, zbyvaji, Recordset::Rozsah::Prvni).prazdny())
            break;
        ++m_s.CisloTabule;
        m_prubeh.popisek(QStringLiteral("Optimalizuji... - tabule č. ") + QString::number(m_s.CisloTabule));
        m_rsTabule->moveNext();
    }
    m_rsTabule.reset();
}

void PlanRun::PrecislujTabule()
{
    {
        Recordset nepouzite(*m_dataK, QStringLiteral("SELECT * FROM SoupisTabuli Where id=False ORDER BY CT"));
        for (; !nepouzite.eof(); nepouzite.moveNext())
            nepouzite.remove();
    }
    Recordset tabule(*m_dataK, QStringLiteral("SELECT * FROM SoupisTabuli Where id=True ORDER BY CT"));
    int citac = 1;
    for (; !tabule.eof(); tabule.moveNext(), ++citac) {
        const QString ct = Dotaz::cislo(tabule.cislo(QStringLiteral("CT")));
        tabule.edit();
        tabule.set(QStringLiteral("NCT"), citac);
        tabule.update();
        Recordset desky(*m_dataK, QStringLiteral("SELECT * FROM SoupisDesek Where Tabule = ") + ct);
        for (; !desky.eof(); desky.moveNext()) {
            desky.edit();
            desky.set(QStringLiteral("tabule"), citac);
            desky.update();
        }
        Recordset zbytky(*m_dataK, QStringLiteral("SELECT * FROM SoupisZbytku Where CT = ") + ct);
        for (; !zbytky.eof(); zbytky.moveNext()) {
            zbytky.edit();
            zbytky.set(QStringLiteral("CT"), citac);
            zbytky.update();
        }
    }
}

void PlanRun::oznacDesku(Recordset& rs, bool otoceno)
{
    const int n = m_s.PoradiDesky;
    for (auto& r : m_s.Rozmery)
        if (int(r.size()) <= n)
            r.resize(n + 1, 0);
    const double x = rs.cislo(QStringLiteral("x"));
    const double y = rs.cislo(QStringLiteral("y"));
    m_s.Rozmery[0][n] = otoceno ? y : x;
    m_s.Rozmery[1][n] = otoceno ? x : y;
    rs.edit();
    rs.set(QStringLiteral("ID"), true);
    rs.set(QStringLiteral("XD"), m_s.Pozice[0]);
    rs.set(QStringLiteral("YD"), m_s.Pozice[1]);
    rs.set(QStringLiteral("tabule"), m_s.CisloTabule);
    if (otoceno)
        rs.set(QStringLiteral("OTOC"), true);
    rs.update();
    m_rsTabule->edit();
    m_rsTabule->set(QStringLiteral("ID"), true);
    m_rsTabule->update();
    m_hodnotaPrubehu = std::min(m_hodnotaPrubehu + m_krokPrubehu, m_prubeh.maximum());
    m_prubeh.hodnota(m_hodnotaPrubehu);
    m_prubeh.popisek(QStringLiteral("Optimalizuji... - tabule č. ") + QString::number(m_s.CisloTabule) +
                     QStringLiteral(" deska č. ") + QString::number(n));
}

QString PlanRun::dosad(const char* text, std::initializer_list<std::pair<const char*, double>> dalsi) const
{
    static const QRegularExpression jmeno(QStringLiteral("\\{(\\w+)\\}"));
    QString sql = QString::fromUtf8(text);
    QString vysledek;
    qsizetype od = 0;
    for (auto it = jmeno.globalMatch(sql); it.hasNext();) {
        const auto m = it.next();
        vysledek += QStringView(sql).mid(od, m.capturedStart() - od);
        const QString n = m.captured(1);
        double v = 0;
        const auto dana = std::find_if(dalsi.begin(), dalsi.end(),
                                       [&](const auto& p) { return n == QLatin1String(p.first); });
        if (dana != dalsi.end()) v = dana->second;
        else if (n == QLatin1String("ZbyvaX")) v = m_s.Zbyva[0];
        else if (n == QLatin1String("ZbyvaY")) v = m_s.Zbyva[1];
        else if (n == QLatin1String("ZbyvaXKZ")) v = m_s.ZbyvaKZ[0];
        else if (n == QLatin1String("ZbyvaYKZ")) v = m_s.ZbyvaKZ[1];
        else if (n == QLatin1String("CisloTabule")) v = m_s.CisloTabule;
        else if (n == QLatin1String("CisloRady")) v = m_s.CisloRady;
        else
            throw Error(Chyba::ChybaDotazu, QStringLiteral("Neznámá hodnota v dotazu: ") + n);
        vysledek += Dotaz::cislo(v);
        od = m.capturedEnd();
    }
    vysledek += QStringView(sql).mid(od);
    return vysledek;
}

} // namespace PlanSql
