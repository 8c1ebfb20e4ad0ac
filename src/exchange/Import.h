#pragma once
// The import of a board list into an assembly: eight columns a line (name, length, width,
// count, the bands of X1, X2, Y1, Y2 by thickness), tab and ";" mixed, sizes in the user's unit
// with a decimal comma or point. A list as a spreadsheet saves it (CSV) names its columns in
// its first line ("Název", "Délka", "Šířka", "Počet", "Hrana X1" ...; case and accents aside,
// other columns ignored, no "Počet" is one each), its separator ";" or ",", fields maybe in
// double quotes, a band by its thickness or its material's name. The import is all or nothing:
// one refused line imports nothing.
#include <QByteArray>
#include <QString>
#include <optional>

class Database;
class Prubeh;

namespace Import {

constexpr qint64 MaxVelikost = 10 * 1024 * 1024;

// The band columns' names in a header, X1, X2, Y1, Y2.
inline const char* const SloupceHran[4] = {"Hrana X1", "Hrana X2", "Hrana Y1", "Hrana Y2"};

// Where the columns of a list with a header stand (-1: not there), and its separator.
struct Hlavicka {
    int radek = 0;  // the header's line, from 1
    QChar oddelovac; // ';' (tab too) or ','
    int nazev = -1, x = -1, y = -1, pocet = -1;
    int hrany[4] = {-1, -1, -1, -1};
};
// The columns named by a list's first line; nullopt when it names no "Délka" and "Šířka"
// (a list without a header).
std::optional<Hlavicka> hlavicka(const QString& prvniRadek);

// The text of a file as the old system or a spreadsheet wrote it: UTF-16 with its BOM, else
// UTF-8 (with a BOM or valid), else Windows-1250. Throws Error 5 for a file with NUL bytes
// (not UTF-16) or over MaxVelikost.
QString dekoduj(const QByteArray& obsah);
// The file's text by dekoduj, its size checked before it is read. Throws Error 5 as dekoduj,
// 75 when the file cannot be read.
QString nactiSoubor(const QString& cesta);

// A refused import: the message and the line (from 1, empty lines counted; 0 for none).
struct Odmitnuti {
    QString zprava;
    int radek = 0;
};

// Imports the text into the assembly. Returns how many boards were added, or the refusal
// (nothing written then). Store failures come as Error, nothing written either.
struct Vysledek {
    int pridano = 0;
    std::optional<Odmitnuti> odmitnuti;
};
// Reads and writes line by line, so memory stays flat; prubeh (when given) shows how far it got
// and may stop it (a refusal then, nothing written).
Vysledek importuj(Database& db, const QString& zakazka, const QString& sestava, const QString& text,
                  Prubeh* prubeh = nullptr);

} // namespace Import
