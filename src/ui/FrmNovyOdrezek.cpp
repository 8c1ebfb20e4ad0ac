// fraNSklad of frmNovy: an offcut of the store, new (a series) or edited.
#include "ui/FrmNovy.h"

#include "ui/RamecNovy.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

using RamecNovy::pole;

void FrmNovy::odrezek(Stav stavRamce, const Sklad::Odrezek& o, const std::function<PoUlozeni(const Sklad::Odrezek&)>& ulozit)
{
    m_stav = stavRamce;
    const bool novy = stavRamce == Stav::NovyOdrezek;
    RamecNovy::Ramec r = RamecNovy::novy(m_ramce, "fraNSklad", "cmdUSklad",
                                         novy ? QStringLiteral("Uložení odřezku") : QStringLiteral("Uložení úprav odřezku"));
    auto* material = RamecNovy::text("txtMaterialSklad", Sklad::MaxNazev + 1);
    material->setMinimumWidth(300);
    auto* x = pole("txtXSklad", CiselnePole::Druh::Delka);
    auto* y = pole("txtYSklad", CiselnePole::Druh::Delka);
    auto* pocet = pole("txtPocetSklad", CiselnePole::Druh::Cele, 6);
    auto vyplnit = [=](const Sklad::Odrezek& z) {
        material->setText(z.material);
        x->nastavMm(z.x);
        y->nastavMm(z.y);
        pocet->setText(z.pocet > 0 ? QString::number(z.pocet) : QString());
    };
    vyplnit(o);
    r.formular->addRow(QStringLiteral("Materiál:"), material);
    r.formular->addRow(QStringLiteral("Délka:"), x);
    r.formular->addRow(QStringLiteral("Šířka:"), y);
    r.formular->addRow(QStringLiteral("Počet kusů:"), pocet);
    auto stav = [=] { r.ulozit->setEnabled(!material->text().trimmed().isEmpty()); };
    for (QLineEdit* e : {static_cast<QLineEdit*>(material), static_cast<QLineEdit*>(x), static_cast<QLineEdit*>(y),
                         static_cast<QLineEdit*>(pocet)})
        connect(e, &QLineEdit::textChanged, this, stav);
    stav();
    connect(r.ulozit, &QPushButton::clicked, this, [=, this] {
        const PoUlozeni po = ulozit({material->text().trimmed(), x->mm(), y->mm(), int(pocet->hodnota())});
        if (po == PoUlozeni::Zavrit)
            accept();
        else if (po == PoUlozeni::Dalsi) {
            vyplnit({}); // empty for the next piece
            material->setFocus();
        }
    });
    ukaz(r.w, novy ? QStringLiteral("Přidání nového odřezku do skladu...") : QStringLiteral("Upravení parametrů odřezku..."), 20);
    exec();
    r.w->deleteLater();
}
