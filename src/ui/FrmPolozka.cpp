#include "ui/FrmPolozka.h"

#include "catalogues/Cenik.h"
#include "catalogues/Knihovna.h"
#include "core/Error.h"
#include "core/Nastaveni.h"
#include "core/Prompt.h"
#include "printing/Obrazky.h"
#include "ui/FrmObr.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

const char* const Znacka[] = {"N", "D"}; // the caller's mark of picture 1 and 2

} // namespace

FrmPolozka::FrmPolozka(Database& cenik, Prompt& prompt, const QString& staryNazev, QWidget* rodic)
    : QDialog(rodic), m_cenik(cenik), m_prompt(prompt), m_staryNazev(staryNazev)
{
    setObjectName(QStringLiteral("frmPolozka"));
    setWindowTitle(staryNazev.isNull() ? QStringLiteral(" Přidání nové položky ...") : QStringLiteral(" Upravení položky ..."));
    const Cenik::Polozka p = staryNazev.isNull() ? Cenik::Polozka{} : Cenik::nacti(cenik, staryNazev).value_or(Cenik::Polozka{});
    auto pole = [](const char* jmeno, const QString& text) {
        auto* e = new QLineEdit(text);
        e->setObjectName(QLatin1String(jmeno));
        return e;
    };
    m_txtNazev = pole("txtNazev", p.nazev);
    m_txtNazev->setMaxLength(Cenik::MaxNazev + 1); // one more, so that the check's message can be reached
    m_txtNazev->setMinimumWidth(320);
    m_txtKod = pole("txtKod", p.kod ? QString::number(p.kod) : QString());
    m_txtCena = pole("txtCena", staryNazev.isNull() ? QString() : QString::number(p.cena, 'f', 2));
    m_lblCenaDPH = new QLabel;
    m_lblCenaDPH->setObjectName(QStringLiteral("lblCenaDPH"));
    connect(m_txtCena, &QLineEdit::textChanged, this, &FrmPolozka::ukazCenuSDph);
    ukazCenuSDph();
    m_txtJednotka = new QComboBox;
    m_txtJednotka->setObjectName(QStringLiteral("txtJednotka"));
    for (const char* j : Cenik::NazvyJednotek)
        m_txtJednotka->addItem(QString::fromUtf8(j));
    m_txtJednotka->setEditable(true);
    m_txtJednotka->setCurrentText(p.jednotka.isEmpty() ? QStringLiteral("ks") : p.jednotka);

    m_skupiny = new QButtonGroup(this);
    auto* radia = new QHBoxLayout;
    for (int i = 0; i < 3; ++i) {
        auto* r = new QRadioButton(QString::fromUtf8(Cenik::NazvySkupin[i]));
        r->setObjectName(QStringLiteral("opt") + QLatin1String(Cenik::Skupiny[i]));
        r->setChecked(p.skupina == QLatin1String(Cenik::Skupiny[i]) || (p.skupina.isEmpty() && i == 0));
        m_skupiny->addButton(r, i);
        radia->addWidget(r);
    }

    vytvorObrazky(p);

    auto* f = new QFormLayout;
    f->addRow(QStringLiteral("Název:"), m_txtNazev);
    f->addRow(QStringLiteral("Kód:"), m_txtKod);
    f->addRow(QStringLiteral("Cena bez DPH:"), m_txtCena);
    f->addRow(QStringLiteral("Cena položky s DPH"), m_lblCenaDPH);
    f->addRow(QStringLiteral("Jednotka:"), m_txtJednotka);
    f->addRow(QStringLiteral("Zařazení:"), radia);
    auto* tlacitka = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    tlacitka->button(QDialogButtonBox::Save)->setText(QStringLiteral("Uložit"));
    tlacitka->button(QDialogButtonBox::Save)->setObjectName(QStringLiteral("cmdUlozit"));
    tlacitka->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("Zpět"));
    connect(tlacitka, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(tlacitka, &QDialogButtonBox::accepted, this, &FrmPolozka::uloz);
    auto* l = new QVBoxLayout(this);
    l->addLayout(f);
    l->addWidget(m_fraNCenik);
    l->addWidget(tlacitka);
}

// fraNCenik: the item's two pictures, each with its choice and its removal.
void FrmPolozka::vytvorObrazky(const Cenik::Polozka& p)
{
    m_fraNCenik = new QGroupBox(QStringLiteral("Obrázky položky"));
    m_fraNCenik->setObjectName(QStringLiteral("fraNCenik"));
    auto* obrazky = new QGridLayout(m_fraNCenik);
    m_obr[0] = p.obr1;
    m_obr[1] = p.obr2;
    for (int i = 0; i < 2; ++i) {
        m_lblO[i] = new QLabel;
        m_lblO[i]->setObjectName(QStringLiteral("lblO%1").arg(i + 1));
        m_lblO[i]->setFixedSize(160, 120);
        m_lblO[i]->setAlignment(Qt::AlignCenter);
        m_lblO[i]->setFrameShape(QFrame::StyledPanel);
        auto* vyber = new QPushButton(QStringLiteral("%1. obrázek...").arg(i + 1));
        vyber->setObjectName(QStringLiteral("cmdObr%1").arg(i + 1));
        connect(vyber, &QPushButton::clicked, this, [this, i] { vyberObrazek(i); });
        auto* odeber = new QPushButton(QStringLiteral("Bez obrázku"));
        odeber->setObjectName(QStringLiteral("cmdBezObr%1").arg(i + 1));
        connect(odeber, &QPushButton::clicked, this, [this, i] {
            m_obr[i] = 0;
            ukazObrazek(i);
        });
        obrazky->addWidget(m_lblO[i], 0, 2 * i, 1, 2);
        obrazky->addWidget(vyber, 1, 2 * i);
        obrazky->addWidget(odeber, 1, 2 * i + 1);
        ukazObrazek(i);
    }
}

QString FrmPolozka::nazev() const
{
    return m_txtNazev->text();
}

void FrmPolozka::vyberObrazek(int i)
{
    m_fraNCenik->setProperty("Tag", QString::fromLatin1(Znacka[i]));
    try {
        FrmObr okno(m_cenik, m_prompt, Knihovna::Druh::Obrazky, m_obr[i], true, this);
        if (okno.exec() == QDialog::Accepted && okno.volba())
            m_obr[i] = *okno.volba();
        // a picture of this form deleted in the library must not be saved back: its IDE
        // would come to name the next picture added
        for (int j : {0, 1}) {
            if (m_obr[j] && !Knihovna::existuje(m_cenik, Knihovna::Druh::Obrazky, m_obr[j]))
                m_obr[j] = 0;
            ukazObrazek(j);
        }
    } catch (const Error& e) {
        chyba(e);
    }
}

void FrmPolozka::chyba(const Error& e)
{
    m_prompt.zprava(e.text(), QStringLiteral("Chyba"), Prompt::Ikona::Kriticka);
}

void FrmPolozka::ukazObrazek(int i)
{
    // a stored picture that does not decode: an empty frame
    const QImage obr = m_obr[i] ? Knihovna::obrazek(m_cenik, Knihovna::Druh::Obrazky, m_obr[i]) : QImage();
    m_lblO[i]->setToolTip(m_obr[i] ? Knihovna::nazev(m_cenik, Knihovna::Druh::Obrazky, m_obr[i]) : QString());
    if (obr.isNull())
        m_lblO[i]->setText(m_obr[i] ? QStringLiteral("(nelze zobrazit)") : QStringLiteral("bez obrázku"));
    else
        m_lblO[i]->setPixmap(QPixmap::fromImage(Obrazky::vepsany(obr, m_lblO[i]->size())));
}

void FrmPolozka::ukazCenuSDph()
{
    bool ok = false;
    const double c = QString(m_txtCena->text()).replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&ok);
    const double dph = Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("DPH"));
    m_lblCenaDPH->setText(ok ? QString::number(Cenik::cenaSDPH(c, dph), 'f', 2) : QString());
}

void FrmPolozka::uloz()
{
    const Cenik::Zadani z{m_txtNazev->text(), m_txtKod->text(), m_txtCena->text(), m_txtJednotka->currentText(),
                          QLatin1String(Cenik::Skupiny[qMax(0, m_skupiny->checkedId())]), m_obr[0], m_obr[1]};
    try {
        if (Cenik::UlozitPolozku(m_cenik, m_prompt, m_staryNazev, z))
            accept();
    } catch (const Error& e) {
        chyba(e); // the store refused: the form stays, with everything typed
    }
}
