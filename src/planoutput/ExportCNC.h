#pragma once
// The finished plan of one format as a .VPF file for the panel saw's optimiser: part kinds
// (pairs of assembly and board name) and usable remnants numbered in the working tables, then
// the head, the material, the parts, the rests and every sheet, line by line, CR LF, in the
// Windows code page of Czech. Sizes are the raw tenths of a millimetre.
#include "planoutput/StrankyNP.h"

#include <QString>
#include <QStringList>

class Database;

namespace ExportCNC {

inline const char* Ulozeno = "CNC kód byl uložen";
inline const char* ChybaPrevodu = "Chyba při převodu!";
inline const char* NavrhNazvu = "OUT00000.VPF";

// The lines of the material section that are literals of the format, not settings (the options
// dialog shows them, read-only).
QStringList konstantyMaterialu();

// The file's text. Empty when the plan has no placed board or no remnant above XZ by YZ
// (then no file is to be made); numbers Part in SoupisDesek and SoupisZbytku on the way.
QString text(Database& dataS, Database& dataK, const PlanNaStrankach& plan);

// text() written as a whole file (Soubory::zapis): all or nothing under the name. Returns false,
// writing nothing, when there is nothing to export; throws Error 3799 disk full, 3051
// read-only, 75 other failures of the file.
bool zapis(Database& dataS, Database& dataK, const PlanNaStrankach& plan, const QString& soubor);

} // namespace ExportCNC
