#pragma once
// Boards of an assembly: the grid rows (by their stamp), and new, edit and delete with the
// "deska N" naming, the duplicate refusal and the assembly's header row taken over and given
// back. Messages through the Prompt; every write one transaction; store failures as Error.
#include <QString>
#include <vector>

class Database;
class Prompt;

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

std::vector<RadekGridu> NaplnitGridPM(Database& db, const QString& zakazka, const QString& sestava);
Deska nacti(Database& db, const QString& zakazka, const QString& sestava, const QString& oznaceni);

// Returns the saved name, or a null QString when refused (a message was shown).
QString UlozitNovyPM(Database& db, Prompt& p, const QString& zakazka, const QString& sestava, const Deska& d);
QString UlozitUpravuPM(Database& db, Prompt& p, const QString& zakazka, const QString& sestava,
                       const QString& staryNazev, const Deska& d);
bool SmazatPM(Database& db, Prompt& p, const QString& zakazka, const QString& sestava, const QString& oznaceni);

}
