#pragma once
// frmPolozka: one item of the price list, new or edited. Name, code, the price without VAT with
// "Cena položky s DPH" beside it at every keystroke, unit, group, and the two pictures chosen
// in the picture library; while one is being chosen the frame fraNCenik carries the caller's
// mark, "N" for the first and "D" for the second. "Uložit" runs the price list's checks in their
// order and stays open on a refusal, so nothing typed is lost.
#include <QDialog>

namespace Cenik {
struct Polozka;
}
class Database;
class Error;
class Prompt;
class QButtonGroup;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;

class FrmPolozka : public QDialog {
    Q_OBJECT
public:
    // staryNazev: the item to edit; a null string for a new one.
    FrmPolozka(Database& cenik, Prompt& prompt, const QString& staryNazev, QWidget* rodic);

    QString nazev() const; // the name typed (after Accepted: as stored)
    int obrazek(int i) const { return m_obr[i]; } // IDE of picture i (0, 1), 0 for none

private:
    void vytvorObrazky(const Cenik::Polozka& p);
    void vyberObrazek(int i); // frmObr, marked "N" or "D"
    void ukazObrazek(int i);
    void ukazCenuSDph();
    void uloz();
    void chyba(const Error& e);

    Database& m_cenik;
    Prompt& m_prompt;
    QString m_staryNazev;
    QLineEdit* m_txtNazev;
    QLineEdit* m_txtKod;
    QLineEdit* m_txtCena;
    QLabel* m_lblCenaDPH;
    QComboBox* m_txtJednotka;
    QButtonGroup* m_skupiny;
    QGroupBox* m_fraNCenik;
    QLabel* m_lblO[2];
    int m_obr[2] = {0, 0};
};
