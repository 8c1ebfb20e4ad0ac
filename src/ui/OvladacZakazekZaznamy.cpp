// The entry commands of the main window's orders: orders, assemblies, formats, bands and boards.
#include "ui/OvladacZakazek.h"

#include "printing/Operace.h"

#include "core/Database.h"
#include "core/Jednotky.h"
#include "core/Nastaveni.h"
#include "core/Uloziste.h"
#include "orders/Desky.h"
#include "orders/Materialy.h"
#include "orders/Vyber.h"
#include "orders/Zakazky.h"
#include "ui/FrmImport.h"
#include "ui/FrmNovy.h"
#include "ui/QtPrompt.h"

#include <QTabWidget>
#include <QTableWidget>
#include <QTreeWidget>

using PoUlozeni = FrmNovy::PoUlozeni;

void OvladacZakazek::NovaZakazka()
{
    FrmNovy d(m_okno, m_uloziste.cenik(), m_prompt);
    QString ulozena;
    d.zakazka(FrmNovy::Stav::NovaZakazka, QString(), QString(), [&](const QString& nazev, const QString& poznamka) {
        if (!Zakazky::UlozitNovouZakazku(m_uloziste.dataS(), m_prompt, nazev, poznamka))
            return PoUlozeni::Odmitnuto;
        ulozena = nazev;
        return PoUlozeni::Zavrit;
    });
    if (ulozena.isEmpty())
        return;
    vyberUzel(ulozena, QString());
    NovyMaterial(false); // an order without a format cannot receive boards
}

void OvladacZakazek::UpravitZakazku()
{
    FrmNovy d(m_okno, m_uloziste.cenik(), m_prompt);
    const QString stara = m_vyber.txtzakazka();
    QString nova;
    d.zakazka(FrmNovy::Stav::UpraveniZakazky, stara, Zakazky::poznamka(m_uloziste.dataS(), stara),
              [&](const QString& nazev, const QString& poznamka) {
                  if (!Zakazky::UlozitUpravuZakazky(m_uloziste.dataS(), m_prompt, stara, nazev, poznamka))
                      return PoUlozeni::Odmitnuto;
                  nova = nazev;
                  return PoUlozeni::Zavrit;
              });
    if (!nova.isEmpty())
        vyberUzel(nova, QString());
}

void OvladacZakazek::SmazatZakazku()
{
    const auto nalezene = m_tvzakazky->findItems(m_vyber.txtzakazka(), Qt::MatchExactly);
    const int poradi = nalezene.isEmpty() ? 0 : m_tvzakazky->indexOfTopLevelItem(nalezene.first());
    if (!Zakazky::SmazatZakazku(m_uloziste.dataS(), m_prompt, m_vyber.txtzakazka()))
        return;
    NaplnitStrom();
    // the order that took its place in the tree, or the one before it when it was the last
    QTreeWidgetItem* dalsi = m_tvzakazky->topLevelItem(std::min(poradi, m_tvzakazky->topLevelItemCount() - 1));
    vyberUzel(dalsi ? dalsi->text(0) : QString(), QString());
}

void OvladacZakazek::NovaSestava()
{
    FrmNovy d(m_okno, m_uloziste.cenik(), m_prompt);
    QString ulozena;
    d.sestava(FrmNovy::Stav::NovaSestava, {QString(), QString(), 1, 0}, [&](const Zakazky::Sestava& s) {
        if (!Zakazky::UlozitNovouSestavu(m_uloziste.dataS(), m_prompt, m_vyber.txtzakazka(), s))
            return PoUlozeni::Odmitnuto;
        ulozena = s.nazev;
        return PoUlozeni::Zavrit;
    });
    if (ulozena.isEmpty())
        return;
    vyberUzel(m_vyber.txtzakazka(), ulozena);
    m_stZakazky->setCurrentIndex(1);
    NovyPM();
}

void OvladacZakazek::UpravitSestavu()
{
    FrmNovy d(m_okno, m_uloziste.cenik(), m_prompt);
    const QString stara = m_vyber.txtSestava();
    Nastaveni::SaveSetting(QStringLiteral("Editor"), QStringLiteral("Sestava"), stara);
    QString nova;
    d.sestava(FrmNovy::Stav::UpraveniSestavy, Zakazky::nactiSestavu(m_uloziste.dataS(), m_vyber.txtzakazka(), stara),
              [&](const Zakazky::Sestava& s) {
                  if (!Zakazky::UlozitUpravuSestavy(m_uloziste.dataS(), m_prompt, m_vyber.txtzakazka(), stara, s))
                      return PoUlozeni::Odmitnuto;
                  nova = s.nazev;
                  return PoUlozeni::Zavrit;
              });
    if (!nova.isEmpty())
        vyberUzel(m_vyber.txtzakazka(), nova);
}

void OvladacZakazek::SmazatSestavu()
{
    if (Zakazky::SmazatSestavu(m_uloziste.dataS(), m_prompt, m_vyber.txtzakazka(), m_vyber.txtSestava()))
        vyberUzel(m_vyber.txtzakazka(), QString());
}

namespace {

// The material of the grid's current row, or nothing.
std::optional<Materialy::Material> aktualni(QTableWidget* grid, const std::vector<Materialy::Material>& vse)
{
    const int r = grid->currentRow();
    if (r < 0 || r >= int(vse.size()))
        return std::nullopt;
    return vse[r];
}

// What the board dialog's combos offer: the order's formats and bands and their texts.
struct Nabidka {
    std::vector<Materialy::Material> formaty, hrany;
    QStringList textyFormatu, textyHran;
};

Nabidka nabidka(Database& db, const QString& zakazka)
{
    Nabidka n{Materialy::formaty(db, zakazka), Materialy::hrany(db, zakazka), {}, {}};
    for (const auto& f : n.formaty)
        n.textyFormatu << Materialy::textFormatu(f);
    for (const auto& h : n.hrany)
        n.textyHran << Materialy::textHrany(h);
    return n;
}

// The combos' texts back into IDs, by the same text rule (a text that matches nothing is 0).
Desky::Deska sIdy(Database& db, const QString& zakazka, Desky::Deska d, const FrmNovy::TextyDesky& t)
{
    d.idFormat = Materialy::idPodleTextu(db, zakazka, t.format, false);
    for (int i = 0; i < 4; ++i)
        d.hrany[i] = Materialy::idPodleTextu(db, zakazka, t.hrany[i], true);
    return d;
}

void nastavRadek(QTableWidget* grid, const QString& akce, int predtim)
{
    const int n = grid->rowCount();
    if (n == 0)
        return;
    const int r = akce == QLatin1String("Novy zaznam") ? n - 1 : std::min(std::max(predtim, 0), n - 1);
    grid->setCurrentCell(r, 0);
}

} // namespace

void OvladacZakazek::NovyMaterial(bool hrana)
{
    m_stZakazky->setCurrentIndex(0);
    FrmNovy d(m_okno, m_uloziste.cenik(), m_prompt);
    d.material(hrana ? FrmNovy::Stav::NovaHrana : FrmNovy::Stav::NovyFormat, {}, [&](const Materialy::Material& m) {
        const bool ok = hrana ? Materialy::UlozitNovouHranu(m_uloziste.dataS(), m_vyber.txtzakazka(), m)
                              : Materialy::UlozitNovyFormat(m_uloziste.dataS(), m_vyber.txtzakazka(), m);
        if (!ok)
            return PoUlozeni::Odmitnuto;
        hrana ? NaplnitGridHrany(QStringLiteral("Novy zaznam")) : NaplnitGridFormaty(QStringLiteral("Novy zaznam"));
        poZmeneZakazky();
        return PoUlozeni::Dalsi;
    });
}

std::optional<Materialy::Material> OvladacZakazek::vybranyMaterial(bool hrana)
{
    m_stZakazky->setCurrentIndex(0);
    return aktualni(hrana ? m_GridHrany : m_GridFormaty, hrana ? Materialy::hrany(m_uloziste.dataS(), m_vyber.txtzakazka())
                                                               : Materialy::formaty(m_uloziste.dataS(), m_vyber.txtzakazka()));
}

void OvladacZakazek::UpravitMaterial(bool hrana)
{
    const auto m = vybranyMaterial(hrana);
    if (!m)
        return;
    FrmNovy d(m_okno, m_uloziste.cenik(), m_prompt);
    d.material(hrana ? FrmNovy::Stav::UpraveniHrany : FrmNovy::Stav::UpraveniFormatu, *m, [&](const Materialy::Material& z) {
        if (hrana) {
            if (!Materialy::UlozitUpravuHrany(m_uloziste.dataS(), m_vyber.txtzakazka(), z))
                return PoUlozeni::Odmitnuto;
            NaplnitGridHrany(QStringLiteral("Upraveni zaznamu"));
            poZmeneZakazky();
            return PoUlozeni::Zavrit;
        }
        const auto u = Materialy::UlozitUpravuFormatu(m_uloziste.dataS(), m_prompt, m_vyber.txtzakazka(), z);
        if (u == Materialy::Uprava::Odmitnuto)
            return PoUlozeni::Odmitnuto;
        NaplnitGridFormaty(u == Materialy::Uprava::Slouceno ? QStringLiteral("Odstraneni zaznamu")
                                                            : QStringLiteral("Upraveni zaznamu"));
        NaplnitGridPM(QStringLiteral("Upravení záznamu"));
        poZmeneZakazky();
        return PoUlozeni::Zavrit;
    });
}

void OvladacZakazek::SmazatMaterial(bool hrana)
{
    const auto m = vybranyMaterial(hrana);
    if (!m)
        return;
    const bool smazano = hrana ? Materialy::SmazatHranu(m_uloziste.dataS(), m_prompt, m_vyber.txtzakazka(), *m)
                               : Materialy::SmazatFormat(m_uloziste.dataS(), m_prompt, m_vyber.txtzakazka(), *m);
    if (!smazano)
        return;
    hrana ? NaplnitGridHrany(QStringLiteral("Odstraneni zaznamu")) : NaplnitGridFormaty(QStringLiteral("Odstraneni zaznamu"));
    poZmeneZakazky(); // a band may go while boards still name it: they lose its price
}

void OvladacZakazek::NaplnitGridFormaty(const QString& akce)
{
    const int predtim = m_GridFormaty->currentRow();
    const auto vse = Materialy::formaty(m_uloziste.dataS(), m_vyber.txtzakazka());
    m_GridFormaty->setRowCount(int(vse.size()));
    for (int i = 0; i < int(vse.size()); ++i) {
        const auto& m = vse[i];
        const QString cena = Jednotky::cislo(m.cena);
        const QStringList bunky = {m.nazev, Jednotky::ZMilimetru(m.x), Jednotky::ZMilimetru(m.y), Jednotky::CenaZaPlochu(cena),
                                   Jednotky::CenaZaPlochuSDPH(cena)};
        for (int j = 0; j < bunky.size(); ++j)
            m_GridFormaty->setItem(i, j, new QTableWidgetItem(bunky[j]));
    }
    nastavRadek(m_GridFormaty, akce, predtim);
    const bool radek = m_GridFormaty->rowCount() > 0 && !m_vyber.txtzakazka().isEmpty();
    povol({QStringLiteral("UF"), QStringLiteral("SF"), QStringLiteral("cmdUpravitFormat"), QStringLiteral("cmdSmazatFormat")},
          radek);
}

void OvladacZakazek::NaplnitGridHrany(const QString& akce)
{
    const int predtim = m_GridHrany->currentRow();
    const auto vse = Materialy::hrany(m_uloziste.dataS(), m_vyber.txtzakazka());
    m_GridHrany->setRowCount(int(vse.size()));
    for (int i = 0; i < int(vse.size()); ++i) {
        const auto& m = vse[i];
        const QStringList bunky = {m.nazev, Jednotky::CenaZaMetr(Jednotky::cislo(m.cena)), Jednotky::ZMilimetru(m.presah),
                                   QString()};
        for (int j = 0; j < bunky.size(); ++j)
            m_GridHrany->setItem(i, j, new QTableWidgetItem(bunky[j]));
        QTableWidgetItem* barva = m_GridHrany->item(i, 3);
        barva->setBackground(Barva::zVB(m.barva));
        barva->setFlags(Qt::ItemIsEnabled); // not selectable: the colour shows on the current row too
    }
    nastavRadek(m_GridHrany, akce, predtim);
    const bool radek = m_GridHrany->rowCount() > 0 && !m_vyber.txtzakazka().isEmpty();
    povol({QStringLiteral("UH"), QStringLiteral("SH"), QStringLiteral("cmdUpravitHrana"), QStringLiteral("cmdSmazatHrana")},
          radek);
}

void OvladacZakazek::NaplnitGridPM(const QString& akce)
{
    const int predtim = m_GPM->currentRow();
    const auto radky = m_AktSestava.isEmpty()
                           ? std::vector<Desky::RadekGridu>{}
                           : Desky::NaplnitGridPM(m_uloziste.dataS(), m_vyber.txtzakazka(), m_vyber.txtSestava());
    m_GPM->setRowCount(int(radky.size()));
    for (int i = 0; i < int(radky.size()); ++i) {
        const auto& d = radky[i].deska;
        const QStringList bunky = {d.oznaceni, Jednotky::ZMilimetru(d.x), Jednotky::ZMilimetru(d.y),
                                   Jednotky::JednotkaPocet(Jednotky::cislo(d.pocet)), radky[i].format};
        for (int j = 0; j < bunky.size(); ++j)
            m_GPM->setItem(i, j, new QTableWidgetItem(bunky[j]));
    }
    nastavRadek(m_GPM, akce, predtim);
    const bool radek = m_GPM->rowCount() > 0 && !m_AktSestava.isEmpty();
    povol({QStringLiteral("UpraveniPM"), QStringLiteral("SmazaniPM"), QStringLiteral("cmdUpravitPM"),
           QStringLiteral("cmdSmazatPM"), QStringLiteral("tbUPM"), QStringLiteral("tbOPM")},
          radek);
    povol({QStringLiteral("cmdNovyPM")}, !m_AktSestava.isEmpty());
}

void OvladacZakazek::NovyPM()
{
    const QString zakazka = m_vyber.txtzakazka(), sestava = m_vyber.txtSestava();
    const Nabidka n = nabidka(m_uloziste.dataS(), zakazka);
    FrmNovy d(m_okno, m_uloziste.cenik(), m_prompt);
    d.deska(FrmNovy::Stav::NovyPM, n.textyFormatu, n.textyHran, n.hrany, {QString(), 0, 0, 1}, {},
            [&](const Desky::Deska& z, const FrmNovy::TextyDesky& t) {
                if (Desky::UlozitNovyPM(m_uloziste.dataS(), m_prompt, zakazka, sestava, sIdy(m_uloziste.dataS(), zakazka, z, t))
                        .isNull())
                    return PoUlozeni::Odmitnuto;
                NaplnitGridPM(QStringLiteral("Novy zaznam"));
                poZmeneZakazky();
                return PoUlozeni::Dalsi;
            });
}

void OvladacZakazek::UpravitPM()
{
    const int r = m_GPM->currentRow();
    if (r < 0)
        return;
    const QString zakazka = m_vyber.txtzakazka(), sestava = m_vyber.txtSestava();
    const QString stary = m_GPM->item(r, 0)->text();
    Nastaveni::SaveSetting(QStringLiteral("Editor"), QStringLiteral("PM"), stary);
    const Nabidka n = nabidka(m_uloziste.dataS(), zakazka);
    const Desky::Deska deska = Desky::nacti(m_uloziste.dataS(), zakazka, sestava, stary);
    FrmNovy::TextyDesky texty;
    for (size_t i = 0; i < n.formaty.size(); ++i)
        if (n.formaty[i].ID == deska.idFormat)
            texty.format = n.textyFormatu[int(i)];
    for (int s = 0; s < 4; ++s)
        for (size_t i = 0; i < n.hrany.size(); ++i)
            if (n.hrany[i].ID == deska.hrany[s])
                texty.hrany[s] = n.textyHran[int(i)];
    FrmNovy d(m_okno, m_uloziste.cenik(), m_prompt);
    d.deska(FrmNovy::Stav::UpraveniPM, n.textyFormatu, n.textyHran, n.hrany, deska, texty,
            [&](const Desky::Deska& z, const FrmNovy::TextyDesky& t) {
                const QString puvodni = Nastaveni::GetSetting(QStringLiteral("Editor"), QStringLiteral("PM"));
                if (Desky::UlozitUpravuPM(m_uloziste.dataS(), m_prompt, zakazka, sestava, puvodni,
                                          sIdy(m_uloziste.dataS(), zakazka, z, t))
                        .isNull())
                    return PoUlozeni::Odmitnuto;
                NaplnitGridPM(QStringLiteral("Upravení záznamu"));
                poZmeneZakazky();
                return PoUlozeni::Zavrit;
            });
}

void OvladacZakazek::SmazatPM()
{
    const int r = m_GPM->currentRow();
    if (r < 0)
        return;
    if (Desky::SmazatPM(m_uloziste.dataS(), m_prompt, m_vyber.txtzakazka(), m_vyber.txtSestava(), m_GPM->item(r, 0)->text())) {
        NaplnitGridPM(QStringLiteral("Odstraneni zaznamu"));
        poZmeneZakazky();
    }
}

void OvladacZakazek::ImportDesek()
{
    if (m_AktSestava.isEmpty())
        return;
    FrmImport d(m_uloziste.dataS(), m_prompt, m_vyber.txtzakazka(), m_vyber.txtSestava(), m_okno);
    if (d.exec() == QDialog::Accepted) {
        NaplnitGridHrany(QStringLiteral("Novy zaznam"));
        NaplnitGridPM(QStringLiteral("Novy zaznam"));
        poZmeneZakazky();
    }
}
