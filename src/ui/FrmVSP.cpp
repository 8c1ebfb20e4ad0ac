#include "ui/FrmVSP.h"

#include "printing/UlozeniPdf.h"
#include "ui/Ikony.h"

#include <QAction>
#include <QApplication>
#include <QToolBar>

FrmVSP::FrmVSP(Prompt& prompt, QWidget* rodic) : OknoDokumentu(prompt, rodic)
{
    setObjectName(QStringLiteral("frmVSP"));
    connect(pridejAkci(QStringLiteral("TISK"), QStringLiteral("Tisk"), Ikony::znacka(QStringLiteral("Tisk"), QColor(0x55, 0x57, 0x53))),
            &QAction::triggered, this, &FrmVSP::tiskni);
    connect(pridejAkci(QStringLiteral("Ulozeni"), QStringLiteral("Uložit jako PDF"),
                       Ikony::znacka(QStringLiteral("PDF"), QColor(0xcc, 0x00, 0x00))),
            &QAction::triggered, this, &FrmVSP::UlozitVypisPDF);
    nastroje()->addSeparator();
    pridejStrankovani();
}

void FrmVSP::UlozitVypisPDF()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    UlozeniPdf::Zpravy z = UlozeniPdf::vypis();
    z.navrh = windowTitle() + QStringLiteral(".pdf");
    UlozeniPdf::uloz(dokument(), m_prompt, z);
    QApplication::restoreOverrideCursor();
}
