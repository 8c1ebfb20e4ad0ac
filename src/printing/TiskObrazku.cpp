#include "printing/TiskObrazku.h"

#include "printing/Dokument.h"

#include <algorithm>

namespace TiskObrazku {

void tiskni(Dokument& d, const QImage& obrazek)
{
    d.naSirku = obrazek.width() > obrazek.height();
    d.MarginLeft = d.MarginRight = d.MarginTop = d.MarginBottom = Dokument::mm(10);
    d.StartDoc();
    if (!obrazek.isNull()) {
        const double sirka = obrazek.width() * TwipuNaPixel, vyska = obrazek.height() * TwipuNaPixel;
        const double volnoX = d.PageWidth() - d.MarginLeft - d.MarginRight;
        const double volnoY = d.PageHeight() - d.MarginTop - d.MarginBottom;
        const double meritko = std::min({1.0, volnoX / sirka, volnoY / vyska});
        d.DrawPicture(obrazek, d.MarginLeft, d.MarginTop, sirka * meritko, vyska * meritko);
    }
    d.EndDoc();
}

}
