#pragma once
// frmCenik: the price list lstCenik in the chosen group and order (both saved at once), the
// search, the chosen item's detail with its two pictures, and the keys for a new item, an edit
// (frmPolozka), deletion and the printed list; opened from the menu, also the backup and the
// restore of the price list.
#include "ui/OvladacDat.h"

#include <QDialog>
#include <memory>

class Database;
class Prompt;
class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;

class FrmCenik : public QDialog {
    Q_OBJECT
public:
    // klic: the calling field's key (VM, VF, VH, EP), which enables the choosing keys; empty
    // when opened from the menu.
    FrmCenik(Database& cenik, Prompt& prompt, QWidget* rodic, const QString& klic = QString());
    // From the menu: with "Záloha ceníku" and "Obnova ceníku"; after a restore the window reads
    // the reopened store.
    FrmCenik(Uloziste& uloziste, Prompt& prompt, QWidget* rodic);

    void NaplnCenik();
    void prikaz(const QString& klic); // NPoložka, UPoložky, OPoložky, ZD, OZ, TiskPC, Konec, VM, VF, VH, EP
    // The item chosen with VM, VF, VH or EP: its name (empty when the window closed otherwise).
    QString vybrano() const { return m_vybrano; }

protected:
    bool eventFilter(QObject* o, QEvent* e) override; // a click on a picture: frmNahled

private:
    QGroupBox* vytvorDetail();
    void detail(const QString& nazev);
    bool polozka(const QString& staryNazev); // frmPolozka

    Database& cenik() const { return *m_cenik; }

    Database* m_cenik;
    Prompt& m_prompt;
    std::unique_ptr<OvladacDat> m_zalohy; // the price list's backups, when opened from the menu
    QListWidget* m_lstCenik;
    QCheckBox* m_chVyber;
    QLineEdit* m_txtMaterial;
    QLabel* m_lblKod;
    QLabel* m_lblCena;
    QLabel* m_lblCenaDPH;
    QLabel* m_lblDPH;
    QLabel* m_img[2];    // img1: the item's two pictures, fitted
    QLabel* m_lblObr[2]; // their names in the library
    int m_obr[2] = {0, 0};
    QString m_vybrano;
};
