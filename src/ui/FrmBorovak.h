#pragma once
// The main window frmBorovak: the tree of orders and assemblies, the two-page tab with the four
// grids, the menu bar, the toolbar and the status bar. Every command goes through one table
// (TabulkaPrikazu). The window's own routines are the tree and the grids (FrmBorovakZaznamy.cpp,
// FrmBorovakKatalog.cpp for the accessories, FrmBorovakStavba.cpp for the widgets); data,
// catalogues, plans and reports, and the language are controllers of their own (Ovladac…).
// The selection lives in txtzakazka and txtSestava: writing them refreshes the page, exactly
// as the hidden text boxes of the old window did.
#include "core/Jazyk.h"
#include "orders/Materialy.h"
#include "orders/Prislusenstvi.h"
#include "orders/Vyber.h"
#include "ui/OvladacDat.h"
#include "ui/OvladacJazyka.h"
#include "ui/OvladacKatalogu.h"
#include "ui/OvladacVypisu.h"
#include "ui/TabulkaPrikazu.h"

#include <QMainWindow>
#include <optional>

class QAction;
class QLabel;
class QTableWidget;
class QTabWidget;
class QTreeWidget;
class QTreeWidgetItem;
class Prompt;
class Uloziste;

class FrmBorovak : public QMainWindow {
    Q_OBJECT
public:
    FrmBorovak(Uloziste& uloziste, Prompt& prompt);

    // The selection (what the hidden text boxes held).
    QString txtzakazka() const { return m_vyber.txtzakazka(); }
    QString txtSestava() const { return m_vyber.txtSestava(); }
    Vyber& vyber() { return m_vyber; }

    void NaplnitStrom();
    void ZakazEditaciZakazky();
    void PovolEditaciZakazky();
    void ZakazEditaciSestavy();
    void PovolEditaciSestavy();

    // The captions of the language file that is checked (cestina or Anglictina): OvladacJazyka.
    bool NactiJazyk() { return m_jazyk.NactiJazyk(); }
    void nastavPopisek(const Jazyk::Cil& cil, const QString& text) { m_jazyk.nastavPopisek(cil, text); }
    QString popisek(const Jazyk::Cil& cil) const { return m_jazyk.popisek(cil); }

    // An assembly node dropped on a node of another order: copied there on Yes.
    void pretazeni(QTreeWidgetItem* zdroj, QTreeWidgetItem* cil);

    // An order file (exchange JSON) named on the command line, as a double click in the file
    // manager does: loaded as a new order and selected. A refusal is shown in its Czech message
    // and leaves the store as it was.
    void otevriSoubor(const QString& soubor);

    // The commands of the menu bar and the toolbar, by entry name.
    void prikaz(const QString& nazev);
    QAction* akce(const QString& nazev) const;

protected:
    void closeEvent(QCloseEvent* e) override;
    bool eventFilter(QObject* o, QEvent* e) override;

private:
    // the widgets (FrmBorovakStavba.cpp)
    QWidget* vytvorStrom();
    QWidget* vytvorZalozky();
    void vytvorStavovyRadek();
    void vytvorMenu();
    void vytvorNastroje();
    QWidget* vytvorStranku(const char* nazevRamce1, const QString& titulek1, QTableWidget*& grid1, const QStringList& sloupce1,
                           const char* nazevRamce2, const QString& titulek2, QTableWidget*& grid2, const QStringList& sloupce2,
                           const QStringList& tlacitka1, const QStringList& tlacitka2);
    void povol(const QStringList& nazvy, bool ano);
    void klikNaUzel(QTreeWidgetItem* uzel);
    void obnovZakazku();
    void obnovSestavu();
    void obnovCeny(); // panels 2 and 3: the order and one piece of the assembly, with VAT
    // the entry commands (FrmBorovakZaznamy.cpp)
    void pridejPrikazy();
    void pridejPrikazyZaznamu();
    QString popisekPrikazu(const QString& nazev) const;
    void NovaZakazka();
    void UpravitZakazku();
    void SmazatZakazku();
    void NovaSestava();
    void UpravitSestavu();
    void SmazatSestavu();
    void NovyMaterial(bool hrana);
    std::optional<Materialy::Material> vybranyMaterial(bool hrana); // the grid's current row
    void UpravitMaterial(bool hrana);
    void SmazatMaterial(bool hrana);
    void NovyPM();
    void UpravitPM();
    void SmazatPM();
    void ImportDesek();
    void NaplnitGridFormaty(const QString& akce);
    void NaplnitGridHrany(const QString& akce);
    void NaplnitGridPM(const QString& akce);
    // the accessories, the price list and the libraries (FrmBorovakKatalog.cpp)
    void pridejPrikazyPrislusenstvi();
    void pripojKatalog();
    void NovePrislusenstvi();
    void UpravitPrislusenstvi();
    void SmazatPrislusenstvi();
    void otevriPrislusenstvi(bool uprava, const QStringList& jednotkyCeniku, const Prislusenstvi::Polozka& p);
    void NaplnitGridPR(const QString& akce);
    void NactiSchema();
    void vyberUzel(QString zakazka, QString sestava); // by value: callers pass the selection itself
    void otevriMoznosti();
    void poObnoveDat();
    void obnovGeometrii();
    void ulozGeometrii();

    Uloziste& m_uloziste;
    Prompt& m_prompt;
    Vyber m_vyber;
    TabulkaPrikazu m_prikazy;
    OvladacDat m_data;
    OvladacVypisu m_vypisy;
    OvladacKatalogu m_katalogy;
    OvladacJazyka m_jazyk;
    QString m_AktZakazka, m_AktSestava;
    QTreeWidget* m_tvzakazky;
    QTabWidget* m_stZakazky;
    QTableWidget* m_GridFormaty;
    QTableWidget* m_GridHrany;
    QTableWidget* m_GPM;
    QTableWidget* m_GPR;
    QLabel* m_img1;
    QLabel* m_panel[3];
};
