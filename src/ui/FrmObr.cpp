#include "ui/FrmObr.h"

#include "core/Error.h"
#include "core/Prompt.h"
#include "core/Soubory.h"
#include "printing/Obrazky.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QVBoxLayout>

FrmObr::FrmObr(Database& cenik, Prompt& prompt, Knihovna::Druh druh, int ide, bool zVolby, QWidget* rodic)
    : QDialog(rodic), m_cenik(cenik), m_prompt(prompt), m_druh(druh)
{
    const bool obrazky = druh == Knihovna::Druh::Obrazky;
    setObjectName(obrazky ? QStringLiteral("frmObr") : QStringLiteral("frmSchema"));
    m_Image1 = new QLabel;
    m_Image1->setObjectName(QStringLiteral("Image1"));
    m_Image1->setAlignment(Qt::AlignCenter);
    m_Image1->setMinimumSize(480, 360);
    m_Image1->setFrameShape(QFrame::StyledPanel);
    m_Image1->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_Image1, &QLabel::customContextMenuRequested, this, [this](const QPoint& bod) {
        QMenu menu;
        menu.addAction(QStringLiteral("Schránka"), this, [this] { QApplication::clipboard()->setImage(m_obrazek); });
        menu.exec(m_Image1->mapToGlobal(bod));
    });
    m_HScroll1 = new QScrollBar(Qt::Horizontal);
    m_HScroll1->setObjectName(QStringLiteral("HScroll1"));
    m_lblPozice = new QLabel;
    m_lblPozice->setObjectName(QStringLiteral("lblPozice"));
    m_UDS = new QSpinBox;
    m_UDS->setObjectName(QStringLiteral("UDS"));
    m_UDS->setRange(10, 400);
    m_UDS->setSingleStep(25);
    m_UDS->setValue(100);
    m_UDS->setSuffix(QStringLiteral(" %"));
    auto tlacitko = [this](const char* nazev, const QString& text) {
        auto* b = new QPushButton(text);
        b->setObjectName(QLatin1String(nazev));
        return b;
    };
    auto* cmdN = tlacitko("cmdN", obrazky ? QStringLiteral("Nový obrázek...") : QStringLiteral("Nové schema..."));
    auto* Command2 = tlacitko("Command2", QStringLiteral("Smazat"));
    auto* cmdV = tlacitko("cmdV", QStringLiteral("Vybrat"));
    auto* Command1 = tlacitko("Command1", QStringLiteral("Bez obrázku"));
    auto* cmdS = tlacitko("cmdS", QStringLiteral("Zpět"));
    cmdV->setVisible(zVolby);
    Command1->setVisible(zVolby);
    cmdS->setVisible(zVolby);
    connect(cmdN, &QPushButton::clicked, this, &FrmObr::pridej);
    connect(Command2, &QPushButton::clicked, this, &FrmObr::smaz);
    connect(cmdV, &QPushButton::clicked, this, [this] {
        const int i = m_HScroll1->value();
        if (i < int(m_zaznamy.size())) {
            m_volba = m_zaznamy[size_t(i)].ide;
            accept();
        }
    });
    connect(Command1, &QPushButton::clicked, this, [this] {
        m_volba = 0;
        accept();
    });
    connect(cmdS, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_HScroll1, &QScrollBar::valueChanged, this, &FrmObr::ukaz);
    connect(m_UDS, &QSpinBox::valueChanged, this, &FrmObr::ukaz);
    auto* dole = new QHBoxLayout;
    dole->addWidget(m_HScroll1, 1);
    dole->addWidget(m_lblPozice);
    dole->addWidget(new QLabel(QStringLiteral("Zvětšení:")));
    dole->addWidget(m_UDS);
    auto* tlacitka = new QHBoxLayout;
    for (QPushButton* b : {cmdN, Command2})
        tlacitka->addWidget(b);
    tlacitka->addStretch();
    for (QPushButton* b : {cmdV, Command1, cmdS})
        tlacitka->addWidget(b);
    auto* l = new QVBoxLayout(this);
    l->addWidget(m_Image1, 1);
    l->addLayout(dole);
    l->addLayout(tlacitka);
    nacti(ide);
}

void FrmObr::nacti(int ide)
{
    m_zaznamy = Knihovna::seznam(m_cenik, m_druh);
    m_HScroll1->setEnabled(!m_zaznamy.empty());
    m_HScroll1->setRange(0, qMax(0, int(m_zaznamy.size()) - 1));
    int pozice = 0;
    for (size_t i = 0; i < m_zaznamy.size(); ++i)
        if (m_zaznamy[i].ide == ide)
            pozice = int(i);
    if (m_HScroll1->value() == pozice)
        ukaz();
    else
        m_HScroll1->setValue(pozice);
}

void FrmObr::ukaz()
{
    const int i = m_HScroll1->value();
    if (i >= int(m_zaznamy.size())) {
        m_obrazek = QImage();
        m_Image1->clear();
        m_lblPozice->setText(QStringLiteral("0 / 0"));
        setWindowTitle(m_druh == Knihovna::Druh::Obrazky ? QStringLiteral("Obrázky ceníku") : QStringLiteral("Schemata sestav"));
        return;
    }
    const Knihovna::Zaznam& z = m_zaznamy[size_t(i)];
    m_lblPozice->setText(QStringLiteral("%1 / %2").arg(i + 1).arg(m_zaznamy.size()));
    setWindowTitle(z.nazev);
    m_obrazek = Knihovna::obrazek(m_cenik, m_druh, z.ide);
    if (m_obrazek.isNull()) {
        m_Image1->clear(); // a stored picture that does not decode: an empty frame
        return;
    }
    const QSize ramec = m_Image1->contentsRect().size() * (m_UDS->value() / 100.0);
    m_Image1->setPixmap(QPixmap::fromImage(Obrazky::vepsany(m_obrazek, ramec)));
}

void FrmObr::pridej()
{
    try {
        const QString soubor = m_prompt.soubor(false, QStringLiteral("Vyberte obrázek"), QString(), QString(),
                                               QStringLiteral("Soubory obrázků  (*.jpg *.jpeg *.png *.bmp *.gif *.wmf)"));
        const QByteArray bajty = Soubory::nacti(soubor);
        const QImage nahled = Obrazky::dekoduj(bajty);
        if (!nahled.isNull())
            m_Image1->setPixmap(QPixmap::fromImage(Obrazky::vepsany(nahled, m_Image1->contentsRect().size())));
        if (m_prompt.zprava(QStringLiteral("Chcete obrázek uložit do databáze?  "), QStringLiteral("Uložení nového obrázku"),
                            Prompt::Ikona::Otaznik, Prompt::Tlacitka::AnoNe) != Prompt::Odpoved::Ano) {
            ukaz();
            return;
        }
        const int ide = Knihovna::pridej(m_cenik, m_prompt, m_druh, QFileInfo(soubor).fileName(), bajty);
        nacti(ide ? ide : (m_zaznamy.empty() ? 0 : m_zaznamy[size_t(m_HScroll1->value())].ide));
    } catch (const Error& e) {
        if (e.cislo() != Chyba::Zruseno)
            m_prompt.zprava(e.text(), QStringLiteral("Chyba"), Prompt::Ikona::Kriticka);
    }
}

void FrmObr::smaz()
{
    const int i = m_HScroll1->value();
    if (i >= int(m_zaznamy.size()))
        return;
    if (m_prompt.zprava(QStringLiteral("Chcete opravdu obrázek smazat z databáze? "), QStringLiteral("Smazání obrázku"),
                        Prompt::Ikona::Otaznik, Prompt::Tlacitka::AnoNe) != Prompt::Odpoved::Ano)
        return;
    Knihovna::smaz(m_cenik, m_druh, m_zaznamy[size_t(i)].ide);
    const auto zbyle = Knihovna::seznam(m_cenik, m_druh);
    nacti(zbyle.empty() ? 0 : zbyle.back().ide);
}
