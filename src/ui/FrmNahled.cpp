#include "ui/FrmNahled.h"

#include "printing/TiskObrazku.h"
#include "ui/FrmVSP.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QVBoxLayout>

FrmNahled::FrmNahled(const QImage& obrazek, const QString& titulek, Prompt& prompt, QWidget* rodic)
    : QDialog(rodic), m_obrazek(obrazek), m_prompt(prompt)
{
    setObjectName(QStringLiteral("frmNahled"));
    setWindowTitle(titulek);
    auto* menu = new QMenuBar;
    QAction* tisk = menu->addAction(QStringLiteral("&Tisk obrázku"));
    tisk->setObjectName(QStringLiteral("TiskObrazku"));
    connect(tisk, &QAction::triggered, this, &FrmNahled::TiskObrazku);
    QAction* konec = menu->addAction(QStringLiteral("&Konec"));
    connect(konec, &QAction::triggered, this, &QDialog::close);
    m_Image1 = new QLabel;
    m_Image1->setObjectName(QStringLiteral("Image1"));
    m_Picture1 = new QScrollArea;
    m_Picture1->setObjectName(QStringLiteral("Picture1"));
    m_Picture1->setWidget(m_Image1);
    m_Picture1->setAlignment(Qt::AlignCenter);
    m_Picture1->horizontalScrollBar()->setObjectName(QStringLiteral("HScroll1"));
    m_Picture1->verticalScrollBar()->setObjectName(QStringLiteral("VScroll1"));
    m_UDS = new QSpinBox;
    m_UDS->setObjectName(QStringLiteral("UDS"));
    m_UDS->setRange(10, 400);
    m_UDS->setSingleStep(10);
    m_UDS->setSuffix(QStringLiteral(" %"));
    m_UDS->setValue(100);
    connect(m_UDS, &QSpinBox::valueChanged, this, &FrmNahled::priblizeni);
    auto* dole = new QHBoxLayout;
    dole->addWidget(new QLabel(QStringLiteral("Zvětšení:")));
    dole->addWidget(m_UDS);
    dole->addStretch();
    dole->addWidget(new QLabel(QStringLiteral("%1 × %2 px").arg(obrazek.width()).arg(obrazek.height())));
    auto* l = new QVBoxLayout(this);
    l->setMenuBar(menu);
    l->addWidget(m_Picture1, 1);
    l->addLayout(dole);
    priblizeni(100);
    // natural size up to what a common screen holds; the scroll bars show the rest
    resize(qBound(320, obrazek.width() + 40, 1000), qBound(240, obrazek.height() + 100, 720));
}

void FrmNahled::priblizeni(int procent)
{
    if (m_UDS->value() != procent)
        m_UDS->setValue(procent); // comes back here through valueChanged
    if (m_obrazek.isNull()) {
        m_Image1->clear();
        m_Image1->resize(0, 0);
        return;
    }
    const QSize velikost = (QSizeF(m_obrazek.size()) * procent / 100.0).toSize().expandedTo(QSize(1, 1));
    m_Image1->setPixmap(QPixmap::fromImage(
        procent == 100 ? m_obrazek : m_obrazek.scaled(velikost, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)));
    m_Image1->resize(velikost);
}

void FrmNahled::TiskObrazku()
{
    FrmVSP vsp(m_prompt, this);
    vsp.setWindowTitle(windowTitle());
    TiskObrazku::tiskni(vsp.dokument(), m_obrazek);
    vsp.obnov();
    vsp.exec();
}
