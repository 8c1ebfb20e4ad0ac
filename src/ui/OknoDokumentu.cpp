#include "ui/OknoDokumentu.h"

#include "printing/Vykresleni.h"
#include "ui/Ikony.h"

#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QScrollArea>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

// Every page to the printer, scaled from twips to its resolution.
void tisk(const Dokument& dokument, QPrinter& tiskarna)
{
    tiskarna.setFullPage(true);
    tiskarna.setPageOrientation(dokument.naSirku ? QPageLayout::Landscape : QPageLayout::Portrait);
    QPainter p(&tiskarna);
    const double meritko = tiskarna.resolution() / 1440.0;
    for (int i = 1; i <= dokument.PageCount(); ++i) {
        if (i > 1)
            tiskarna.newPage();
        p.save();
        p.scale(meritko, meritko);
        Vykresleni::strana(p, dokument, i);
        p.restore();
    }
}

} // namespace

OknoDokumentu::OknoDokumentu(Prompt& prompt, QWidget* rodic)
    : QDialog(rodic), m_prompt(prompt), m_nastroje(new QToolBar(this)), m_plocha(new QScrollArea(this)), m_obraz(new QLabel)
{
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    m_nastroje->setObjectName(QStringLiteral("tbBorovak"));
    m_nastroje->setIconSize(QSize(28, 28));
    m_plocha->setObjectName(QStringLiteral("VSP"));
    m_plocha->setWidget(m_obraz);
    m_plocha->setAlignment(Qt::AlignCenter);
    m_plocha->setBackgroundRole(QPalette::Dark);
    auto* rozlozeni = new QVBoxLayout(this);
    rozlozeni->setContentsMargins(0, 0, 0, 0);
    rozlozeni->setSpacing(0);
    rozlozeni->addWidget(m_nastroje);
    rozlozeni->addWidget(m_plocha, 1);
    resize(1000, 760);
}

QAction* OknoDokumentu::pridejAkci(const QString& klic, const QString& popis, const QIcon& ikona)
{
    QAction* a = m_nastroje->addAction(ikona, popis);
    a->setObjectName(klic);
    a->setToolTip(popis);
    return a;
}

QAction* OknoDokumentu::akce(const QString& klic) const { return m_nastroje->findChild<QAction*>(klic); }

void OknoDokumentu::pridejStrankovani()
{
    const QColor modra(0x34, 0x65, 0xa4);
    connect(pridejAkci(QStringLiteral("MINUS"), QStringLiteral("Předchozí strana"), Ikony::znacka(QStringLiteral("◀"), modra)),
            &QAction::triggered, this, [this] { nastavStranu(m_strana - 1); });
    m_Text1 = new QLineEdit(this);
    m_Text1->setObjectName(QStringLiteral("Text1"));
    m_Text1->setReadOnly(true);
    m_Text1->setAlignment(Qt::AlignCenter);
    m_Text1->setFixedWidth(80);
    m_Text1->setFocusPolicy(Qt::NoFocus);
    m_nastroje->addWidget(m_Text1);
    connect(pridejAkci(QStringLiteral("PLUS"), QStringLiteral("Další strana"), Ikony::znacka(QStringLiteral("▶"), modra)),
            &QAction::triggered, this, [this] { nastavStranu(m_strana + 1); });
    m_nastroje->addSeparator();
    connect(pridejAkci(QStringLiteral("ZoomPlus"), QStringLiteral("Zvětšit"), Ikony::znacka(QStringLiteral("+"), modra)),
            &QAction::triggered, this, [this] { nastavZoom(m_zoom + ZoomKrok); });
    connect(pridejAkci(QStringLiteral("ZoomMinus"), QStringLiteral("Zmenšit"), Ikony::znacka(QStringLiteral("−"), modra)),
            &QAction::triggered, this, [this] { nastavZoom(m_zoom - ZoomKrok); });
}

void OknoDokumentu::obnov()
{
    m_strana = 1;
    prekresli();
}

void OknoDokumentu::nastavStranu(int strana)
{
    m_strana = qBound(1, strana, qMax(1, m_dokument.PageCount()));
    prekresli();
}

void OknoDokumentu::nastavZoom(int zoom)
{
    m_zoom = qBound(ZoomMin, zoom, ZoomMax);
    prekresli();
}

QString OknoDokumentu::textStrany() const
{
    return QString::number(m_strana) + QStringLiteral(" / ") + QString::number(m_dokument.PageCount());
}

void OknoDokumentu::prekresli()
{
    const int stran = m_dokument.PageCount();
    if (stran > 0)
        m_obraz->setPixmap(QPixmap::fromImage(Vykresleni::obraz(m_dokument, m_strana, m_zoom)));
    else
        m_obraz->clear();
    m_obraz->adjustSize();
    if (m_Text1)
        m_Text1->setText(textStrany());
    if (QAction* a = akce(QStringLiteral("MINUS")))
        a->setEnabled(m_strana > 1);
    if (QAction* a = akce(QStringLiteral("PLUS")))
        a->setEnabled(m_strana < stran);
    if (QAction* a = akce(QStringLiteral("ZoomPlus")))
        a->setEnabled(m_zoom < ZoomMax);
    if (QAction* a = akce(QStringLiteral("ZoomMinus")))
        a->setEnabled(m_zoom > ZoomMin);
}

void OknoDokumentu::tiskni()
{
    QPrinter tiskarna(QPrinter::HighResolution);
    tiskarna.setPageSize(QPageSize(QPageSize::A4));
    tiskarna.setFromTo(1, m_dokument.PageCount());
    QPrintDialog dialog(&tiskarna, this);
    if (dialog.exec() == QDialog::Accepted)
        tisk(m_dokument, tiskarna);
}

void OknoDokumentu::keyPressEvent(QKeyEvent* e)
{
    auto stiskni = [this](const char* klic) {
        if (QAction* a = akce(QLatin1String(klic)); a && a->isEnabled())
            a->trigger();
    };
    switch (e->key()) {
    case Qt::Key_Escape: reject(); break;
    case Qt::Key_PageUp:
    case Qt::Key_Right: stiskni("PLUS"); break;
    case Qt::Key_PageDown:
    case Qt::Key_Left: stiskni("MINUS"); break;
    default: QDialog::keyPressEvent(e);
    }
}
