#pragma once
// The walk that every costing table and the workshop list share: the rows of each chosen
// assembly of an order, then for each edge band the board sides that carry it. What a row
// becomes is the caller's.
#include <QString>
#include <QStringList>
#include <functional>

class Database;
class Recordset;

namespace PruchodZakazky {

// The assemblies a calculation covers (by name, case-blind); empty: all.
using Vyber = QStringList;
bool vybrana(const Vyber& v, const QString& sestava);

// The first row of each new value of pole in a walk sorted by it, values compared as the store
// compares text (Czech, blind to case); poradi counts the groups from 0.
void kazdaSkupina(Recordset&& r, const QString& pole, const std::function<void(const Recordset& r, int poradi)>& naSkupinu);

// Each row of each chosen assembly with a stamp (cas > 0) and a name, in the given order
// (the field list after ORDER BY). A header row that kept its stamp after its last item went
// has no name and is left out.
void radky(Database& db, const QString& zakazka, const Vyber& vyber, const QString& poradi,
           const std::function<void(const Recordset& radek, const QString& sestava)>& naRadek);

// One band side of a board: X (cislo 2) or Y (cislo 3), and whether both sides of the pair
// carry this band (the pieces are then doubled).
struct StranaHrany {
    int cislo;
    bool obe;
    const char* rozmer() const { return cislo == 2 ? "x" : "y"; }
};
// Each band of the order ("hrana" rows of ZakazkyMaterialy), each board of a chosen assembly
// that uses it, each side of the board that carries it.
void hrany(Database& db, const QString& zakazka, const Vyber& vyber,
           const std::function<void(const Recordset& hrana, const Recordset& deska, const QString& sestava, StranaHrany strana)>&
               naStranu);

// The format row of a board; throws Error 5 naming board and assembly when it is gone.
Recordset format(Database& db, const QString& zakazka, const Recordset& deska, const QString& sestava);

} // namespace PruchodZakazky
