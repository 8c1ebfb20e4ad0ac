// The entry frames of frmNovy: order, assembly, format, edge band, board. Each frame fills
// its fields, keeps its save button in step with them, and hands what was typed to the
// routine of the orders library that the main window passes in.
#include "ui/FrmNovy.h"

#include "printing/Operace.h"

#include "core/Error.h"
#include "core/Jednotky.h"
#include "ui/CiselnePole.h"
#include "ui/RamecNovy.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <memory>

namespace {

using RamecNovy::pole;
using RamecNovy::Ramec;
using RamecNovy::text;

// The proportional picture of a board or format, with the banded sides in their colours.
class Nahled : public QWidget {
public:
    explicit Nahled(const char* nazev)
    {
        setObjectName(QLatin1String(nazev));
        setMinimumSize(220, 150);
    }
    double x = 0, y = 0;
    bool vzor = false;
    std::optional<QColor> hrany[4];

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter g(this);
        g.fillRect(rect(), palette().base());
        if (x <= 0 || y <= 0)
            return;
        const double k = std::min((width() - 40) / x, (height() - 40) / y);
        const QRectF r((width() - x * k) / 2, (height() - y * k) / 2, x * k, y * k);
        g.setPen(Qt::black);
        g.setBrush(vzor ? QBrush(QColor(0xd9, 0xb3, 0x82), Qt::HorPattern) : QBrush(QColor(0xf3, 0xe6, 0xcf)));
        g.drawRect(r);
        const QLineF strany[4] = {{r.topLeft(), r.topRight()},
                                  {r.bottomLeft(), r.bottomRight()},
                                  {r.topLeft(), r.bottomLeft()},
                                  {r.topRight(), r.bottomRight()}};
        for (int i = 0; i < 4; ++i)
            if (hrany[i]) {
                g.setPen(QPen(*hrany[i], 5));
                g.drawLine(strany[i]);
            }
        g.setPen(palette().text().color());
        g.drawText(QRectF(r.left(), r.bottom() + 2, r.width(), 16), Qt::AlignCenter, Jednotky::ZMilimetru(x));
        g.save();
        g.translate(r.left() - 4, r.center().y());
        g.rotate(-90);
        g.drawText(QRectF(-r.height() / 2, -16, r.height(), 16), Qt::AlignCenter, Jednotky::ZMilimetru(y));
        g.restore();
    }
};

} // namespace

void FrmNovy::zakazka(Stav stavRamce, const QString& nazev, const QString& poznamka,
                      const std::function<PoUlozeni(const QString&, const QString&)>& ulozit)
{
    m_stav = stavRamce;
    const bool nova = stavRamce == Stav::NovaZakazka;
    Ramec r = RamecNovy::novy(m_ramce, "fraZakázka", "cmdZakazkaPouzit",
                              nova ? QStringLiteral("Uložení nové zakázky") : QStringLiteral("Uložení úprav v zakázce"));
    // a copy may carry a longer name than can be typed: editing its note must not cut it
    auto* jmeno = text("txtzakazka", qMax(Zakazky::MaxNazevZakazky, int(nazev.size())));
    auto* pozn = text("txtPoznamka");
    jmeno->setText(nazev);
    pozn->setText(poznamka);
    jmeno->setMinimumWidth(320);
    r.formular->addRow(QStringLiteral("Zakázka:"), jmeno);
    r.formular->addRow(QStringLiteral("Poznámka:"), pozn);
    auto stav = [=, this] { r.ulozit->setEnabled(!jmeno->text().trimmed().isEmpty()); };
    connect(jmeno, &QLineEdit::textChanged, this, stav);
    connect(pozn, &QLineEdit::textChanged, this, stav);
    stav();
    connect(r.ulozit, &QPushButton::clicked, this, [=, this] {
        const PoUlozeni po = ulozit(jmeno->text().trimmed(), pozn->text());
        if (po == PoUlozeni::Zavrit)
            accept();
        else if (po == PoUlozeni::Odmitnuto) {
            r.ulozit->setEnabled(false);
            jmeno->setFocus();
        }
    });
    ukaz(r.w, nova ? QStringLiteral("Založení nové zakázky") : QStringLiteral("Upravení zakázky"), 20);
    exec();
    r.w->deleteLater();
}

void FrmNovy::sestava(Stav stavRamce, const Zakazky::Sestava& s, const std::function<PoUlozeni(const Zakazky::Sestava&)>& ulozit)
{
    m_stav = Stav::Najeti;
    const bool nova = stavRamce == Stav::NovaSestava;
    Ramec r = RamecNovy::novy(m_ramce, "fraTyp", "cmdUlozitP",
                              nova ? QStringLiteral("Uložení nové sestavy") : QStringLiteral("Uložení úprav sestavy"));
    auto* nazev = text("txtNT", Zakazky::MaxNazevSestavy);
    auto* popis = text("txtP");
    auto* pocet = new QSpinBox;
    pocet->setObjectName(QStringLiteral("txtPocetElementuVSestave"));
    pocet->setRange(1, 9999);
    auto* schema = new QLabel;
    schema->setObjectName(QStringLiteral("lblSchema"));
    nazev->setText(s.nazev);
    popis->setText(s.popis);
    popis->setMinimumWidth(320);
    pocet->setValue(int(s.pocet));
    schema->setText(s.schema ? QString::number(s.schema) : QString());
    r.formular->addRow(QStringLiteral("Název:"), nazev);
    r.formular->addRow(QStringLiteral("Popis:"), popis);
    r.formular->addRow(QStringLiteral("Počet:"), pocet);
    auto* imgSchema = new QLabel;
    imgSchema->setObjectName(QStringLiteral("imgSchema"));
    imgSchema->setFixedSize(160, 120);
    imgSchema->setAlignment(Qt::AlignCenter);
    imgSchema->setFrameShape(QFrame::StyledPanel);
    auto* radekSchematu = new QHBoxLayout;
    radekSchematu->addWidget(schema);
    radekSchematu->addWidget(tlacitkoSchematu(schema, imgSchema));
    radekSchematu->addStretch();
    r.formular->addRow(QStringLiteral("Schema:"), radekSchematu);
    r.formular->addRow(QString(), imgSchema);
    if (!m_cenik)
        imgSchema->hide();
    auto stav = [=, this] { r.ulozit->setEnabled(m_stav != Stav::Najeti && !nazev->text().trimmed().isEmpty()); };
    m_stav = stavRamce;
    connect(nazev, &QLineEdit::textChanged, this, stav);
    connect(popis, &QLineEdit::textChanged, this, stav);
    connect(pocet, &QSpinBox::valueChanged, this, stav);
    stav();
    connect(r.ulozit, &QPushButton::clicked, this, [=, this] {
        const PoUlozeni po = ulozit({nazev->text().trimmed(), popis->text(), double(pocet->value()), schema->text().toInt()});
        if (po == PoUlozeni::Zavrit)
            accept();
        else if (po == PoUlozeni::Odmitnuto) {
            r.ulozit->setEnabled(false);
            nazev->setFocus();
        }
    });
    ukaz(r.w, nova ? QStringLiteral("Nová sestava") : QStringLiteral("Upravení sestavy"), 20);
    exec();
    r.w->deleteLater();
}

namespace {

// The fields of fraMaterial and fraHrana: filled from a record, read back into one.
struct PoleMaterialu {
    explicit PoleMaterialu(bool hrana)
        : hrana(hrana), nazev(new QComboBox), fx(pole("txtFX", CiselnePole::Druh::Delka)),
          fy(pole("txtFY", CiselnePole::Druh::Delka)), ov(new QCheckBox(QStringLiteral("Vzor ( neotáčet )"))),
          cena(pole(hrana ? "txtCenaHrany" : "txtFCena", CiselnePole::Druh::Desetinne, 2)),
          presah(pole("txtPresahHrany", CiselnePole::Druh::Delka)), barva(new QPushButton), nahled(new Nahled("pctDF"))
    {
        nazev->setObjectName(hrana ? QStringLiteral("cmbHrana") : QStringLiteral("txtFormat"));
        nazev->setEditable(true);
        nazev->setMinimumWidth(300);
        ov->setObjectName(QStringLiteral("chOVFormat"));
        barva->setObjectName(QStringLiteral("pctBarvaHrany"));
        barva->setFixedSize(60, 22);
        cena->nastavTvar(hrana ? Jednotky::CenaZaMetr : Jednotky::CenaZaPlochu);
    }
    void vyplnit(const Materialy::Material& z)
    {
        nazev->setCurrentText(z.nazev);
        fx->nastavMm(z.x);
        fy->nastavMm(z.y);
        ov->setChecked(z.ov);
        cena->nastavCislo(z.cena ? Jednotky::cislo(z.cena) : QString());
        presah->nastavMm(z.presah);
    }
    void ukazBarvu(const QColor& c) const
    {
        vybrana = c;
        barva->setStyleSheet(QStringLiteral("background-color: %1").arg(c.name()));
    }
    Materialy::Material hodnota(Materialy::Material z) const
    {
        z.nazev = nazev->currentText().trimmed();
        z.x = fx->mm();
        z.y = fy->mm();
        z.ov = ov->isChecked();
        z.cena = cena->hodnota();
        z.presah = presah->mm();
        z.barva = Barva::doVB(vybrana);
        return z;
    }
    bool lzeUlozit() const
    {
        const bool mameRozmery = hrana || (!fx->text().isEmpty() && !fy->text().isEmpty());
        return !nazev->currentText().trimmed().isEmpty() && !cena->text().isEmpty() && cena->hodnota() != 0 && mameRozmery;
    }
    void obnovNahled() const
    {
        nahled->x = nazev->currentText().isEmpty() ? 0 : fx->mm();
        nahled->y = fy->mm();
        nahled->vzor = ov->isChecked();
        nahled->update();
    }
    void rozloz(QFormLayout* formular, QLayout* radekNazvu) const
    {
        formular->addRow(hrana ? QStringLiteral("Název:") : QStringLiteral("Název materiálu:"), radekNazvu);
        if (hrana) {
            formular->addRow(QStringLiteral("Cena bez DPH:"), cena);
            formular->addRow(QStringLiteral("Barva v NP:"), barva);
            auto* skupina = new QGroupBox(QStringLiteral("Přesah hranovací pásky "));
            auto* l = new QHBoxLayout(skupina);
            l->addWidget(presah);
            formular->addRow(skupina);
        } else {
            formular->addRow(QStringLiteral("Délka"), fx);
            formular->addRow(QStringLiteral("Šířka"), fy);
            formular->addRow(QString(), ov);
            formular->addRow(QStringLiteral("Cena bez DPH:"), cena);
            formular->addRow(nahled);
        }
    }

    bool hrana;
    QComboBox* nazev;
    CiselnePole *fx, *fy;
    QCheckBox* ov;
    CiselnePole *cena, *presah;
    QPushButton* barva;
    Nahled* nahled;
    mutable QColor vybrana;
};

} // namespace

void FrmNovy::material(Stav stavRamce, const Materialy::Material& m,
                       const std::function<PoUlozeni(const Materialy::Material&)>& ulozit)
{
    const bool novy = stavRamce == Stav::NovyFormat || stavRamce == Stav::NovaHrana;
    const bool hrana = stavRamce == Stav::NovaHrana || stavRamce == Stav::UpraveniHrany;
    m_stav = Stav::Najeti;
    Ramec r = hrana ? RamecNovy::novy(m_ramce, "fraHrana", "cmdUlozeniHrany", QStringLiteral("Uložení hrany"))
                    : RamecNovy::novy(m_ramce, "fraMaterial", "cmdFormatUlozit", QStringLiteral("Uložení formátu"));
    auto p = std::make_shared<PoleMaterialu>(hrana);
    p->nazev->addItems(nazvyCeniku(hrana ? QStringLiteral("H") : QStringLiteral("PM")));
    p->vyplnit(m);
    p->ukazBarvu(Barva::zVB(m.barva));
    auto* radekNazvu = new QHBoxLayout;
    radekNazvu->addWidget(p->nazev, 1);
    const auto prevezmi = [p](const QString& n, double c, const QString&) {
        p->nazev->setCurrentText(n);
        p->cena->nastavCislo(Jednotky::cislo(c));
    };
    radekNazvu->addWidget(tlacitkoCeniku(hrana ? QStringLiteral("VH") : QStringLiteral("VF"), prevezmi));
    prevezmiZCeniku(p->nazev, prevezmi);
    p->rozloz(r.formular, radekNazvu);
    connect(p->barva, &QPushButton::clicked, this, [p, this] {
        if (!m_prompt)
            return;
        try {
            p->ukazBarvu(Barva::zVB(m_prompt->barva(quint32(Barva::doVB(p->vybrana)), QStringLiteral("Barva hrany v NP"))));
        } catch (const Error&) {
            // a cancelled chooser keeps the colour
        }
    });
    auto stav = [p, r, this] {
        r.ulozit->setEnabled(m_stav != Stav::Najeti && p->lzeUlozit());
        p->obnovNahled();
    };
    m_stav = stavRamce;
    for (CiselnePole* e : {p->fx, p->fy, p->cena, p->presah})
        connect(e, &QLineEdit::textChanged, this, stav);
    connect(p->nazev, &QComboBox::currentTextChanged, this, stav);
    connect(p->ov, &QCheckBox::toggled, this, stav);
    stav();
    connect(r.ulozit, &QPushButton::clicked, this, [=, this] {
        const PoUlozeni po = ulozit(p->hodnota(m));
        if (po == PoUlozeni::Zavrit)
            accept();
        else if (po == PoUlozeni::Dalsi) {
            p->vyplnit({});
            r.ulozit->setEnabled(false);
            (hrana ? static_cast<QWidget*>(p->nazev) : p->fx)->setFocus();
        }
    });
    ukaz(r.w,
         hrana ? (novy ? QStringLiteral("Přidání nové hrany") : QStringLiteral("Upravení hrany"))
               : (novy ? QStringLiteral("Přidání nového formátu") : QStringLiteral("Upravení formátu")),
         20);
    exec();
    r.w->deleteLater();
}

namespace {

// The fields of fraPlMat, laid out in its form.
struct PoleDesky {
    PoleDesky(QFormLayout* formular, const QStringList& formaty, const QStringList& hrany)
    {
        nazev = new QComboBox;
        nazev->setObjectName(QStringLiteral("txtPM"));
        nazev->setEditable(true);
        for (const char* n : Desky::NazvyDesek)
            nazev->addItem(QString::fromUtf8(n));
        x = pole("txtX", CiselnePole::Druh::Delka);
        y = pole("txtY", CiselnePole::Druh::Delka);
        pocet = pole("txtPocetMaterial", CiselnePole::Druh::Cele, 5);
        format = new QComboBox;
        format->setObjectName(QStringLiteral("cmbMaterial"));
        format->addItem(QString());
        format->addItems(formaty);
        format->setMinimumWidth(300);
        ov = new QCheckBox(QStringLiteral("Vzor ( neotáčet )"));
        ov->setObjectName(QStringLiteral("chOV"));
        static const char* const popisky[] = {"Hrana X - horní:", "Hrana X - spodní:", "Hrana Y - vlevo:", "Hrana Y - vpravo:"};
        nahled = new Nahled("pctZB");
        formular->addRow(QStringLiteral("Název:"), nazev);
        formular->addRow(QStringLiteral("Délka"), x);
        formular->addRow(QStringLiteral("Šířka"), y);
        formular->addRow(QStringLiteral("Počet"), pocet);
        formular->addRow(QStringLiteral("Formát:"), format);
        formular->addRow(QString(), ov);
        for (int i = 0; i < 4; ++i) {
            h[i] = new QComboBox;
            h[i]->setObjectName(QStringLiteral("cmbH(%1)").arg(i));
            h[i]->addItem(QString());
            h[i]->addItems(hrany);
            formular->addRow(QString::fromUtf8(popisky[i]), h[i]);
        }
        formular->addRow(nahled);
    }
    QComboBox* nazev;
    CiselnePole *x, *y, *pocet;
    QComboBox* format;
    QCheckBox* ov;
    QComboBox* h[4];
    Nahled* nahled;
};

} // namespace

void FrmNovy::deska(Stav stavRamce, const QStringList& formaty, const QStringList& hrany,
                    const std::vector<Materialy::Material>& pasky, const Desky::Deska& d, const TextyDesky& texty,
                    const std::function<PoUlozeni(const Desky::Deska&, const TextyDesky&)>& ulozit)
{
    const bool nova = stavRamce == Stav::NovyPM;
    m_stav = Stav::Najeti;
    Ramec r = RamecNovy::novy(m_ramce, "fraPlMat", "cmdUPM", QStringLiteral("Uložení plošného materiálu"));
    const PoleDesky p(r.formular, formaty, hrany);
    auto* const nazev = p.nazev;
    auto* const x = p.x;
    auto* const y = p.y;
    auto* const pocet = p.pocet;
    auto* const format = p.format;
    auto* const ov = p.ov;
    auto* const nahled = p.nahled;
    QComboBox* const h[4] = {p.h[0], p.h[1], p.h[2], p.h[3]};
    auto vyplnit = [=](const Desky::Deska& z, const TextyDesky& t) {
        nazev->setCurrentText(z.oznaceni);
        x->nastavMm(z.x);
        y->nastavMm(z.y);
        pocet->setText(QString::number(z.pocet));
        ov->setChecked(z.ov);
        format->setCurrentText(t.format);
        for (int i = 0; i < 4; ++i)
            h[i]->setCurrentText(t.hrany[i]);
    };
    vyplnit(d, texty);
    auto stav = [=, this] {
        const QString texty[4] = {h[0]->currentText(), h[1]->currentText(), h[2]->currentText(), h[3]->currentText()};
        const Desky::Nahled n = Desky::NahledDesky(x->text(), y->text(), pocet->text(), format->currentText(), texty, pasky);
        r.ulozit->setEnabled(m_stav != Stav::Najeti && n.ulozit);
        nahled->x = n.vykreslit ? x->mm() : 0;
        nahled->y = n.vykreslit ? y->mm() : 0;
        nahled->vzor = ov->isChecked();
        for (int i = 0; i < 4; ++i)
            nahled->hrany[i] = n.barvy[i] ? std::optional<QColor>(Barva::zVB(*n.barvy[i])) : std::nullopt;
        nahled->update();
    };
    m_stav = stavRamce;
    for (QLineEdit* e : {static_cast<QLineEdit*>(x), static_cast<QLineEdit*>(y), static_cast<QLineEdit*>(pocet)})
        connect(e, &QLineEdit::textChanged, this, stav);
    for (QComboBox* c : {format, h[0], h[1], h[2], h[3]})
        connect(c, &QComboBox::currentTextChanged, this, stav);
    connect(ov, &QCheckBox::toggled, this, stav);
    stav();
    connect(r.ulozit, &QPushButton::clicked, this, [=, this] {
        Desky::Deska z;
        z.oznaceni = nazev->currentText().trimmed();
        z.x = x->mm();
        z.y = y->mm();
        z.pocet = pocet->hodnota();
        z.ov = ov->isChecked();
        TextyDesky t{format->currentText()};
        for (int i = 0; i < 4; ++i)
            t.hrany[i] = h[i]->currentText();
        const PoUlozeni po = ulozit(z, t);
        if (po == PoUlozeni::Zavrit)
            accept();
        else if (po == PoUlozeni::Dalsi) {
            vyplnit({QString(), 0, 0, 1}, {});
            r.ulozit->setEnabled(false);
            x->setFocus();
        } else {
            r.ulozit->setEnabled(false);
            nazev->setFocus();
        }
    });
    ukaz(r.w, nova ? QStringLiteral(" Přidání nového plošného materiálu") : QStringLiteral(" Upravení plošného materiálu"), 20);
    exec();
    r.w->deleteLater();
}
