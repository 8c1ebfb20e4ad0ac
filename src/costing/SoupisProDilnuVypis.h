#pragma once
// The report "Soupis materiálu pro dílnu": per assembly its band, its boards, accessories and
// band pieces with sizes, and its drawing; with or without a small scaled drawing of each
// board. Reads SoupisProDilnu as NaplnSoupisProDilnu left it.
#include "costing/Vypis.h"

#include <array>
#include <optional>

inline const char* TitulekSoupisuProDilnu = "Soupis materiálu pro dílnu";

void SoupisProDilnuVypis(Dokument& d, Database& dataK, Database& cenik, const QString& zakazka, bool seSchematy);

// A board drawn in a room of the page (twips) at the largest scale that fits, its sides
// measured in the display unit, band ticks in each band's colour (X1 bottom, X2 top, Y1 left,
// Y2 right). A board too thin for its sizes to be read is drawn as a 700-twip box with its
// real sizes. Returns the drawn rectangle.
QRectF KresliDeskuDilna(Dokument& d, const QRectF& mistnost, double x, double y,
                        const std::array<std::optional<QColor>, 4>& hrany);
