#include "ui/FrmNovy.h"

#include "ui/Ikony.h"

#include <QApplication>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSlider>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace {

QPushButton* tlacitko(QWidget* rodic, const char* nazev, const QString& text, const QString& tip)
{
    auto* b = new QPushButton(text, rodic);
    b->setObjectName(QLatin1String(nazev));
    b->setToolTip(tip);
    return b;
}

} // namespace

FrmNovy::FrmNovy(QWidget* rodic) : QDialog(rodic)
{
    setObjectName(QStringLiteral("frmNovy"));
    setModal(true);
    m_ramce = new QStackedWidget(this);
    auto* hlavni = new QVBoxLayout(this);
    hlavni->addWidget(m_ramce);

    // fraVolbaNP
    m_fraVolbaNP = new QWidget;
    m_fraVolbaNP->setObjectName(QStringLiteral("fraVolbaNP"));
    m_cmbMaterialNP = new QComboBox;
    m_cmbMaterialNP->setObjectName(QStringLiteral("cmbMaterialNP"));
    m_cmbMaterialNP->setMinimumWidth(320);
    m_cmbZpusobRezani = new QComboBox;
    m_cmbZpusobRezani->setObjectName(QStringLiteral("cmbZpusobRezani"));
    m_cmbZpusobRezani->addItems(
        {QStringLiteral("kombinovaně"), QStringLiteral("podélné řezy"), QStringLiteral("příčné řezy"), QStringLiteral("úsporně")});
    m_slVolba = new QSlider(Qt::Horizontal);
    m_slVolba->setObjectName(QStringLiteral("slVolba"));
    m_slVolba->setTickPosition(QSlider::TicksBelow);
    auto* cisloVolby = new QLabel(QStringLiteral("0"));
    connect(m_slVolba, &QSlider::valueChanged, cisloVolby, [cisloVolby](int v) { cisloVolby->setNum(v); });
    auto* volbaRadek = new QHBoxLayout;
    volbaRadek->addWidget(m_slVolba, 1);
    volbaRadek->addWidget(cisloVolby);
    auto* formular = new QFormLayout;
    formular->addRow(QStringLiteral("Formát:"), m_cmbMaterialNP);
    formular->addRow(QStringLiteral("Způsob řezání:"), m_cmbZpusobRezani);
    formular->addRow(QStringLiteral("Další možnosti skladby NP:"), volbaRadek);
    auto* ok = tlacitko(m_fraVolbaNP, "cmdOKNP", QStringLiteral("Pokračuj"), QStringLiteral("Potvrzení volby"));
    auto* zpet = tlacitko(m_fraVolbaNP, "cmdStornoVNP", QStringLiteral("Zpět"), QStringLiteral("Návrat zpět "));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(zpet, &QPushButton::clicked, this, &QDialog::reject);
    auto* tlacitka = new QHBoxLayout;
    tlacitka->addStretch();
    tlacitka->addWidget(ok);
    tlacitka->addWidget(zpet);
    auto* volba = new QVBoxLayout(m_fraVolbaNP);
    volba->addLayout(formular);
    m_tblSrovnani = new TabulkaSrovnani(m_fraVolbaNP);
    volba->addWidget(m_tblSrovnani);
    volba->addLayout(tlacitka);
    m_ramce->addWidget(m_fraVolbaNP);
    vytvorOptimalizaci();
}

// fraOptimalizace: the progress of a plan run, its Storno and the trembling icon.
void FrmNovy::vytvorOptimalizaci()
{
    m_fraOptimalizace = new QWidget;
    m_fraOptimalizace->setObjectName(QStringLiteral("fraOptimalizace"));
    m_imgIkona = new QLabel(m_fraOptimalizace);
    m_imgIkona->setObjectName(QStringLiteral("imgIkona"));
    m_imgIkona->setPixmap(Ikony::proKlic("NP").pixmap(48, 48));
    m_imgIkona->setGeometry(12, 14, 48, 48);
    m_lblNP = new QLabel(m_fraOptimalizace);
    m_lblNP->setObjectName(QStringLiteral("lblNP"));
    m_lblNP->setGeometry(76, 14, 340, 22);
    m_progressBar1 = new QProgressBar(m_fraOptimalizace);
    m_progressBar1->setObjectName(QStringLiteral("ProgressBar1"));
    m_progressBar1->setGeometry(76, 42, 340, 20);
    m_progressBar1->setRange(0, 100);
    m_progressBar1->setVisible(false);
    auto* storno = tlacitko(m_fraOptimalizace, "cmdStornoNP", QStringLiteral("Storno"),
                            QStringLiteral("Zastavení optimalizace a návrat zpět"));
    storno->setGeometry(326, 76, 90, 28);
    connect(storno, &QPushButton::clicked, this, [this] {
        m_storno = true;
        hide();
    });
    m_fraOptimalizace->setFixedSize(430, 114);
    m_ramce->addWidget(m_fraOptimalizace);
    m_timIkona = new QTimer(this);
    m_timIkona->setObjectName(QStringLiteral("TimIkona"));
    m_timIkona->setInterval(400);
    connect(m_timIkona, &QTimer::timeout, this, [this] {
        // the sign of life: a step down and to the left, and back on the next tick
        const bool pryc = m_imgIkona->property("Tag").toString().isEmpty();
        m_imgIkona->move(pryc ? m_ikonaPozice + QPoint(-3, 3) : m_ikonaPozice);
        m_imgIkona->setProperty("Tag", pryc ? QStringLiteral("1") : QString());
    });
}

void FrmNovy::ukaz(QWidget* ramec, const QString& titulek, int navic)
{
    m_ramce->setCurrentWidget(ramec);
    setWindowTitle(titulek);
    adjustSize();
    resize(ramec->sizeHint().width() + 20, ramec->sizeHint().height() + navic);
}

bool FrmNovy::zvolNP(const std::vector<FormatNP>& formaty, const std::vector<int>& pocetDesek, VolbaNP& volba,
                     TabulkaSrovnani::Vypocet srovnej)
{
    m_tblSrovnani->vypocet(std::move(srovnej));
    m_cmbMaterialNP->clear();
    for (const FormatNP& f : formaty)
        m_cmbMaterialNP->addItem(f.text);
    auto zmenaFormatu = [this, &pocetDesek, &formaty](int i) {
        if (i >= 0 && i < int(formaty.size()))
            m_tblSrovnani->spocitej(formaty[i].ID);
        const int max = i >= 0 && i < int(pocetDesek.size()) ? pocetDesek[i] : 0;
        m_slVolba->setMaximum(max);
        m_slVolba->setValue(0);
        m_slVolba->setFocusPolicy(max == 1 ? Qt::NoFocus : Qt::StrongFocus);
    };
    const auto spojeni = connect(m_cmbMaterialNP, &QComboBox::currentIndexChanged, this, zmenaFormatu);
    m_cmbMaterialNP->setCurrentIndex(0);
    zmenaFormatu(0);
    m_cmbZpusobRezani->setCurrentIndex(0);
    ukaz(m_fraVolbaNP, QStringLiteral("Tvorba nářezového plánu"), 20);
    const bool ok = exec() == QDialog::Accepted;
    m_tblSrovnani->zastav();
    disconnect(spojeni);
    if (!ok)
        return false;
    // equal texts of two formats: the first one wins, as the lookup by text always did
    const int i = m_cmbMaterialNP->findText(m_cmbMaterialNP->currentText());
    volba.IDFormatuNP = formaty.at(i).ID;
    volba.VolbaNPDeska = m_slVolba->value();
    static const ZpusobNP zpusoby[] = {ZpusobNP::Kombinovane, ZpusobNP::PodelneRezy, ZpusobNP::PricneRezy,
                                       ZpusobNP::Usporne};
    volba.zpusob = zpusoby[m_cmbZpusobRezani->currentIndex()];
    return true;
}

void FrmNovy::optimalizuj(ZpusobNP zpusob, const std::function<void()>& beh)
{
    static const char* const titulky[] = {"Optimalizace nářezového plánu - podélné řezy",
                                          "Optimalizace nářezového plánu - příčné řezy",
                                          "Optimalizace nářezového plánu - kombinovaně",
                                          "Optimalizace nářezového plánu - úsporně"};
    m_storno = false;
    m_lblNP->setText(QStringLiteral("Vytváření soupisu tabulí..."));
    m_progressBar1->setVisible(false);
    m_progressBar1->setValue(0);
    ukaz(m_fraOptimalizace, QString::fromUtf8(titulky[int(zpusob)]), 30);
    setCursor(Qt::BusyCursor);
    QTimer::singleShot(1, this, [this, beh] {
        m_ikonaPozice = m_imgIkona->pos();
        m_timIkona->start();
        beh();
        m_timIkona->stop();
        m_imgIkona->move(m_ikonaPozice);
        accept();
    });
    exec();
}

void FrmNovy::popisek(const QString& text) { m_lblNP->setText(text); }

void FrmNovy::hodnota(double h) { m_progressBar1->setValue(int(h)); }

double FrmNovy::maximum() const { return m_progressBar1->maximum(); }

void FrmNovy::zobraz() { m_progressBar1->setVisible(true); }

bool FrmNovy::prerusit()
{
    QCoreApplication::processEvents();
    return m_storno;
}
