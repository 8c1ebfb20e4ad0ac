// fraPřís: an accessory of an assembly, its name typed or taken from the price list.
#include "ui/FrmNovy.h"

#include "core/Jednotky.h"
#include "core/Nastaveni.h"
#include "ui/RamecNovy.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

void FrmNovy::prislusenstvi(Stav stavRamce, const QStringList& nazvy, const QStringList& jednotky,
                            const Prislusenstvi::Polozka& p,
                            const std::function<std::optional<Prislusenstvi::Polozka>(const QString&)>& zCeniku,
                            const std::function<PoUlozeni(const Prislusenstvi::Zadani&)>& ulozit)
{
    const bool nove = stavRamce != Stav::UpraveniPrislusenstvi;
    m_stav = Stav::Najeti;
    const RamecNovy::Ramec r =
        RamecNovy::novy(m_ramce, "fraPřís", "cmdUlozitPrislusenstvi",
                        nove ? QStringLiteral("Uložení nového příslušenství") : QStringLiteral("Uložení úprav příslušenství"));
    auto* const w = r.w;
    auto* const uloz = r.ulozit;
    auto* nazev = RamecNovy::seznam("txtNPrislusenstvi", nazvy);
    nazev->setMinimumWidth(320);
    nazev->setToolTip(QStringLiteral("Název z ceníku (EP) nebo vlastní"));
    // the quantity and the price as the grid shows them: "0.000" and "0.00"
    auto* pocet = RamecNovy::pole("txtPocetPrislusenstvi", CiselnePole::Druh::Desetinne, 3);
    pocet->nastavTvar(CiselnePole::sDesetinnymi(3));
    auto* jednotka = RamecNovy::seznam("txtJednotka", jednotky);
    auto* cena = RamecNovy::pole("txtCena", CiselnePole::Druh::Desetinne, 2);
    cena->nastavTvar(CiselnePole::sDesetinnymi(2));
    auto* popisek = new QLabel;
    popisek->setObjectName(QStringLiteral("lblCenaJednotka"));
    auto* radekCeny = new QHBoxLayout;
    radekCeny->addWidget(cena);
    radekCeny->addWidget(popisek);
    auto* radekNazvu = new QHBoxLayout;
    radekNazvu->addWidget(nazev, 1);
    radekNazvu->addWidget(tlacitkoCeniku(QStringLiteral("EP"), [=](const QString& n, double c, const QString& j) {
        nazev->setCurrentText(n);
        cena->nastavCislo(Jednotky::cislo(c));
        jednotka->setCurrentText(j);
    }));
    QFormLayout* formular = r.formular;
    formular->addRow(QStringLiteral("Název:"), radekNazvu);
    formular->addRow(QStringLiteral("Množství:"), pocet);
    formular->addRow(QStringLiteral("Jednotka:"), jednotka);
    formular->addRow(QStringLiteral("Cena bez DPH:"), radekCeny);

    auto vypln = [=](const Prislusenstvi::Polozka& z) {
        nazev->setCurrentText(z.oznaceni);
        pocet->nastavCislo(z.pocet ? Jednotky::cislo(z.pocet) : QString());
        jednotka->setCurrentText(z.jednotka);
        cena->nastavCislo(z.oznaceni.isEmpty() && z.cena == 0 ? QString() : Jednotky::cislo(z.cena));
        popisek->setText(Prislusenstvi::popisekCeny(z.jednotka));
    };
    vypln(p);
    auto stav = [=, this] {
        popisek->setText(Prislusenstvi::popisekCeny(jednotka->currentText()));
        uloz->setEnabled(m_stav != Stav::Najeti && !nazev->currentText().trimmed().isEmpty() &&
                         !pocet->text().trimmed().isEmpty());
    };
    connect(nazev, &QComboBox::textActivated, this, [=, this](const QString& t) {
        if (const auto z = zCeniku(t)) {
            cena->nastavCislo(Jednotky::cislo(z->cena));
            jednotka->setCurrentText(z->jednotka);
        }
        stav();
    });
    connect(nazev, &QComboBox::currentTextChanged, this, stav);
    connect(pocet, &QLineEdit::textChanged, this, stav);
    connect(cena, &QLineEdit::textChanged, this, stav);
    connect(jednotka, &QComboBox::currentTextChanged, this, stav);
    connect(uloz, &QPushButton::clicked, this, [=, this] {
        const PoUlozeni po = ulozit({nazev->currentText().trimmed(), pocet->text(), jednotka->currentText(), cena->text()});
        if (po == PoUlozeni::Zavrit)
            accept();
        else if (po == PoUlozeni::Dalsi) {
            vypln({});
            nazev->setFocus();
        }
    });
    m_stav = stavRamce;
    stav();
    ukaz(w, nove ? QStringLiteral("Přidání nového příslušenství") : QStringLiteral("Upravení příslušenstvi"), 20);
    exec();
    w->deleteLater();
}
