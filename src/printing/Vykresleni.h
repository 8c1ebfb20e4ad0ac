#pragma once
// The renderers of the print document: a page onto any painter (the preview draws it into an
// image at its zoom, the viewer's print onto the printer's painter), and the whole document to a
// PDF file written in one piece. Qt Gui only: printers belong to the windows.
#include "printing/Dokument.h"

#include <QImage>

class QPainter;

namespace Vykresleni {

// Paints one page (from 1) with the painter already scaled so that one unit is one twip.
void strana(QPainter& painter, const Dokument& dokument, int cislo);
// A page as an image, at zoom per cent of its size at 96 dpi.
QImage obraz(const Dokument& dokument, int cislo, int zoom);
// Every page into a PDF at cesta by the whole-file writer (Soubory::zapis): cesta is replaced
// only when the whole file is written. Throws Error (3051 read-only, 3799 disk full, 75 other).
void pdf(const Dokument& dokument, const QString& cesta, const QString& titulek = {});

} // namespace Vykresleni
