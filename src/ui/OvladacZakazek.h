#pragma once
// The orders of the main window: the tree of orders and assemblies, the order page (formats,
// bands) and the assembly page (boards, accessories, the schema picture), the selection that
// keeps them in step, and the price panels of the status bar, renewed by every change that
// moves a price. Its commands enter, edit, save as, delete and drag-copy orders, assemblies,
// formats, bands, boards and accessories: each opens frmNovy in its frame, hands the save to the
// orders library, and refills and reselects what the save changed.
//   OvladacZakazek.cpp         the tree, the selection, the panels, the state of the commands
//   OvladacZakazekZaznamy.cpp        orders, assemblies, formats, bands, boards, the board import
//   OvladacZakazekPrislusenstvi.cpp  accessories and the schema picture
#include "costing/Rezani.h"
#include "orders/Materialy.h"
#include "orders/Prislusenstvi.h"

#include <QObject>
#include <QString>
#include <functional>
#include <optional>

class Prompt;
class QLabel;
class QTableWidget;
class QTabWidget;
class QTreeWidget;
class QTreeWidgetItem;
class QWidget;
class TabulkaPrikazu;
class Uloziste;
class Vyber;

class OvladacZakazek : public QObject {
    Q_OBJECT
public:
    // The widgets of the window that this controller fills and answers.
    struct Prvky {
        QTreeWidget* tvzakazky;
        QTabWidget* stZakazky;
        QTableWidget* GridFormaty;
        QTableWidget* GridHrany;
        QTableWidget* GPM;
        QTableWidget* GPR;
        QLabel* img1;
        QLabel* panel[3]; // the note, the order's price, the price of one piece of the assembly
    };
    // Switches the window's menu entries, toolbar keys and grid buttons of those names.
    using Povol = std::function<void(const QStringList& nazvy, bool ano)>;

    // okno is the parent of the dialogs; the selection lives in vyber.
    OvladacZakazek(Uloziste& uloziste, Prompt& prompt, Vyber& vyber, QWidget* okno, const Prvky& prvky, Povol povol);
    void pridejPrikazy(TabulkaPrikazu& tabulka);

    const QString& AktSestava() const { return m_AktSestava; }
    void NaplnitStrom();
    void klikNaUzel(QTreeWidgetItem* uzel);
    // An assembly node dropped on a node of another order: copied there on Yes.
    void pretazeni(QTreeWidgetItem* zdroj, QTreeWidgetItem* cil);
    // The state of the commands for no selection, as the window starts.
    void ZakazEditaci();
    // Both pages and the panels again (the unit or the prices may have changed).
    void obnovStranky();
    // After a restore: the tree filled again, nothing selected.
    void poObnoveDat();
    void NactiSchema();
    // the tree filled again and the node selected
    void vyberUzel(QString zakazka, QString sestava); // by value: callers pass the selection itself

protected:
    bool eventFilter(QObject* o, QEvent* e) override;

private:
    void ZakazEditaciZakazky();
    void PovolEditaciZakazky();
    void ZakazEditaciSestavy();
    void PovolEditaciSestavy();
    void povol(const QStringList& nazvy, bool ano) { m_povol(nazvy, ano); }
    void obnovZakazku();
    void obnovSestavu();
    void obnovCeny(); // panels 2 and 3: the order and one piece of the assembly, with VAT
    // The order's boards, formats or bands changed: its cut lengths go, the panels are anew.
    void poZmeneZakazky();
    void UlozitZakazkuJako();
    void UlozitSestavuJako();
    // orders, assemblies, formats, bands and boards (OvladacZakazekZaznamy.cpp)
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
    void NaplnitGridFormaty(const QString& akce);
    void NaplnitGridHrany(const QString& akce);
    void NovyPM();
    void UpravitPM();
    void SmazatPM();
    void ImportDesek();
    void NaplnitGridPM(const QString& akce);
    // accessories (OvladacZakazekPrislusenstvi.cpp)
    void NovePrislusenstvi();
    void UpravitPrislusenstvi();
    void SmazatPrislusenstvi();
    void otevriPrislusenstvi(bool uprava, const QStringList& jednotkyCeniku, const Prislusenstvi::Polozka& p);
    void NaplnitGridPR(const QString& akce);

    Uloziste& m_uloziste;
    Prompt& m_prompt;
    Vyber& m_vyber;
    QWidget* m_okno;
    Povol m_povol;
    QString m_AktZakazka, m_AktSestava;
    QTreeWidget* m_tvzakazky;
    QTabWidget* m_stZakazky;
    QTableWidget* m_GridFormaty;
    QTableWidget* m_GridHrany;
    QTableWidget* m_GPM;
    QTableWidget* m_GPR;
    QLabel* m_img1;
    QLabel* m_panel[3];
    Rezani::Pamet m_delkyRezu; // of the cutting in panel 2, kept while moving around the tree
};
