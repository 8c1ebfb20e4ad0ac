#include "ui/FrmNP.h"

#include "core/Aplikace.h"
#include "core/Error.h"
#include "core/Nastaveni.h"
#include "core/Uloziste.h"
#include "planoutput/ExportCNC.h"
#include "planoutput/SeznamDilcu.h"
#include "planoutput/Stitky.h"
#include "planoutput/ZapisDoSkladu.h"
#include "printing/UlozeniPdf.h"
#include "ui/FrmVSP.h"
#include "ui/Ikony.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QScrollArea>
#include <QToolBar>

FrmNP::FrmNP(Uloziste& uloziste, Prompt& prompt, const PlanNaStrankach& plan, QWidget* rodic)
    : OknoDokumentu(prompt, rodic), m_uloziste(uloziste), m_plan(plan)
{
    setObjectName(QStringLiteral("frmNP"));
    setWindowTitle(TitulekNP(plan.zpusob));
    const QColor seda(0x55, 0x57, 0x53);
    connect(pridejAkci(QStringLiteral("TiskNP"), QStringLiteral("Tisk nářezového plánu"), Ikony::znacka(QStringLiteral("Tisk"), seda)),
            &QAction::triggered, this, &FrmNP::tiskni);
    connect(pridejAkci(QStringLiteral("UNP"), QStringLiteral("Uložit nářezový plán jako PDF"),
                       Ikony::znacka(QStringLiteral("PDF"), QColor(0xcc, 0x00, 0x00))),
            &QAction::triggered, this, &FrmNP::UlozNP);
    nastroje()->addSeparator();
    pridejStrankovani();
    connect(pridejAkci(QStringLiteral("Náhled"), QStringLiteral("Celá strana"), Ikony::znacka(QStringLiteral("▣"), seda)),
            &QAction::triggered, this, &FrmNP::nahled);
    nastroje()->addSeparator();
    connect(pridejAkci(QStringLiteral("Sklad"), QStringLiteral("Odepsat odřezky do skladu"),
                       Ikony::znacka(QStringLiteral("▤"), QColor(0x8f, 0x59, 0x02))),
            &QAction::triggered, this, &FrmNP::OdepisOdrezky);
    connect(pridejAkci(QStringLiteral("CNC"), QStringLiteral("Export pro pilu (VPF)"), Ikony::znacka(QStringLiteral("CNC"), seda)),
            &QAction::triggered, this, &FrmNP::ExportCNC);
    connect(pridejAkci(QStringLiteral("CSV"), QStringLiteral("Seznam dílců pro tabulkový procesor (CSV)"),
                       Ikony::znacka(QStringLiteral("CSV"), QColor(0x20, 0x4a, 0x87))),
            &QAction::triggered, this, &FrmNP::SeznamDilcu);
    connect(pridejAkci(QStringLiteral("TiskStitku"), QStringLiteral("Tisk štítků"),
                       Ikony::znacka(QStringLiteral("▭"), QColor(0x4e, 0x9a, 0x06))),
            &QAction::triggered, this, &FrmNP::TiskStitku);
    nastroje()->addSeparator();
    connect(pridejAkci(QStringLiteral("KONEC"), QStringLiteral("Zavřít"), Ikony::znacka(QStringLiteral("✕"), seda)),
            &QAction::triggered, this, &QDialog::accept);
}

FrmNP::~FrmNP()
{
    m_uloziste.zavriDataK();
}

bool FrmNP::vykresli()
{
    const int kolik = int(Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("VykresleniTabule")));
    const bool ok = StrankyNP(dokument(), m_uloziste, m_plan, kolik);
    obnov();
    return ok || (kolik != 1 && kolik != 2 && kolik != 4); // another layout leaves the viewer empty
}

void FrmNP::nahled()
{
    nastavStranu(1);
    // The whole page in view: the zoom step that fits the viewer's height.
    const double stranaPx = dokument().PageHeight() * 96.0 / 1440.0;
    const int vyska = findChild<QScrollArea*>()->viewport()->height();
    nastavZoom(qMax(ZoomMin, int(vyska * 100 / stranaPx) / ZoomKrok * ZoomKrok));
}

void FrmNP::UlozNP()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    UlozeniPdf::uloz(dokument(), m_prompt, UlozeniPdf::plan(NavrhNazvuNP(m_plan.zakazka, m_plan.zpusob)));
    QApplication::restoreOverrideCursor();
}

void FrmNP::TiskStitku()
{
    FrmVSP vsp(m_prompt, this);
    vsp.setWindowTitle(QString::fromUtf8(::TitulekStitku));
    ::TiskStitku(vsp.dokument(), m_uloziste, m_plan.zakazka);
    vsp.obnov();
    vsp.exec();
}

void FrmNP::OdepisOdrezky()
{
    try {
        ZapisDoSkladu::zapis(m_uloziste.dataS(), m_uloziste.dataK(), m_prompt, m_plan.zakazka, m_plan.idFormatu);
    } catch (const Error& e) {
        m_prompt.zprava(e.text(), QString(), Prompt::Ikona::Kriticka);
    }
}

void FrmNP::ExportCNC()
{
    const QString slozka = Aplikace::cesta(QStringLiteral("CNC"));
    QDir().mkpath(slozka);
    const QString posledni = Nastaveni::GetSetting(QStringLiteral("Editor"), QStringLiteral("CestaCNCKodu"));
    QString cesta;
    try {
        cesta = m_prompt.soubor(true, QStringLiteral("Uložení CNC kódu..."), posledni.isEmpty() ? slozka : posledni,
                                QString::fromUtf8(ExportCNC::NavrhNazvu), QStringLiteral("CNC kód (*.VPF)"));
    } catch (const Error&) {
        return; // cancelled
    }
    if (cesta.isEmpty())
        return;
    if (QFileInfo::exists(cesta) &&
        m_prompt.zprava(QStringLiteral("Soubor pod tímto názvem již existuje, chcete ho přepsat ?"), QStringLiteral("Upozornění !!!"),
                        Prompt::Ikona::Vykricnik, Prompt::Tlacitka::AnoNe) != Prompt::Odpoved::Ano)
        return;
    Nastaveni::SaveSetting(QStringLiteral("Editor"), QStringLiteral("CestaCNCKodu"), QFileInfo(cesta).absolutePath());
    QApplication::setOverrideCursor(Qt::WaitCursor);
    try {
        const bool zapsano = ExportCNC::zapis(m_uloziste.dataS(), m_uloziste.dataK(), m_plan, cesta);
        QApplication::restoreOverrideCursor();
        // a plan without a usable remnant makes no file; say so rather than leave the user guessing
        if (zapsano)
            m_prompt.zprava(QString::fromUtf8(ExportCNC::Ulozeno), QStringLiteral("Uloženo.."), Prompt::Ikona::Informace);
        else
            m_prompt.zprava(QStringLiteral("Plán nemá žádný zbytek větší než nastavené rozměry odřezku, soubor pro pilu nevznikl."),
                            QStringLiteral("Upozornění !!!"), Prompt::Ikona::Vykricnik);
    } catch (const Error&) {
        QApplication::restoreOverrideCursor();
        m_prompt.zprava(QString::fromUtf8(ExportCNC::ChybaPrevodu), QString(), Prompt::Ikona::Kriticka);
    }
}

void FrmNP::SeznamDilcu()
{
    const QString slozka = Aplikace::cesta(QStringLiteral("Nářezové plány"));
    QDir().mkpath(slozka);
    QString cesta;
    try {
        cesta = m_prompt.soubor(true, QStringLiteral("Uložení seznamu dílců..."), slozka,
                                ::SeznamDilcu::navrhNazvu(m_plan.zakazka), QString::fromUtf8(::SeznamDilcu::Filtr));
    } catch (const Error&) {
        return; // cancelled
    }
    if (cesta.isEmpty())
        return;
    if (!cesta.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive))
        cesta += QStringLiteral(".csv");
    if (QFileInfo::exists(cesta) &&
        m_prompt.zprava(QStringLiteral("Soubor pod tímto názvem již existuje, chcete ho přepsat ?"), QStringLiteral("Upozornění !!!"),
                        Prompt::Ikona::Vykricnik, Prompt::Tlacitka::AnoNe) != Prompt::Odpoved::Ano)
        return;
    try {
        ::SeznamDilcu::uloz(m_uloziste.dataK(), m_plan.zakazka, cesta);
        m_prompt.zprava(QStringLiteral("Seznam dílců byl uložen do ") + cesta, QStringLiteral("Uloženo.."), Prompt::Ikona::Informace);
    } catch (const Error& e) {
        m_prompt.zprava(e.text(), QStringLiteral("Chyba zápisu"), Prompt::Ikona::Kriticka);
    }
}
