#pragma once
// Lengths between the store (millimetres, always) and what the user types and reads: one of
// five units, chosen by the setting Jednotky and read at every call. Also the price texts and
// the key filters of numeric fields, as pure functions a window calls from its key handler.
#include <QChar>
#include <QString>

namespace Jednotky {

int jednotka();                     // the setting Jednotky, 0..4 (anything else reads as 0)
QString pripona();                  // " mm", " cm", " dm", " m", " \""
int PocetDesetinnych();             // decimals allowed in entry: 1, 2, 3, 4, 3
QString JednotkaPocet(const QString& pocet); // "3 ks" / "3 pcs"

QString CisloZTextu(const QString& text);    // the text up to the first blank
double NaMilimetry(const QString& text);     // a typed or shown length, in mm
double ZMilimetruCislo(double mm);           // mm in the unit (inches rounded to 3 places)
QString ZMilimetru(double mm);               // the same as text with the unit's suffix
QString RozmerSJednotkou(const QString& text); // "" for 0 or empty, else text + suffix
QString RozmerDesky(const QString& nazev, double x, double y); // "name (x mm x y mm)"
QString cislo(double hodnota);               // a number in its plain general form, locale's point

QString CenaZaPlochu(const QString& cena);   // "350.00 Kč/m2", "" for 0 or empty
QString CenaZaPlochuSDPH(const QString& cena);
QString CenaZaMetr(const QString& cena);     // "12.50 Kč/m"

// Key filters: given the field's text, the selection in it, the key typed and the decimals
// (digits) allowed, the key to let through, or QChar() to refuse it. Backspace is '\b'.
QChar FiltrCisla(const QString& text, int selStart, int selLength, QChar klavesa, int desetinnych);
QChar FiltrCelehoCisla(const QString& text, int selStart, int selLength, QChar klavesa, int cislic);
QChar oddelovac(); // the locale's decimal separator

}
