#pragma once
// A picture printed on its own: one page, the picture at its natural size (96 pixels to the
// inch) from the top left margin, shrunk with its proportions kept when it would pass the
// margins; a landscape page for a picture wider than tall. A null picture leaves an empty page.
#include <QImage>

class Dokument;

namespace TiskObrazku {

constexpr double TwipuNaPixel = 1440.0 / 96;

void tiskni(Dokument& d, const QImage& obrazek);

}
