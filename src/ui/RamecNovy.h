#pragma once
// The building blocks of frmNovy's entry frames: a frame with its form and its Uložit and
// Zavřít keys, a text field cut while typing, a number field, a list that takes a text of its own.
#include "ui/CiselnePole.h"

#include <QString>
#include <QStringList>

class QComboBox;
class QFormLayout;
class QLineEdit;
class QPushButton;
class QStackedWidget;
class QWidget;

namespace RamecNovy {

// A frame shown alone in the dialog; the caller deletes w when the dialog is done with it.
struct Ramec {
    QWidget* w;
    QFormLayout* formular;
    QPushButton* ulozit; // off until the frame's rule turns it on
};
Ramec novy(QStackedWidget* ramce, const char* nazev, const char* tlacitko, const QString& tip);

// max > 0: cut to max characters while typing, the caret at the end.
QLineEdit* text(const char* nazev, int max = 0);
CiselnePole* pole(const char* nazev, CiselnePole::Druh druh, int mist = 2);
// An editable list offering polozky.
QComboBox* seznam(const char* nazev, const QStringList& polozky);

} // namespace RamecNovy
