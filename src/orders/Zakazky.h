#pragma once
// Orders and assemblies: creating, editing and deleting them as rows of Zakazky, with the
// header-row rules (an order's header row lives while it has no assembly, an assembly's while
// it has no item). Each routine asks and tells through the Prompt, answers whether it did its
// work (false: refused or declined, a message was shown), and writes in one transaction.
// Store failures come as Error.
#include <QString>

class Database;
class Prompt;

namespace Zakazky {

constexpr int MaxNazevZakazky = 30; // cut while typing
constexpr int MaxNazevSestavy = 7;

bool UlozitNovouZakazku(Database& db, Prompt& p, const QString& nazev, const QString& poznamka);
bool UlozitUpravuZakazky(Database& db, Prompt& p, const QString& stary, const QString& nazev, const QString& poznamka);
bool SmazatZakazku(Database& db, Prompt& p, const QString& nazev);

struct Sestava {
    QString nazev, popis;
    double pocet = 1;
    int schema = 0;
};
Sestava nactiSestavu(Database& db, const QString& zakazka, const QString& nazev);
bool UlozitNovouSestavu(Database& db, Prompt& p, const QString& zakazka, const Sestava& s);
bool UlozitUpravuSestavy(Database& db, Prompt& p, const QString& zakazka, const QString& stary, const Sestava& s);
bool SmazatSestavu(Database& db, Prompt& p, const QString& zakazka, const QString& nazev);

QString poznamka(Database& db, const QString& zakazka);

}
