#pragma once
// The settings that the options dialog edits, as one table: each key with its section, the
// control that shows it, what kind of value it holds, its allowed range and the caption a
// refusal names. Loading gives every control's text; saving checks all fields first and then
// writes in the dialog's order, the unit last, so lengths still convert with the old unit.
#include "core/Prompt.h"

#include <QMap>
#include <QString>
#include <optional>
#include <vector>

namespace Moznosti {

enum class Druh {
    Delka,      // millimetres in the store, typed and shown in the unit of Jednotky
    Cislo,      // stored as typed, decimals allowed
    Cele,       // stored as typed, whole numbers
    Zaskrtnuti, // "1" / "0"
    Volba,      // one of a list (VykresleniTabule, Jednotky)
    Text,       // the currency, a font name
    Logicke,    // "True" / "False" (font styles)
    Barva,      // "&H00BBGGRR&", typed "#RRGGBB"
};

struct Pole {
    const char* klic;
    const char* sekce;
    const char* ovladac;  // the dialog's control: "txtS(0)", "chZCR", …
    Druh druh;
    double od, po;        // range; lengths in millimetres
    bool kladne;          // the lower bound itself is refused (label sizes)
    const char* popisek;  // the field's caption in a refusal
    int krok;             // place in the save order, 1..7; 0: stored at once by a chooser
};

// Every key of the dialog in save order.
const std::vector<Pole>& pole();
const Pole* najdi(const QString& klic);

// key -> text; for saving, the texts as typed (a length in the current unit, "," or "."),
// for showing, as loaded.
using Hodnoty = QMap<QString, QString>;

// Every field's text for editing: lengths in the current unit without suffix and with the
// locale's decimal point, check boxes "1"/"0", colours "#RRGGBB".
Hodnoty nacti();
// The same as the dialog shows it: lengths with their suffix, Jednotky as its combo item.
Hodnoty zobraz();

QStringList polozkyJednotek();   // "1000 mm" … the inch sign, in the order of Jednotky
QStringList polozkyMen();        // the currencies offered; any other text may be typed

struct Odmitnuti {
    QString klic;
    QString zprava;   // "Zadejte v poli „…“ číslo od … do …!"
};
inline const QString TitulekOdmitnuti = QStringLiteral("Špatné zadání");

// The captions of boards and offcuts in plans: their fonts, kept in seven keys each and
// stored at once by the font chooser (the settings' own spelling of the keys included).
enum class Popis { Deska, Odrezek };
VolbaPisma pismo(Popis popis);
void ulozPismo(Popis popis, const VolbaPisma& volba);

// The first field (in save order) whose text may not be stored.
std::optional<Odmitnuti> over(const Hodnoty& hodnoty);
// Checks every field given, then stores them in save order; the keys not given stay as they
// are. Throws Error 5 with the refusal's text, having written nothing.
void uloz(const Hodnoty& hodnoty);

}
