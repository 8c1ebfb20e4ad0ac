#pragma once
// The cut list of a plan for a spreadsheet (CSV): a row per placed board with its sheet, its
// name, assembly and size, its place on the sheet, whether it is turned, and its bands by name.
// UTF-8 with a BOM, ";" between fields, CR LF, lengths in the user's unit with the locale's
// decimal sign: LibreOffice and Excel in Czech open it as it stands. Its header names the
// columns the board import reads, so the list imports back into an assembly.
#include <QByteArray>
#include <QString>

class Database;

namespace SeznamDilcu {

// The list of the plan in dataK (the order's bands read from there too).
QByteArray csv(Database& dataK, const QString& zakazka);

// Writes it into cil, replacing it. Throws Error (5 cil in Data/, 3799, 3051, 75).
void uloz(Database& dataK, const QString& zakazka, const QString& cil);

inline const char* Filtr = "Seznam dílců pro tabulkový procesor (*.csv)";
QString navrhNazvu(const QString& zakazka); // "name-dilce.csv"

} // namespace SeznamDilcu
