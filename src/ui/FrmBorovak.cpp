#include "ui/FrmBorovak.h"

#include "core/Error.h"
#include "core/Nastaveni.h"
#include "core/Uloziste.h"
#include "costing/Kalkulace.h"
#include "orders/Kopirovani.h"
#include "orders/Strom.h"
#include "orders/Zakazky.h"
#include "ui/FrmOptions.h"
#include "ui/Ikony.h"
#include "ui/Nabidka.h"
#include "ui/QtPrompt.h"
#include "ui/TabulkaPrikazu.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QTableWidget>
#include <QTimer>
#include <QTreeWidget>

namespace {

constexpr int TwipuNaPixel = 15; // the old window positions were kept in screen twips

} // namespace

FrmBorovak::FrmBorovak(Uloziste& uloziste, Prompt& prompt)
    : m_uloziste(uloziste), m_prompt(prompt), m_data(uloziste, prompt, [this](Schema::Soubor) { poObnoveDat(); }),
      m_vypisy(uloziste, prompt, m_vyber, this, [this](const QString& n) { return popisekPrikazu(n); }),
      m_katalogy(uloziste, prompt, this, [this] { NactiSchema(); }), m_jazyk(*this, prompt)
{
    pridejPrikazy();
    setObjectName(QStringLiteral("frmBorovak"));
    setWindowTitle(QStringLiteral("Truhlář V ") + Nastaveni::verze());
    setWindowIcon(Ikony::proKlic("NP"));
    vytvorMenu();
    vytvorNastroje();

    auto* rozdeleni = new QSplitter(Qt::Horizontal);
    rozdeleni->setObjectName(QStringLiteral("imgSplitter"));
    rozdeleni->addWidget(vytvorStrom());
    rozdeleni->addWidget(vytvorZalozky());
    rozdeleni->setStretchFactor(0, 1);
    rozdeleni->setStretchFactor(1, 3);
    setCentralWidget(rozdeleni);

    vytvorStavovyRadek();

    connect(&m_vyber, &Vyber::zmenaZakazky, this, &FrmBorovak::obnovZakazku);
    connect(&m_vyber, &Vyber::zmenaSestavy, this, &FrmBorovak::obnovSestavu);
    pripojKatalog();
    NaplnitStrom();
    obnovGeometrii();
    ZakazEditaciZakazky();
    ZakazEditaciSestavy();
}

QAction* FrmBorovak::akce(const QString& nazev) const { return findChild<QAction*>(nazev); }

void FrmBorovak::povol(const QStringList& nazvy, bool ano)
{
    for (const QString& n : nazvy) {
        if (auto* a = akce(n))
            a->setEnabled(ano && (m_prikazy.obsahuje(n) || a->menu() || n.startsWith(QLatin1String("tb"))));
        if (auto* b = findChild<QPushButton*>(n))
            b->setEnabled(ano && m_prikazy.obsahuje(n));
    }
    // a toolbar key is on only while the command behind it is in place
    for (const Nabidka::Tlacitko& t : Nabidka::nastroje())
        if (auto* a = akce(QStringLiteral("tb") + QLatin1String(t.klic)); a && !m_prikazy.obsahuje(QLatin1String(t.prikaz)))
            a->setEnabled(false);
}

void FrmBorovak::ZakazEditaciZakazky()
{
    QStringList vse = {QStringLiteral("UpraveniZakazky"),
                       QStringLiteral("UlozeniJakoZ"),
                       QStringLiteral("SmazaniZakazky"),
                       QStringLiteral("Sestava"),
                       QStringLiteral("PlMaterial"),
                       QStringLiteral("Format"),
                       QStringLiteral("Hrana"),
                       QStringLiteral("Vypisy"),
                       QStringLiteral("Prislusenstvi"),
                       QStringLiteral("Vz"),
                       QStringLiteral("NP"),
                       QStringLiteral("NF"),
                       QStringLiteral("NH"),
                       QStringLiteral("cmdNovyFormat"),
                       QStringLiteral("cmdNovaHrana")};
    for (const Nabidka::Tlacitko& t : Nabidka::nastroje())
        if (!QStringList({"NZ", "CTM", "Moznosti", "Sklad"}).contains(QLatin1String(t.klic)))
            vse << QStringLiteral("tb") + QLatin1String(t.klic);
    povol(vse, false);
}

void FrmBorovak::PovolEditaciZakazky()
{
    povol({QStringLiteral("UpraveniZakazky"), QStringLiteral("SmazaniZakazky"), QStringLiteral("UlozeniJakoZ"),
           QStringLiteral("Sestava"), QStringLiteral("Vypisy"), QStringLiteral("Format"), QStringLiteral("Hrana"),
           QStringLiteral("Vz"), QStringLiteral("NP"), QStringLiteral("cmdNovyFormat"), QStringLiteral("cmdNovaHrana"),
           QStringLiteral("NF"), QStringLiteral("NH"), QStringLiteral("tbOZ"), QStringLiteral("tbNPZ"), QStringLiteral("tbNP"),
           QStringLiteral("tbZD")},
          true);
}

void FrmBorovak::ZakazEditaciSestavy()
{
    povol({QStringLiteral("USestava"), QStringLiteral("UlozeniSestavyJako"), QStringLiteral("SmazaniSestavy"),
           QStringLiteral("cmdImport"), QStringLiteral("PlMaterial"), QStringLiteral("Prislusenstvi"), QStringLiteral("tbUPZ"),
           QStringLiteral("tbOPZ"), QStringLiteral("tbNPM"), QStringLiteral("tbUPM"), QStringLiteral("tbOPM"),
           QStringLiteral("tbNPR"), QStringLiteral("tbUPR"), QStringLiteral("tbOPR")},
          false);
}

void FrmBorovak::PovolEditaciSestavy()
{
    povol({QStringLiteral("UlozeniJakoZ"), QStringLiteral("SmazaniZakazky"), QStringLiteral("USestava"),
           QStringLiteral("UlozeniSestavyJako"), QStringLiteral("SmazaniSestavy"), QStringLiteral("PlMaterial"),
           QStringLiteral("NovyPloM"), QStringLiteral("Prislusenstvi"), QStringLiteral("NoveP"), QStringLiteral("tbUPZ"),
           QStringLiteral("cmdImport"), QStringLiteral("tbOPZ"), QStringLiteral("tbNPM"), QStringLiteral("tbNPR")},
          true);
}

void FrmBorovak::NaplnitStrom()
{
    m_tvzakazky->clear();
    for (const UzelZakazky& z : ::NaplnitStrom(m_uloziste.dataS())) {
        auto* uzel = new QTreeWidgetItem(m_tvzakazky, {z.nazev});
        uzel->setIcon(0, Ikony::zakazka());
        uzel->setData(0, Qt::UserRole, z.nazev + QLatin1Char('a'));
        for (const UzelSestavy& s : z.sestavy) {
            auto* dite = new QTreeWidgetItem(uzel, {s.text()});
            dite->setIcon(0, Ikony::sestava());
            dite->setData(0, Qt::UserRole, z.nazev + QLatin1Char('a') + s.nazev);
            dite->setData(0, Qt::UserRole + 1, s.nazev); // the node's Tag
        }
    }
}

void FrmBorovak::klikNaUzel(QTreeWidgetItem* uzel)
{
    if (!uzel)
        return;
    const QString tag = uzel->data(0, Qt::UserRole + 1).toString();
    if (tag.isEmpty()) {
        m_AktZakazka = uzel->text(0);
        m_AktSestava.clear();
        m_stZakazky->setCurrentIndex(0);
        m_vyber.setTxtzakazka(uzel->text(0));
        m_vyber.setTxtSestava(QString());
    } else {
        m_AktZakazka = uzel->parent()->text(0);
        m_AktSestava = tag;
        m_stZakazky->setCurrentIndex(1);
        m_vyber.setTxtzakazka(m_AktZakazka);
        m_vyber.setTxtSestava(tag);
    }
}

void FrmBorovak::obnovZakazku()
{
    m_panel[0]->setText(Zakazky::poznamka(m_uloziste.dataS(), m_vyber.txtzakazka()));
    m_panel[0]->setToolTip(QStringLiteral("Poznámka k zakázce"));
    NaplnitGridFormaty(QStringLiteral("Novy zaznam"));
    NaplnitGridHrany(QStringLiteral("Novy zaznam"));
    if (!m_vyber.txtzakazka().isEmpty())
        PovolEditaciZakazky();
    else
        ZakazEditaciZakazky();
    // when the assembly does not change with the order its handler stays silent, so the
    // prices are renewed here (otherwise they are, once, when the assembly's signal follows)
    if (m_vyber.txtSestava() == m_AktSestava)
        obnovCeny();
}

void FrmBorovak::obnovSestavu()
{
    if (m_AktSestava.isEmpty()) {
        m_panel[0]->setText(Zakazky::poznamka(m_uloziste.dataS(), m_vyber.txtzakazka()));
        m_panel[0]->setToolTip(QStringLiteral("Poznámka k zakázce"));
        m_panel[2]->clear();
    } else {
        m_panel[0]->setText(Zakazky::nactiSestavu(m_uloziste.dataS(), m_vyber.txtzakazka(), m_vyber.txtSestava()).popis);
        m_panel[0]->setToolTip(QStringLiteral("Poznámka k sestavě"));
    }
    NaplnitGridPM(QStringLiteral("Novy zaznam"));
    NaplnitGridPR(QStringLiteral("Novy zaznam"));
    NactiSchema();
    if (!m_AktSestava.isEmpty())
        PovolEditaciSestavy();
    else
        ZakazEditaciSestavy();
    obnovCeny();
}

void FrmBorovak::obnovCeny()
{
    m_panel[1]->clear();
    m_panel[2]->clear();
    if (m_vyber.txtzakazka().isEmpty())
        return;
    try {
        const Kalkulace::Ceny c = Kalkulace::ZobrazCeny(m_uloziste, m_vyber.txtzakazka(), m_AktSestava);
        m_panel[1]->setText(c.zakazka);
        m_panel[2]->setText(c.sestava);
    } catch (const Error& e) {
        m_panel[1]->setText(QStringLiteral("cena nelze spočítat"));
        m_panel[1]->setToolTip(e.text());
        return;
    }
    m_panel[1]->setToolTip(QStringLiteral("Cena zakázky s DPH"));
}

void FrmBorovak::prikaz(const QString& nazev)
{
    try {
        m_prikazy.spust(nazev);
    } catch (const Error& e) {
        if (e.cislo() != Chyba::Zruseno)
            m_prompt.zprava(e.text(), QStringLiteral("Chyba"), Prompt::Ikona::Kriticka);
    }
}

QString FrmBorovak::popisekPrikazu(const QString& nazev) const
{
    return akce(nazev) ? akce(nazev)->text().remove(QLatin1Char('&')) : nazev;
}

void FrmBorovak::pridejPrikazy()
{
    pridejPrikazyZaznamu();
    pridejPrikazyPrislusenstvi();
    m_data.pridejPrikazy(m_prikazy);
    m_vypisy.pridejPrikazy(m_prikazy);
    m_katalogy.pridejPrikazy(m_prikazy);
    m_jazyk.pridejPrikazy(m_prikazy);
    m_prikazy.pridej({QStringLiteral("UlozeniJakoZ")}, [this] {
        const QString nova = Kopirovani::UlozitZakazkuJako(m_uloziste.dataS(), m_prompt, m_vyber.txtzakazka());
        if (!nova.isNull())
            vyberUzel(nova, QString());
    });
    m_prikazy.pridej({QStringLiteral("UlozeniSestavyJako")}, [this] {
        const QString zakazka = m_vyber.txtzakazka();
        const QString nova = Kopirovani::UlozitSestavuJako(m_uloziste.dataS(), m_prompt, zakazka, m_AktSestava);
        if (!nova.isNull())
            vyberUzel(zakazka, nova);
    });
    m_prikazy.pridej({QStringLiteral("Konec")}, [this] { close(); });
    m_prikazy.pridej({QStringLiteral("Moznosti")}, [this] { otevriMoznosti(); });
    m_prikazy.pridej({QStringLiteral("NapovedaObsah")}, [this] {
        m_prompt.zprava(QStringLiteral("Na aktualizaci nápovědy se pracuje..."), QString(), Prompt::Ikona::Informace);
    });
    m_prikazy.pridej({QStringLiteral("OProgramu")}, [this] {
        m_prompt.zprava(windowTitle() + QStringLiteral("\nPracovní stůl truhlářské dílny: zakázky, nářezové plány, "
                                                       "kalkulace a výpisy."),
                        QStringLiteral("O programu"), Prompt::Ikona::Informace);
    });
}

void FrmBorovak::poObnoveDat()
{
    NaplnitStrom();
    m_AktZakazka.clear();
    m_AktSestava.clear();
    m_vyber.obnov(QString(), QString()); // nothing selected, every page refreshed
}

void FrmBorovak::otevriMoznosti()
{
    FrmOptions okno(
        m_prompt,
        [this] {
            obnovZakazku();
            obnovSestavu();
        },
        this);
    okno.exec();
}

void FrmBorovak::obnovGeometrii()
{
    auto cti = [](const char* klic, int vychozi) {
        return int(Nastaveni::GetSetting(QStringLiteral("Settings"), QLatin1String(klic), QString::number(vychozi)).toDouble()) /
               TwipuNaPixel;
    };
    QRect r(cti("MainLeft", 1000), cti("MainTop", 1000), cti("MainWidth", 6500), cti("MainHeight", 6500));
    r.setSize(r.size().expandedTo(QSize(900, 600)));
    if (const QScreen* s = QApplication::primaryScreen(); s && !s->availableGeometry().intersects(r))
        r.moveTopLeft(s->availableGeometry().topLeft());
    setGeometry(r);
}

void FrmBorovak::ulozGeometrii()
{
    const QRect r = geometry();
    for (auto [klic, hodnota] :
         {std::pair{"MainLeft", r.x()}, {"MainTop", r.y()}, {"MainWidth", r.width()}, {"MainHeight", r.height()}})
        Nastaveni::SaveSetting(QStringLiteral("Settings"), QLatin1String(klic), QString::number(hodnota * TwipuNaPixel));
}

bool FrmBorovak::eventFilter(QObject* o, QEvent* e)
{
    // the price panels open their reports: the order's calculation, the assemblies' calculation
    if ((o == m_panel[1] || o == m_panel[2]) && e->type() == QEvent::MouseButtonRelease) {
        const char* klic = o == m_panel[1] ? "RychlaKalkulace" : "KS";
        if (akce(QLatin1String(klic)) && akce(QLatin1String(klic))->isEnabled())
            prikaz(QLatin1String(klic));
        return true;
    }
    if ((o == m_panel[0] || o == m_img1) && e->type() == QEvent::MouseButtonRelease) {
        // the note panel edits the order or the assembly; the schema picture the assembly
        if (!m_AktSestava.isEmpty())
            prikaz(QStringLiteral("USestava"));
        else if (o == m_panel[0] && !m_vyber.txtzakazka().isEmpty())
            prikaz(QStringLiteral("UpraveniZakazky"));
        return true;
    }
    if (o == m_tvzakazky->viewport() && e->type() == QEvent::Drop) {
        auto* drop = static_cast<QDropEvent*>(e);
        drop->ignore();
        pretazeni(m_tvzakazky->currentItem(), m_tvzakazky->itemAt(drop->position().toPoint()));
        return true;
    }
    return QMainWindow::eventFilter(o, e);
}

void FrmBorovak::pretazeni(QTreeWidgetItem* zdroj, QTreeWidgetItem* cil)
{
    if (!cil || !zdroj || zdroj->data(0, Qt::UserRole + 1).toString().isEmpty())
        return;
    QTreeWidgetItem* cilovaZakazka = cil->parent() ? cil->parent() : cil;
    if (cilovaZakazka == zdroj->parent())
        return; // on its own order nothing happens
    // an assembly dropped on another order (or one of its assemblies) is copied there
    const QString sestava = zdroj->data(0, Qt::UserRole + 1).toString();
    const QString cilova = cilovaZakazka->text(0);
    if (m_prompt.zprava(QStringLiteral("Chcete zkopírovat sestavu - ") + sestava + QStringLiteral(" - do zakázky - ") + cilova +
                            QStringLiteral(" - ?"),
                        QString(), Prompt::Ikona::Otaznik, Prompt::Tlacitka::AnoNe) != Prompt::Odpoved::Ano)
        return;
    try {
        const QString nova = Kopirovani::KopirovaniSestavy(m_uloziste.dataS(), zdroj->parent()->text(0), sestava, cilova);
        m_vyber.setTxtSestava(QString());
        // the tree is filled again once the drag has ended, not under its feet
        QTimer::singleShot(0, this, [this, cilova, nova] { vyberUzel(cilova, nova); });
    } catch (const Error& e) {
        m_prompt.zprava(e.text(), QStringLiteral("Chyba"), Prompt::Ikona::Kriticka);
    }
}

void FrmBorovak::closeEvent(QCloseEvent* e)
{
    ulozGeometrii();
    e->accept();
}
