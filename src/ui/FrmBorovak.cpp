// The main window's start, its command dispatch with the enable rule of each entry, the
// panels that open a command, the options, and the window's place kept between runs.
#include "ui/FrmBorovak.h"

#include "core/Error.h"
#include "core/Nastaveni.h"
#include "core/Soubory.h"
#include "core/Uloziste.h"
#include "exchange/ZakazkaJson.h"
#include "ui/FrmOptions.h"
#include "ui/Ikony.h"
#include "ui/Nabidka.h"
#include "ui/Napoveda.h"
#include "ui/QtPrompt.h"
#include "ui/TabulkaPrikazu.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>

namespace {

constexpr int TwipuNaPixel = 15; // the old window positions were kept in screen twips

} // namespace

FrmBorovak::FrmBorovak(Uloziste& uloziste, Prompt& prompt)
    : m_uloziste(uloziste), m_prompt(prompt), m_data(uloziste, prompt, [this](Schema::Soubor) { m_zakazky->poObnoveDat(); }),
      m_vypisy(uloziste, prompt, m_vyber, this, [this](const QString& n) { return popisekPrikazu(n); }),
      m_katalogy(uloziste, prompt, this, [this] { m_zakazky->NactiSchema(); }), m_jazyk(*this, prompt)
{
    Napoveda::zapniKlavesu(this);
    setObjectName(QStringLiteral("frmBorovak"));
    setWindowTitle(QStringLiteral("Truhlář V ") + Nastaveni::verze());
    setWindowIcon(Ikony::proKlic("NP"));

    auto* rozdeleni = new QSplitter(Qt::Horizontal);
    rozdeleni->setObjectName(QStringLiteral("imgSplitter"));
    rozdeleni->addWidget(vytvorStrom());
    rozdeleni->addWidget(vytvorZalozky());
    rozdeleni->setStretchFactor(0, 1);
    rozdeleni->setStretchFactor(1, 3);
    setCentralWidget(rozdeleni);
    vytvorStavovyRadek();
    m_zakazky = std::make_unique<OvladacZakazek>(m_uloziste, m_prompt, m_vyber, this, m_prvky,
                                                 [this](const QStringList& nazvy, bool ano) { povol(nazvy, ano); });

    pridejPrikazy();
    vytvorMenu();
    vytvorNastroje();
    // the schema picture fits itself to its pane again when a splitter moves
    for (auto* s : findChildren<QSplitter*>())
        connect(s, &QSplitter::splitterMoved, m_zakazky.get(), &OvladacZakazek::NactiSchema);
    m_zakazky->NaplnitStrom();
    obnovGeometrii();
    m_zakazky->ZakazEditaci();
}

void FrmBorovak::otevriSoubor(const QString& soubor)
{
    try {
        m_zakazky->vyberUzel(ZakazkaJson::nacti(m_uloziste.dataS(), Soubory::nacti(soubor)), QString());
    } catch (const Error& e) {
        m_prompt.zprava(e.text(), QStringLiteral("Chyba"), Prompt::Ikona::Kriticka);
    }
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
    m_zakazky->pridejPrikazy(m_prikazy);
    m_data.pridejPrikazy(m_prikazy);
    m_vypisy.pridejPrikazy(m_prikazy);
    m_katalogy.pridejPrikazy(m_prikazy);
    m_jazyk.pridejPrikazy(m_prikazy);
    m_prikazy.pridej({QStringLiteral("Konec")}, [this] { close(); });
    m_prikazy.pridej({QStringLiteral("Moznosti")}, [this] { otevriMoznosti(); });
    m_prikazy.pridej({QStringLiteral("NapovedaObsah")}, [this] { Napoveda::otevri(this, Napoveda::Obsah); });
    m_prikazy.pridej({QStringLiteral("OProgramu")}, [this] {
        m_prompt.zprava(windowTitle() + QStringLiteral("\nPracovní stůl truhlářské dílny: zakázky, nářezové plány, "
                                                       "kalkulace a výpisy."),
                        QStringLiteral("O programu"), Prompt::Ikona::Informace);
    });
}

void FrmBorovak::otevriMoznosti()
{
    FrmOptions okno(
        m_prompt, [this] { m_zakazky->obnovStranky(); }, this);
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
    QLabel* const* panel = m_prvky.panel;
    if ((o == panel[1] || o == panel[2]) && e->type() == QEvent::MouseButtonRelease) {
        const char* klic = o == panel[1] ? "RychlaKalkulace" : "KS";
        if (akce(QLatin1String(klic)) && akce(QLatin1String(klic))->isEnabled())
            prikaz(QLatin1String(klic));
        return true;
    }
    if ((o == panel[0] || o == m_prvky.img1) && e->type() == QEvent::MouseButtonRelease) {
        // the note panel edits the order or the assembly; the schema picture the assembly
        if (!m_zakazky->AktSestava().isEmpty())
            prikaz(QStringLiteral("USestava"));
        else if (o == panel[0] && !m_vyber.txtzakazka().isEmpty())
            prikaz(QStringLiteral("UpraveniZakazky"));
        return true;
    }
    return QMainWindow::eventFilter(o, e);
}

void FrmBorovak::closeEvent(QCloseEvent* e)
{
    ulozGeometrii();
    e->accept();
}
