#pragma once
// The language files of the main window: czech.txt and english.txt in the application folder,
// one caption per line, UTF-8, a line's number its only identity. This is the table of which
// line goes where, the check a file must pass before any caption changes, and the built-in
// copies that a new application folder receives.
//
// Where the lines and the window's parts do not pair one to one, it is settled so:
//  34   the top menu "Zakázky", which no other line names; blank, it keeps its caption;
//  49-52 the help menu, its two entries and the help button's tool tip, the 18th button
//       whose tip does not fit the 17 lines 53-69 (those serve the buttons before it);
//  70-72 the tree's heading and the tool tips of the price panels of the status bar;
//  73-75 the two tab pages and the frame of boards that heads the second;
//  88   the heading of the bands grid's hidden ID column, read and not shown;
//  103-106 the accessory grid's headings, then the caption of its frame.
#include <QByteArray>
#include <QString>
#include <QStringList>
#include <vector>

namespace Jazyk {

constexpr int PocetRadku = 109;
constexpr int NezobrazenyRadek = 34; // the one line that may be blank

enum class Druh {
    Popisek,   // the text of a menu, menu entry, label, button or frame (by object name)
    Tip,       // the tool tip of a toolbar action or a status panel
    Zalozka,   // a tab page of `nazev`, by index
    Sloupec,   // a column heading of the grid `nazev`, by index
    Nic,       // read, shown nowhere
};

struct Cil {
    int radek;
    Druh druh;
    const char* nazev;
    int index;
    QString popis() const; // "NZakazka", "tbNZ (tip)", "GridFormaty[0]" …
};

const std::vector<Cil>& cile(); // lines 1 to 109 in order

enum class Soubor { Cestina, Anglictina };
QString nazevSouboru(Soubor s);     // "czech.txt", "english.txt"
QString cesta(Soubor s);            // in the application folder
QByteArray vestaveny(Soubor s);     // the copy built into the program

// Lines 1 to 109 of a file (index 0 is line 1), as NactiJazyk reads it. Throws Error 75 with
// "Soubor jazykové verze neexistuje!!!" for a missing file and Error 5 with "Soubor jazykové
// verze je poškozený!!!" for fewer lines, text that is not UTF-8 or a blank caption.
QStringList nacti(const QString& cesta);

// Writes the files into the application folder where they are missing, from the shared data of
// an installed program or else the built-in copies; a file the user has edited is never replaced.
void zapisChybejici();

}
