#include "ui/OvladacVypisu.h"

#include "core/Error.h"
#include "core/Uloziste.h"
#include "costing/Vypisy.h"
#include "optimiser/PlanRun.h"
#include "optimiser/StartNP.h"
#include "orders/Strom.h"
#include "orders/Vyber.h"
#include "planoutput/StrankyNP.h"
#include "ui/FrmNP.h"
#include "ui/FrmNovy.h"
#include "ui/FrmVSP.h"
#include "ui/TabulkaPrikazu.h"

#include <QApplication>

OvladacVypisu::OvladacVypisu(Uloziste& uloziste, Prompt& prompt, const Vyber& vyber, QWidget* okno,
                             std::function<QString(const QString&)> popisek)
    : m_uloziste(uloziste), m_prompt(prompt), m_vyber(vyber), m_okno(okno), m_popisek(std::move(popisek))
{
}

void OvladacVypisu::pridejPrikazy(TabulkaPrikazu& tabulka)
{
    tabulka.pridej({QStringLiteral("NP")}, [this] { ZahajNP(); });
    // the costing reports by the command that opens them
    for (const auto& [nazev, druh] : {std::pair{"RychlaKalkulace", DruhVypisu::Zakazka},
                                      {"KS", DruhVypisu::Sestavy},
                                      {"NM", DruhVypisu::Nakup},
                                      {"CN", DruhVypisu::Nabidka},
                                      {"SMZ", DruhVypisu::Dilna},
                                      {"SMDS", DruhVypisu::DilnaSeSchematy}})
        tabulka.pridej({QLatin1String(nazev)}, [this, n = QString::fromLatin1(nazev), d = druh] { Vypis(d, m_popisek(n)); });
}

void OvladacVypisu::ZahajNP()
{
    const QString zakazka = m_vyber.txtzakazka();
    const std::vector<FormatNP> formaty = PlanRun::formatySDeskami(m_uloziste.dataS(), zakazka);
    if (formaty.empty()) {
        m_prompt.zprava(QStringLiteral("V zakázce není co nařezat!!!!!"), QString(), Prompt::Ikona::Kriticka);
        return;
    }
    std::vector<int> pocty;
    for (const FormatNP& f : formaty)
        pocty.push_back(StartNP::pocetVariant(m_uloziste.dataS(), zakazka, f.ID));
    FrmNovy dialog(m_okno);
    FrmNovy::VolbaNP volba;
    const bool zvoleno = dialog.zvolNP(formaty, pocty, volba, [&](double idFormatu, ZpusobNP zpusob, Prubeh& prubeh) {
        return srovnejZpusob(m_uloziste, prubeh, zakazka, idFormatu, zpusob);
    });
    if (!zvoleno) {
        m_uloziste.zavriDataK(); // the comparison's plans
        return;
    }
    PlanRun run(m_uloziste, m_prompt, dialog);
    bool hotovo = false;
    std::optional<Error> chyba;
    dialog.optimalizuj(volba.zpusob, [&] {
        try {
            hotovo = run.SpustNP(zakazka, volba.IDFormatuNP, volba.zpusob, volba.VolbaNPDeska);
        } catch (const Error& e) {
            chyba = e;
        }
    });
    if (chyba) {
        m_uloziste.zavriDataK();
        m_prompt.zprava(StartNP::chybaPracovniDatabaze(*chyba).text(), QString(), Prompt::Ikona::Kriticka);
        QApplication::exit(1);
        return;
    }
    if (hotovo) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        FrmNP np(m_uloziste, m_prompt, PlanNaStrankach::z(run), m_okno);
        const bool vykresleno = np.vykresli();
        QApplication::restoreOverrideCursor();
        if (!vykresleno)
            m_prompt.zprava(QString::fromUtf8(RozmerovaChyba), QString::fromUtf8(RozmerovaChybaTitulek), Prompt::Ikona::Kriticka);
        else
            np.exec();
    }
    m_uloziste.zavriDataK();
}

// A costing report of the assemblies chosen in fraKalkulace, in the report preview.
void OvladacVypisu::Vypis(DruhVypisu druh, const QString& nazev)
{
    const QString zakazka = m_vyber.txtzakazka();
    if (zakazka.isEmpty())
        return;
    QStringList nazvy, texty;
    if (const auto z = UzelZakazkyPodleNazvu(m_uloziste.dataS(), zakazka))
        for (const UzelSestavy& s : z->sestavy) {
            nazvy << s.nazev;
            texty << s.text();
        }
    FrmNovy dialog(m_okno);
    const std::optional<QList<int>> vybrane = dialog.kalkulace(nazev, texty);
    if (!vybrane)
        return;
    QStringList vNazvy, vTexty;
    for (int i : *vybrane) {
        vNazvy << nazvy.at(i);
        vTexty << texty.at(i);
    }
    QApplication::setOverrideCursor(Qt::WaitCursor);
    FrmVSP vsp(m_prompt, m_okno);
    try {
        const std::vector<Rezani::Format> rezani = Rezani::zakazky(m_uloziste, zakazka, vNazvy);
        m_uloziste.ObnovPracovniDatabazi();
        vsp.setWindowTitle(
            SestavVypis(druh, vsp.dokument(), m_uloziste.dataK(), m_uloziste.cenik(), zakazka, vNazvy, vTexty, rezani).titulek);
    } catch (...) {
        m_uloziste.zavriDataK();
        QApplication::restoreOverrideCursor();
        throw;
    }
    m_uloziste.zavriDataK();
    vsp.obnov();
    QApplication::restoreOverrideCursor();
    vsp.exec();
}
