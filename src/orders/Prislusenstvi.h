#pragma once
// Accessories of an assembly: rows of Zakazky with IDFormat 1. The grid rows (by their stamp),
// the texts of GPR's cells, the opening of an edit (old values kept in section Editor), the save
// of frmNovy's fraPřís (header take-over, the duplicate refusals, an edit that keeps its stamp)
// and the deletion (the last item gives the header back). Messages through the Prompt; every
// save and delete is one transaction; store failures as Error (5 for a missing assembly).
#include <QString>
#include <QStringList>
#include <vector>

class Database;
class Prompt;

namespace Prislusenstvi {

constexpr int MaxNazev = 100;

struct Polozka {
    QString oznaceni;
    double pocet = 0;
    QString jednotka;
    double cena = 0; // without VAT, per unit
};

// What fraPřís holds, as typed.
struct Zadani {
    QString oznaceni, pocet, jednotka, cena;
};

// GPR's rows: "SELECT * FROM Zakazky  WHERE ... and IDFormat = 1  ORDER BY cas".
std::vector<Polozka> NaplnitGridPR(Database& dataS, const QString& zakazka, const QString& sestava);
// GPR's cells: "2,125 ks" (pattern 0.000) and "25,00 Kč/ks" (pattern 0.00).
QString textMnozstvi(const Polozka& p);
QString textCeny(const Polozka& p, const QString& mena);
// The price label of a unit: "Kč/ks", "Kč/pár", "Kč/balení", "Kč/m2", else "Kč/bm".
QString popisekCeny(const QString& jednotka);
// The unit combo: "balení", "hod.", "pár(y)", then the price list's units not yet among them.
QStringList jednotky(const QStringList& jednotkyCeniku);

// Opening an edit: the row of that name, its old name and price kept in Editor
// (Prislusenstvi, CenaPrislusenstvi).
Polozka UpravitPrislusenstvi(Database& dataS, const QString& zakazka, const QString& sestava, const QString& oznaceni);

// Saves what fraPřís holds: uprava edits the row named in Editor/Prislusenstvi, else a new item
// is added. Returns whether it was stored; a refusal showed its message.
bool UlozitPrislusenstvi(Database& dataS, Prompt& prompt, bool uprava, const QString& zakazka, const QString& sestava,
                         const Zadani& z);
// Asks first; returns whether the item went.
bool SmazatPrislusenstvi(Database& dataS, Prompt& prompt, const QString& zakazka, const QString& sestava,
                         const QString& oznaceni);

} // namespace Prislusenstvi
