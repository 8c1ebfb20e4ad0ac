// The main window's accessories (GPR and fraPřís) and its schema picture img1.
#include "ui/OvladacZakazek.h"

#include "catalogues/Cenik.h"
#include "catalogues/Knihovna.h"
#include "core/Nastaveni.h"
#include "core/Uloziste.h"
#include "orders/Prislusenstvi.h"
#include "orders/Vyber.h"
#include "orders/Zakazky.h"
#include "printing/Obrazky.h"
#include "ui/FrmNovy.h"

#include <QLabel>
#include <QTableWidget>

void OvladacZakazek::NaplnitGridPR(const QString& akce)
{
    const int predtim = m_GPR->currentRow();
    const auto radky = m_AktSestava.isEmpty()
                           ? std::vector<Prislusenstvi::Polozka>{}
                           : Prislusenstvi::NaplnitGridPR(m_uloziste.dataS(), m_vyber.txtzakazka(), m_vyber.txtSestava());
    const QString mena = Nastaveni::GetSetting(QStringLiteral("Setting2"), QStringLiteral("Mena"));
    m_GPR->setRowCount(int(radky.size()));
    for (int i = 0; i < int(radky.size()); ++i) {
        const QStringList bunky = {radky[i].oznaceni, Prislusenstvi::textMnozstvi(radky[i]),
                                   Prislusenstvi::textCeny(radky[i], mena)};
        for (int j = 0; j < bunky.size() && j < m_GPR->columnCount(); ++j)
            m_GPR->setItem(i, j, new QTableWidgetItem(bunky[j]));
    }
    if (m_GPR->rowCount() > 0) {
        const bool novy = akce == QLatin1String("Novy zaznam");
        m_GPR->selectRow(novy || predtim < 0 ? m_GPR->rowCount() - 1 : qMin(predtim, m_GPR->rowCount() - 1));
    }
    const bool radek = m_GPR->rowCount() > 0 && !m_AktSestava.isEmpty();
    povol({QStringLiteral("UpraveniP"), QStringLiteral("SmazaniP"), QStringLiteral("cmdUpravitPrislusenstvi"),
           QStringLiteral("cmdSmazatPrislusenstvi"), QStringLiteral("tbUPR"), QStringLiteral("tbOPR")},
          radek);
    povol({QStringLiteral("cmdNovePrislusenstvi"), QStringLiteral("NoveP"), QStringLiteral("tbNPR")}, !m_AktSestava.isEmpty());
}

void OvladacZakazek::NovePrislusenstvi()
{
    if (m_vyber.txtSestava().isEmpty())
        return;
    QStringList jednotkyCeniku;
    for (const Cenik::Polozka& p : Cenik::NaplnCenik(m_uloziste.cenik(), QStringLiteral("VSE"), QStringLiteral("Jednotka")))
        jednotkyCeniku << p.jednotka;
    otevriPrislusenstvi(false, jednotkyCeniku, {});
}

void OvladacZakazek::UpravitPrislusenstvi()
{
    const int r = m_GPR->currentRow();
    if (r < 0 || !m_GPR->item(r, 0))
        return;
    otevriPrislusenstvi(true, {},
                        Prislusenstvi::UpravitPrislusenstvi(m_uloziste.dataS(), m_vyber.txtzakazka(), m_vyber.txtSestava(),
                                                            m_GPR->item(r, 0)->text()));
}

void OvladacZakazek::otevriPrislusenstvi(bool uprava, const QStringList& jednotkyCeniku, const Prislusenstvi::Polozka& p)
{
    const QString zakazka = m_vyber.txtzakazka(), sestava = m_vyber.txtSestava();
    Database& cenik = m_uloziste.cenik();
    // a name chosen from the price list brings its price and unit
    auto zCeniku = [&cenik](const QString& nazev) -> std::optional<Prislusenstvi::Polozka> {
        const auto c = Cenik::nacti(cenik, nazev);
        if (!c)
            return std::nullopt;
        return Prislusenstvi::Polozka{c->nazev, 0, c->jednotka, c->cena};
    };
    FrmNovy d(m_okno, cenik, m_prompt);
    d.prislusenstvi(uprava ? FrmNovy::Stav::UpraveniPrislusenstvi : FrmNovy::Stav::NovePrislusenstvi,
                    Cenik::NaplnitSeznamCeniku(cenik, Cenik::ulozenyVyber(), Cenik::ulozeneRazeni()),
                    Prislusenstvi::jednotky(jednotkyCeniku), p, zCeniku, [&](const Prislusenstvi::Zadani& z) {
                        if (!Prislusenstvi::UlozitPrislusenstvi(m_uloziste.dataS(), m_prompt, uprava, zakazka, sestava, z))
                            return FrmNovy::PoUlozeni::Odmitnuto;
                        NaplnitGridPR(uprava ? QStringLiteral("Upravení záznamu") : QStringLiteral("Novy zaznam"));
                        obnovCeny();
                        // a new item keeps the frame open for the next one
                        return uprava ? FrmNovy::PoUlozeni::Zavrit : FrmNovy::PoUlozeni::Dalsi;
                    });
}

void OvladacZakazek::SmazatPrislusenstvi()
{
    const int r = m_GPR->currentRow();
    if (r < 0 || !m_GPR->item(r, 0))
        return;
    if (Prislusenstvi::SmazatPrislusenstvi(m_uloziste.dataS(), m_prompt, m_vyber.txtzakazka(), m_vyber.txtSestava(),
                                           m_GPR->item(r, 0)->text())) {
        NaplnitGridPR(QStringLiteral("Odstraneni zaznamu"));
        obnovCeny();
    }
}

void OvladacZakazek::NactiSchema()
{
    const int schema =
        m_AktSestava.isEmpty() ? 0 : Zakazky::nactiSestavu(m_uloziste.dataS(), m_vyber.txtzakazka(), m_AktSestava).schema;
    const QImage obr = Knihovna::obrazek(m_uloziste.cenik(), Knihovna::Druh::Schemata, schema);
    if (obr.isNull()) {
        m_img1->clear();
        return;
    }
    m_img1->setPixmap(QPixmap::fromImage(Obrazky::vepsany(obr, m_img1->contentsRect().size())));
}
