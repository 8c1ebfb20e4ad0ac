#pragma once
// What every report of the costing shares: the A4 page set-up, the coloured band that opens a
// section, the right-aligned bold summary, the tax summary, the overlay of each page (title,
// order, assemblies, footer with "Strana  p / n"), and amounts in the form "0.00" with the
// locale's decimal separator.
#include "printing/Dokument.h"

#include <QString>
#include <QStringList>

class Database;

namespace Vypis {

// Portrait A4, margins left and right 10 mm, top 52 mm, bottom 20 mm; CurrentY at 45 mm.
void zacni(Dokument& d);
// A two-cell band across the page (the second cell 2000 twips), row 7 mm, size 10.
void pas(Dokument& d, const QString& levy, const QString& pravy, const QColor& barvaLeva, const QColor& barvaPrava);
// The bold summary cells of 25 mm at the right margin, row 5 mm.
void souhrn(Dokument& d, const QStringList& bunky);
// One row of a detail table, size 8, row 5 mm.
void radek(Dokument& d, const Tabulka& t, const QStringList& bunky);
// Column alignments by the old control's codes 6 (left), 7 (right), 8 (centre).
Qt::Alignment zarovnani(int kod);

struct Dan {
    double zaklad, dph, celkem;
};
// The base, the tax and the total with VAT: the total is rounded first, the tax is the rest.
Dan dan(double zaklad);
// The tax summary: "Základ daně", "DPH ( n% )", "Celkem včetně DPH", size 12 bold, 45 and 30 mm.
void souhrnDane(Dokument& d, const Dan& dan);

// The overlay of every page: the title, "Zakázka:", "Sestavy:" and the footer.
void prekryv(Dokument& d, const QString& titulek, const QString& zakazka, const QStringList& sestavy,
             const QString& poznamka = {});

QString castka(double v, int mist = 2);   // "1234,50" as the locale writes it
QString mena();                           // the setting Mena
double procentoDPH();                     // the setting DPH

// Fixed light greys for the old system colours of bands and headings.
inline const QColor SedaZvyrazneni(0xd8, 0xd8, 0xd8); // 0x80000013
inline const QColor SedaTlacitka(0xe8, 0xe8, 0xe8);   // 0x8000000F

}
