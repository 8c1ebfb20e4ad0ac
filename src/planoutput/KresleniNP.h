#pragma once
// The drawing primitives of a plan: a board (KresliDesku), a remnant (KresliOdrezek) and a
// label (KresliStitek), each a rectangle with its band marks and its text fitted in one of five
// forms, the font shrinking down to size 5. Lengths of the plan are in tenths of a millimetre,
// lengths of the page in twips.
#include "printing/Dokument.h"

#include <QHash>
#include <QString>
#include <array>
#include <optional>

class Database;

// Font and colours of boards or of remnants, from the settings (keys ...Desky or ...Odrezku).
struct StylNP {
    Pismo pismo;
    QColor barvaPisma;
    QColor vypln;
    static StylNP desky();
    static StylNP odrezku();
};

// The colours of the band on each side of a board, in the order IDHX1, IDHX2, IDHY1, IDHY2;
// empty where the side has none or its band row is gone.
using HranyDesky = std::array<std::optional<QColor>, 4>;

// The bands of one order by their ID, read once per page run.
class BarvyHran {
public:
    BarvyHran(Database& dataS, const QString& zakazka);
    HranyDesky desky(const double id[4]) const; // the board's IDHX1..IDHY2

private:
    QHash<qint64, QColor> m_barvy;
};

// Popis of a board: its popis, then "1" when band marks are shown, then "1" when it is turned.
QString PopisNP(const QString& popis, bool zobrazeniHran, bool otoceno);

// The form of text that the fit chose: 1 to 5, 0 when nothing was written.
int KresliDesku(Dokument& d, double X, double Y, double OkrajX, double OkrajY, double SirkaX, double SirkaY,
                double Meritko, const QString& Oznaceni, const QString& Popis, const QString& Sestava,
                const HranyDesky& hrany, double SamovaniNP, const StylNP& styl);
int KresliOdrezek(Dokument& d, double X, double Y, double OkrajX, double OkrajY, double SirkaX, double SirkaY,
                  double Meritko, const QString& Oznaceni, double SamovaniNP, const StylNP& styl);
int KresliStitek(Dokument& d, double delka, double sirka, double X, double Y, double SirkaX, double SirkaY,
                 double Meritko, const QString& Oznaceni, const QString& Popis, const QString& Sestava, bool OV,
                 const HranyDesky& hrany, const StylNP& styl);
