#include "ui/FrmCenik.h"

#include "catalogues/Cenik.h"
#include "catalogues/Knihovna.h"
#include "core/Error.h"
#include "core/Nastaveni.h"
#include "core/Prompt.h"
#include "core/Uloziste.h"
#include "printing/Obrazky.h"
#include "ui/FrmNahled.h"
#include "ui/FrmPolozka.h"
#include "ui/FrmVSP.h"

#include <QCheckBox>
#include <QEvent>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

const char* const razeni[][2] = {{"nazev", "Název"}, {"Kod", "Kód"}, {"Cena", "Cena"}, {"Jednotka", "Jednotka"}};
const char* const vybery[][2] = {{Cenik::Skupiny[0], Cenik::NazvySkupin[0]},
                                 {Cenik::Skupiny[1], Cenik::NazvySkupin[1]},
                                 {Cenik::Skupiny[2], Cenik::NazvySkupin[2]},
                                 {"VSE", "Vše"}};

} // namespace

// The item's detail: code, prices and its two pictures (a click shows one at full size).
QGroupBox* FrmCenik::vytvorDetail()
{
    m_lblKod = new QLabel;
    m_lblKod->setObjectName(QStringLiteral("lblKod"));
    m_lblCena = new QLabel;
    m_lblCena->setObjectName(QStringLiteral("lblCena"));
    m_lblCenaDPH = new QLabel;
    m_lblCenaDPH->setObjectName(QStringLiteral("lblCenaDPH"));
    m_lblDPH = new QLabel(QStringLiteral("Cena s DPH (") +
                          Nastaveni::GetSetting(QStringLiteral("Setting2"), QStringLiteral("DPH")) + QStringLiteral("%)"));
    auto* detailBox = new QGroupBox(QStringLiteral("Detail položky"));
    auto* f = new QFormLayout(detailBox);
    f->addRow(QStringLiteral("Kód:"), m_lblKod);
    f->addRow(QStringLiteral("Cena bez DPH:"), m_lblCena);
    f->addRow(m_lblDPH, m_lblCenaDPH);
    auto* obrazky = new QGridLayout;
    for (int i = 0; i < 2; ++i) {
        m_lblObr[i] = new QLabel;
        m_lblObr[i]->setObjectName(QStringLiteral("lblObr%1").arg(i + 1));
        m_lblObr[i]->setAlignment(Qt::AlignCenter);
        obrazky->addWidget(m_lblObr[i], 1, i);
        m_img[i] = new QLabel;
        m_img[i]->setObjectName(QStringLiteral("img1_%1").arg(i));
        m_img[i]->setFixedSize(160, 120);
        m_img[i]->setAlignment(Qt::AlignCenter);
        m_img[i]->setFrameShape(QFrame::StyledPanel);
        m_img[i]->setToolTip(QStringLiteral("kliknutím zobrazíte detail vybraného materiálu"));
        m_img[i]->setCursor(Qt::PointingHandCursor);
        m_img[i]->installEventFilter(this);
        obrazky->addWidget(m_img[i], 0, i);
    }
    f->addRow(obrazky);
    return detailBox;
}

FrmCenik::FrmCenik(Uloziste& uloziste, Prompt& prompt, QWidget* rodic) : FrmCenik(uloziste.cenik(), prompt, rodic)
{
    m_zalohy = std::make_unique<OvladacDat>(uloziste, prompt, [this, &uloziste](Schema::Soubor) {
        m_cenik = &uloziste.cenik();
        NaplnCenik();
    });
    for (const char* klic : {"ZD", "OZ"})
        findChild<QAction*>(QLatin1String(klic))->setEnabled(true);
}

FrmCenik::FrmCenik(Database& cenik, Prompt& prompt, QWidget* rodic, const QString& volajici)
    : QDialog(rodic), m_cenik(&cenik), m_prompt(prompt)
{
    setObjectName(QStringLiteral("frmCenik"));
    setWindowTitle(QStringLiteral("Ceník borováckých materiálů"));
    auto* nastroje = new QToolBar;
    for (auto [klic, text] : {std::pair{"NPoložka", "Nová položka"},
                              {"UPoložky", "Upravit položku"},
                              {"OPoložky", "Odstranit položku"},
                              {"ZD", "Záloha ceníku"},
                              {"OZ", "Obnova ceníku"},
                              {"TiskPC", "Tisk ceníku"},
                              {"Konec", "Konec"}}) {
        QAction* a = nastroje->addAction(QString::fromUtf8(text));
        a->setObjectName(QString::fromUtf8(klic));
        a->setEnabled(QString::fromUtf8(klic) != QLatin1String("ZD") && QString::fromUtf8(klic) != QLatin1String("OZ"));
        connect(a, &QAction::triggered, this, [this, k = QString::fromUtf8(klic)] { prikaz(k); });
    }
    // the choosing keys, on a row of their own: the caller's own, and VM (any material) for every caller
    auto* volba = new QToolBar;
    volba->setVisible(!volajici.isEmpty());
    for (auto [klic, text] :
         {std::pair{"VM", "Vybrat materiál"}, {"VF", "Vybrat formát"}, {"VH", "Vybrat hranu"}, {"EP", "Vybrat příslušenství"}}) {
        QAction* a = volba->addAction(QString::fromUtf8(text));
        a->setObjectName(QLatin1String(klic));
        a->setEnabled(!volajici.isEmpty() && (volajici == QLatin1String(klic) || QLatin1String(klic) == QLatin1String("VM")));
        connect(a, &QAction::triggered, this, [this, k = QString::fromLatin1(klic)] { prikaz(k); });
    }
    m_lstCenik = new QListWidget;
    m_lstCenik->setObjectName(QStringLiteral("lstCenik"));
    m_lstCenik->setToolTip(QStringLiteral("kliknutím zobrazíte detail vybraného materiálu"));
    m_lstCenik->setMinimumWidth(300);
    connect(m_lstCenik, &QListWidget::currentTextChanged, this, &FrmCenik::detail);
    m_chVyber = new QCheckBox(QStringLiteral("Vyhledat:"));
    m_chVyber->setObjectName(QStringLiteral("chVyber"));
    m_txtMaterial = new QLineEdit;
    m_txtMaterial->setObjectName(QStringLiteral("txtMaterial"));
    connect(m_txtMaterial, &QLineEdit::textChanged, this, &FrmCenik::NaplnCenik);
    connect(m_chVyber, &QCheckBox::toggled, this, &FrmCenik::NaplnCenik);
    auto skupinaRadiu = [this](const QString& titulek, const char* const(*volby)[2], bool jeRazeni) {
        auto* box = new QGroupBox(titulek);
        auto* l = new QVBoxLayout(box);
        const QString ulozene = jeRazeni ? Cenik::ulozeneRazeni() : Cenik::ulozenyVyber();
        for (int i = 0; i < 4; ++i) {
            auto* r = new QRadioButton(QString::fromUtf8(volby[i][1]));
            r->setObjectName(QStringLiteral("opt") + QLatin1String(volby[i][0]));
            r->setChecked(ulozene == QLatin1String(volby[i][0]));
            connect(r, &QRadioButton::toggled, this, [this, r, hodnota = QString::fromLatin1(volby[i][0]), jeRazeni](bool ano) {
                if (!ano)
                    return; // VyberRazeniCeniku: saved at once, then the list again
                Cenik::VyberRazeniCeniku(jeRazeni ? Cenik::ulozenyVyber() : hodnota, jeRazeni ? hodnota : Cenik::ulozeneRazeni());
                NaplnCenik();
            });
            l->addWidget(r);
        }
        return box;
    };
    auto* detailBox = vytvorDetail();
    auto* hledani = new QHBoxLayout;
    hledani->addWidget(m_chVyber);
    hledani->addWidget(m_txtMaterial);
    auto* vlevo = new QVBoxLayout;
    vlevo->addLayout(hledani);
    vlevo->addWidget(m_lstCenik, 1);
    auto* vpravo = new QVBoxLayout;
    auto* radia = new QHBoxLayout;
    radia->addWidget(skupinaRadiu(QStringLiteral("Řazení"), razeni, true));
    radia->addWidget(skupinaRadiu(QStringLiteral("Zobrazit"), vybery, false));
    vpravo->addLayout(radia);
    vpravo->addWidget(detailBox);
    vpravo->addStretch();
    auto* telo = new QHBoxLayout;
    telo->addLayout(vlevo, 1);
    telo->addLayout(vpravo);
    auto* l = new QVBoxLayout(this);
    l->addWidget(nastroje);
    l->addWidget(volba);
    l->addLayout(telo);
    NaplnCenik();
}

void FrmCenik::NaplnCenik()
{
    const QString predtim = m_lstCenik->currentItem() ? m_lstCenik->currentItem()->text() : QString();
    m_lstCenik->clear();
    m_lstCenik->addItems(m_chVyber->isChecked()
                             ? Cenik::hledej(cenik(), m_txtMaterial->text())
                             : Cenik::NaplnitSeznamCeniku(cenik(), Cenik::ulozenyVyber(), Cenik::ulozeneRazeni()));
    const auto nalezene = m_lstCenik->findItems(predtim, Qt::MatchExactly);
    m_lstCenik->setCurrentRow(nalezene.isEmpty() ? 0 : m_lstCenik->row(nalezene.first()));
}

void FrmCenik::detail(const QString& nazev)
{
    const auto p = Cenik::nacti(cenik(), nazev);
    const double dph = Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("DPH"));
    const QString mena = Nastaveni::GetSetting(QStringLiteral("Setting2"), QStringLiteral("Mena"));
    m_lblKod->setText(p ? QString::number(p->kod) : QString());
    m_lblCena->setText(p ? Cenik::textCeny(p->cena, mena, p->jednotka) : QString());
    m_lblCenaDPH->setText(p ? Cenik::textCeny(Cenik::cenaSDPH(p->cena, dph), mena, p->jednotka) : QString());
    m_obr[0] = p ? p->obr1 : 0;
    m_obr[1] = p ? p->obr2 : 0;
    for (int i = 0; i < 2; ++i) {
        m_lblObr[i]->setText(m_obr[i] ? Knihovna::nazev(cenik(), Knihovna::Druh::Obrazky, m_obr[i]) : QString());
        const QImage obr = m_obr[i] ? Knihovna::obrazek(cenik(), Knihovna::Druh::Obrazky, m_obr[i]) : QImage();
        if (obr.isNull())
            m_img[i]->clear();
        else
            m_img[i]->setPixmap(QPixmap::fromImage(Obrazky::vepsany(obr, m_img[i]->size())));
    }
}

bool FrmCenik::eventFilter(QObject* o, QEvent* e)
{
    for (int i = 0; i < 2; ++i)
        if (o == m_img[i] && e->type() == QEvent::MouseButtonRelease && m_obr[i]) {
            const QImage obr = Knihovna::obrazek(cenik(), Knihovna::Druh::Obrazky, m_obr[i]);
            if (!obr.isNull()) {
                FrmNahled nahled(obr, m_lstCenik->currentItem() ? m_lstCenik->currentItem()->text() : QString(), m_prompt, this);
                nahled.exec();
            }
            return true;
        }
    return QDialog::eventFilter(o, e);
}

void FrmCenik::prikaz(const QString& klic)
{
    const QString nazev = m_lstCenik->currentItem() ? m_lstCenik->currentItem()->text() : QString();
    try {
        if (klic == QStringLiteral("NPoložka"))
            polozka(QString());
        else if (klic == QStringLiteral("UPoložky") && !nazev.isEmpty())
            polozka(nazev);
        else if (klic == QStringLiteral("OPoložky") && !nazev.isEmpty()) {
            if (Cenik::SmazatPolozku(cenik(), m_prompt, nazev))
                NaplnCenik();
        } else if (klic == QLatin1String("ZD") && m_zalohy) {
            m_zalohy->ZalohaCeniku();
        } else if (klic == QLatin1String("OZ") && m_zalohy) {
            m_zalohy->ObnovaCeniku();
        } else if (klic == QLatin1String("TiskPC")) {
            FrmVSP vsp(m_prompt, this);
            vsp.setWindowTitle(QString::fromUtf8(Cenik::TitulekVypisu));
            Cenik::TiskCeniku(vsp.dokument(), cenik(), Cenik::ulozenyVyber(), Cenik::ulozeneRazeni());
            vsp.obnov();
            vsp.exec();
        } else if (QStringList{QStringLiteral("VM"), QStringLiteral("VF"), QStringLiteral("VH"), QStringLiteral("EP")}.contains(
                       klic)) {
            if (nazev.isEmpty())
                return;
            m_vybrano = nazev;
            accept();
        } else if (klic == QLatin1String("Konec"))
            close();
    } catch (const Error& e) {
        m_prompt.zprava(e.text(), QStringLiteral("Chyba"), Prompt::Ikona::Kriticka);
    }
}

bool FrmCenik::polozka(const QString& staryNazev)
{
    FrmPolozka d(cenik(), m_prompt, staryNazev, this);
    if (d.exec() != QDialog::Accepted)
        return false;
    NaplnCenik();
    if (const auto n = m_lstCenik->findItems(d.nazev(), Qt::MatchFixedString); !n.isEmpty())
        m_lstCenik->setCurrentItem(n.first());
    return true;
}
