#pragma once
// The price list Cenik of the catalogue database: the list as frmCenik shows it (one of four
// groups, one of four sort fields, both kept in Setting2), the search, an item's detail, the
// checks and the writing of frmPolozka, deletion, and the printed list. Messages through the
// Prompt; a refused item leaves the table as it was. Store failures as Error.
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

class Database;
class Dokument;
class Prompt;

namespace Cenik {

constexpr int MaxNazev = 100;
constexpr double MaxKod = 100000;
constexpr double MaxCena = 10000;
inline const char* const NazvyJednotek[] = {"ks", "pár", "balení", "m2", "bm"};
inline const char* const Skupiny[] = {"PM", "H", "P"};
inline const char* const NazvySkupin[] = {"Plošný materiál", "Hrany", "Příslušenství"};
inline const char* const TitulekVypisu = "Výpis z ceníku";

struct Polozka {
    qint64 kod = 0;
    QString nazev;
    double cena = 0; // without VAT
    QString jednotka;
    QString skupina; // "PM", "H", "P"
    int obr1 = 0, obr2 = 0; // IDE in Obrazky, 0 for none
};

// What frmPolozka holds, as typed: the checks read the texts.
struct Zadani {
    QString nazev, kod, cena, jednotka, skupina;
    int obr1 = 0, obr2 = 0;
};

// A sort field or a group as stored; anything outside the four goes back to "nazev" or "VSE",
// so that no stored text ever reaches the query.
QString Razeni(const QString& razeni);
QString Vyber(const QString& vyber);
QString ulozeneRazeni(); // from Setting2, through Razeni()
QString ulozenyVyber();
// A radio button chosen: saved at once (through the same fallbacks).
void VyberRazeniCeniku(const QString& vyber, const QString& razeni);

// The items of a group ("VSE": all) in the order of a sort field; equal keys in the order added.
std::vector<Polozka> NaplnCenik(Database& cenik, const QString& vyber, const QString& razeni);
// Their names: what lstCenik and the combos of the entry frames list.
QStringList NaplnitSeznamCeniku(Database& cenik, const QString& vyber, const QString& razeni);
// Every name that holds text, blind to case, in the order the items were added.
QStringList hledej(Database& cenik, const QString& text);
std::optional<Polozka> nacti(Database& cenik, const QString& nazev);

// The price rounded to 0.00, times (DPH / 100 + 1), rounded to 0.00.
double cenaSDPH(double cena, double dph);
// "12.50 Kč/ks" as lblCena shows it.
QString textCeny(double cena, const QString& mena, const QString& jednotka);

// The five checks in their order, then the write; staryNazev is null for a new item.
// Returns whether the item was stored.
bool UlozitPolozku(Database& cenik, Prompt& prompt, const QString& staryNazev, const Zadani& z);
// Many new items at once, all or none: returns -1 when all were stored, else the index of the
// first refused (its message was shown) and nothing is stored.
int nahraj(Database& cenik, Prompt& prompt, const std::vector<Zadani>& polozky);
// Asks first; returns whether the item went.
bool SmazatPolozku(Database& cenik, Prompt& prompt, const QString& nazev);

// "V Ý P I S   Z   C E N Í K U": the list in the window's group and order, a row per item.
void TiskCeniku(Dokument& d, Database& cenik, const QString& vyber, const QString& razeni);

}
