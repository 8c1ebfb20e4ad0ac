#pragma once
// A numeric field: keys filtered as the old fields filtered them (decimals by the unit or
// fixed, whole numbers by digits), the whole text selected on focus, and a length shown with
// its unit's suffix when the focus leaves ("1200" reads "1200 mm"); other numbers in the form
// set for them ("350" reads "350.00 Kč/m2"). The focus back strips the form for editing.
#include <QLineEdit>

#include <functional>

class CiselnePole : public QLineEdit {
    Q_OBJECT
public:
    enum class Druh { Delka, Desetinne, Cele };
    CiselnePole(Druh druh, int mist, QWidget* rodic = nullptr);
    double mm() const;       // a length in millimetres
    double hodnota() const;  // the number typed
    void nastavMm(double mm); // a length from the store, shown in the unit
    // A length of 0 keeps "0 mm" when the focus leaves, for fields where 0 is a setting of its
    // own (a gap, a margin), not an empty entry.
    void nulaJeHodnota(bool ano) { m_nula = ano; }
    // The form of a number when the focus leaves: a price function of Jednotky, or
    // sDesetinnymi for a bare number.
    using Tvar = std::function<QString(const QString&)>;
    void nastavTvar(Tvar tvar) { m_tvar = std::move(tvar); }
    static Tvar sDesetinnymi(int mist); // "2.5" reads "2.500" with three places
    // A number the program puts in (from the store or the price list), shown in the form as
    // if typed and left; while the field has the focus, bare for editing.
    void nastavCislo(const QString& cislo);

protected:
    void keyPressEvent(QKeyEvent* e) override;
    void focusInEvent(QFocusEvent* e) override;
    void focusOutEvent(QFocusEvent* e) override;

private:
    Druh m_druh;
    int m_mist;
    bool m_nula = false;
    Tvar m_tvar;
};
