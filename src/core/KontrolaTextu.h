#pragma once
// Names and texts where they enter the store (exchange files, the import list, dialogs,
// copying): a NUL or another control character would break the queries built from them later,
// a broken UTF-16 pair would be stored as "?", and a name of megabytes would make every plan
// crawl. Each is refused with a Czech message naming the field.
#include <QString>
#include <initializer_list>

class Prompt;

namespace KontrolaTextu {

constexpr int Nejvys = 255;         // where no narrower limit is set for the field
constexpr int NazevZakazky = 50;    // an order's name, as copying allows it
constexpr int NazevMaterialu = 100; // price list items, accessories, offcut materials

enum class Radky { Ne, Ano }; // whether line breaks and tabs belong (notes, descriptions)

// The refusal of text for the field pole, or an empty string when it may be stored.
QString chyba(const QString& text, const QString& pole, int nejvys = Nejvys, Radky radky = Radky::Ne);
// Throws Error 5 (refused input) with chyba() when it is not empty.
void zkontroluj(const QString& text, const QString& pole, int nejvys = Nejvys, Radky radky = Radky::Ne);

// The fields of a dialog: the first refused one is said through the prompt (critical icon) and
// the answer is false, so the dialog stays open.
struct Pole {
    QString text, nazev;
    int nejvys = Nejvys;
    Radky radky = Radky::Ne;
};
bool prijmi(Prompt& p, std::initializer_list<Pole> pole);

}
