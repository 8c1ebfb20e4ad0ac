#pragma once
// The renderers of the print document: a page onto any painter (the preview draws it into an
// image at its zoom), the whole document to a printer, and to a PDF file written in one piece.
#include "printing/Dokument.h"

#include <QImage>

class QPainter;
class QPrinter;

namespace Vykresleni {

// Paints one page (from 1) with the painter already scaled so that one unit is one twip.
void strana(QPainter& painter, const Dokument& dokument, int cislo);
// A page as an image, at zoom per cent of its size at 96 dpi.
QImage obraz(const Dokument& dokument, int cislo, int zoom);
// Every page to the printer, scaled from twips to its resolution.
void tisk(const Dokument& dokument, QPrinter& tiskarna);
// Every page into a PDF at cesta, through a temporary file that replaces cesta only when the
// whole file is written. Throws Error (3051 read-only, 3799 disk full, 75 other failures).
void pdf(const Dokument& dokument, const QString& cesta, const QString& titulek = {});

}
