#pragma once
// The main window frmBorovak: the tree of orders and assemblies, the two-page tab with the four
// grids, the menu bar, the toolbar and the status bar. Every command goes through one table
// (TabulkaPrikazu). The window builds the widgets (FrmBorovakStavba.cpp) and wires them; each
// area is a controller of its own: the tree and the grids (OvladacZakazek), data, catalogues,
// plans and reports, and the language.
// The selection lives in txtzakazka and txtSestava: writing them refreshes the page, exactly
// as the hidden text boxes of the old window did.
#include "core/Jazyk.h"
#include "orders/Vyber.h"
#include "ui/OvladacDat.h"
#include "ui/OvladacJazyka.h"
#include "ui/OvladacKatalogu.h"
#include "ui/OvladacVypisu.h"
#include "ui/OvladacZakazek.h"
#include "ui/TabulkaPrikazu.h"

#include <QMainWindow>
#include <memory>

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

    void NaplnitStrom() { m_zakazky->NaplnitStrom(); }

    // The captions of the language file that is checked (cestina or Anglictina): OvladacJazyka.
    bool NactiJazyk() { return m_jazyk.NactiJazyk(); }
    void nastavPopisek(const Jazyk::Cil& cil, const QString& text) { m_jazyk.nastavPopisek(cil, text); }
    QString popisek(const Jazyk::Cil& cil) const { return m_jazyk.popisek(cil); }

    // An assembly node dropped on a node of another order: copied there on Yes.
    void pretazeni(QTreeWidgetItem* zdroj, QTreeWidgetItem* cil) { m_zakazky->pretazeni(zdroj, cil); }

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
    // the widgets (FrmBorovakStavba.cpp), into m_prvky
    QWidget* vytvorStrom();
    QWidget* vytvorZalozky();
    void vytvorStavovyRadek();
    void vytvorMenu();
    void vytvorNastroje();
    QWidget* vytvorStranku(const char* nazevRamce1, const QString& titulek1, QTableWidget*& grid1, const QStringList& sloupce1,
                           const char* nazevRamce2, const QString& titulek2, QTableWidget*& grid2, const QStringList& sloupce2,
                           const QStringList& tlacitka1, const QStringList& tlacitka2);
    void povol(const QStringList& nazvy, bool ano);
    void pridejPrikazy();
    QString popisekPrikazu(const QString& nazev) const;
    void otevriMoznosti();
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
    OvladacZakazek::Prvky m_prvky{};
    std::unique_ptr<OvladacZakazek> m_zakazky; // made once the widgets in m_prvky stand
};
