#pragma once
// Boards of an assembly: the grid rows (by their stamp), and new, edit and delete with the
// "deska N" naming, the duplicate refusal and the assembly's header row taken over and given
// back. Messages through the Prompt; every write one transaction; store failures as Error.
#include <QString>
#include <optional>
#include <vector>

class Database;
class Prompt;

namespace Materialy {
struct Material;
}

namespace Desky {

struct Deska {
    QString oznaceni; // blank: the save makes "deska N"
    double x = 0, y = 0; // mm
    double pocet = 1;
    bool ov = false;
    double idFormat = 0;
    double hrany[4] = {0, 0, 0, 0}; // IDHX1, IDHX2, IDHY1, IDHY2
};

struct RadekGridu {
    Deska deska;
    QString format; // "DTD bílá 18 (2800 mm x 2070 mm)"
};

inline const char* const NazvyDesek[] = {"vrch", "spodek", "bok", "police", "dvířka", "záda", "stojna", "sokl"};

// What the board frame enables and draws (NahledDesky), from what its fields hold: the save is
// on while sizes, count and format are filled; the preview stands while both sizes do, and a
// side shows a band's colour (0x00BBGGRR) when its combo's text names one of the order's bands.
struct Nahled {
    bool ulozit = false;
    bool vykreslit = false;
    std::optional<qint64> barvy[4];
};
Nahled NahledDesky(const QString& x, const QString& y, const QString& pocet, const QString& format,
                   const QString (&hrany)[4], const std::vector<Materialy::Material>& pasky);

std::vector<RadekGridu> NaplnitGridPM(Database& db, const QString& zakazka, const QString& sestava);
Deska nacti(Database& db, const QString& zakazka, const QString& sestava, const QString& oznaceni);

// Returns the saved name, or a null QString when refused (a message was shown).
QString UlozitNovyPM(Database& db, Prompt& p, const QString& zakazka, const QString& sestava, const Deska& d);
QString UlozitUpravuPM(Database& db, Prompt& p, const QString& zakazka, const QString& sestava,
                       const QString& staryNazev, const Deska& d);
bool SmazatPM(Database& db, Prompt& p, const QString& zakazka, const QString& sestava, const QString& oznaceni);

}
