#pragma once
// The tables of our two database files, and their creation. DataS.db holds the orders, the
// offcut store and every working, costing and workshop table (empty: a plan run and a costing
// fill them in the throw-away copy DataK.db). Cenik.db holds the price list and the libraries.
#include <QString>
#include <QStringList>

namespace Schema {

constexpr int ApplicationId = 0x54524C52; // "TRLR": a file without it is not ours
constexpr int Verze = 1;                  // PRAGMA user_version of the files we write

enum class Soubor { Data, Cenik };

QStringList tabulky(Soubor soubor);
QStringList sloupce(const QString& tabulka);
QStringList indexy(Soubor soubor); // the indexes our files carry
// Their creation, harmless on a file that has them: a file made before an index was added
// gets it when it is opened for writing.
QString vytvorIndexy(Soubor soubor);

// Creates the file with every table, empty, through a temporary file renamed into place, so a
// crash leaves no half-made database. Throws Error (75, 3051, 3799) when it cannot be written.
void vytvor(const QString& cesta, Soubor soubor);

}
