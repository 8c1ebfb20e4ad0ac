#pragma once
// The offcut store SkladOdrezku: the rows as the window lists them, a new piece and an edit
// (with the question that merges pieces of one material and size), the deletion of a whole
// row, and the printed list. Sizes are millimetres and compared through x*10, as the plan's
// tenths are.
#include <QJsonArray>
#include <QString>
#include <vector>

class Database;
class Dokument;
class Prompt;

namespace Sklad {

constexpr int MaxNazev = 100;
inline const char* TitulekVypisu = "Výpis materiálů ze skladu odřezků";

struct Odrezek {
    QString material;
    double x = 0, y = 0;
    int pocet = 0;
};

// The grid's rows: of one material (empty: all), ordered by a field (material, x, y, Pocet).
std::vector<Odrezek> nacti(Database& dataS, const QString& material, const QString& razeni);

// Refuses a name over 100 characters, an empty one, a size of 0 and a count below 1 with a
// message. A piece of a size already stored asks whether to add to it; No stores nothing.
// Returns whether anything was stored.
bool UlozitNovyOdrezek(Database& dataS, Prompt& prompt, const Odrezek& o);
// The row stary (as the settings Sklad kept it) rewritten to novy; a new size that is already
// stored asks the same question, and on Yes the pieces join that row and the old row goes.
bool UlozitUpravuOdrezku(Database& dataS, Prompt& prompt, const Odrezek& stary, const Odrezek& novy);
// Adds each piece as a row of its own, all in one transaction and without questions (the
// command line's load; the caller has checked the values).
void pridej(Database& dataS, const std::vector<Odrezek>& odrezky);
// For the plan's write-back, sizes in the plan's tenths of a millimetre: one piece of the
// material and size out of the store (the row goes with its last piece; none there: nothing
// happens), and one piece in (a new row, or one more in the row of that size).
void odeberKus(Database& dataS, const QString& material, double xDesetiny, double yDesetiny);
void pridejKus(Database& dataS, const QString& material, double xDesetiny, double yDesetiny);
// The store's rows as JSON (Material, x, y, Pocet), in the order they were added.
QJsonArray VypisJson(Database& dataS);
// The whole row, whatever its count.
void SmazatOdrezek(Database& dataS, const Odrezek& o);

// "VÝPIS ZE SKLADU ODŘEZKŮ": one material by size, or all by material.
void VypisSkladu(Dokument& d, Database& dataS, const QString& material);

} // namespace Sklad
