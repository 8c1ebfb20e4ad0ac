#include "ui/FrmNP.h"

#include "core/Nastaveni.h"
#include "core/Uloziste.h"
#include "planoutput/Stitky.h"
#include "printing/UlozeniPdf.h"
#include "ui/FrmVSP.h"
#include "ui/Ikony.h"

#include <QAction>
#include <QApplication>
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
    pridejAkci(QStringLiteral("Sklad"), QStringLiteral("Odepsat odřezky do skladu"),
               Ikony::znacka(QStringLiteral("▤"), QColor(0x8f, 0x59, 0x02)))
        ->setEnabled(false);
    pridejAkci(QStringLiteral("CNC"), QStringLiteral("Export pro pilu (VPF)"), Ikony::znacka(QStringLiteral("CNC"), seda))
        ->setEnabled(false);
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
