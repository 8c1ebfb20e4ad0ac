#pragma once
// Copies of orders and assemblies: every field of Zakazky and ZakazkyMaterialy by name, ID and
// cas kept so that the references hold; an order under a new name (fresh datum), an assembly
// under a new name in its order, an assembly dropped on another order (names "A", "A_", "A__",
// the materials it needs brought along). Each copy is one transaction.
#include <QString>

class Database;
class Prompt;

namespace Kopirovani {

constexpr int MaxNazevZakazky = 50; // wider than the entry dialog's 30 on purpose
constexpr int MaxNazevSestavy = 7;

// Without questions: throws Error 5 with the message for a name too long, taken or empty, or an
// unknown source, writing nothing.
void kopirujZakazku(Database& dataS, const QString& zakazka, const QString& novy);
void kopirujSestavu(Database& dataS, const QString& zakazka, const QString& sestava, const QString& novy);
// The drop: returns the name the copy got. A material whose ID the target holds for another
// material gets a free stamp there (a second drop finds it by name and reuses it).
QString KopirovaniSestavy(Database& dataS, const QString& zakazka, const QString& sestava, const QString& cilovaZakazka);

// The commands of the window: ask for the name until it is good or the answer is empty (then
// a null QString comes back); the refusals are shown and the question is asked again.
QString UlozitZakazkuJako(Database& dataS, Prompt& prompt, const QString& zakazka);
QString UlozitSestavuJako(Database& dataS, Prompt& prompt, const QString& zakazka, const QString& sestava);

}
