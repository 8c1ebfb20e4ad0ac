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
// The band that opens an assembly: "name - n ks - description" across the page, row 7 mm,
// size 10, light blue. A band that would start in the last 2500 twips of a page goes to the
// next one, so that it never stands alone at the foot.
void pasSestavy(Dokument& d, const QString& sestava, double pocet, const QString& popis);
void pas(Dokument& d, const QString& text); // the same band with a caption of its own
// The assembly's drawing (Schemata of the price list) under its table, fitted to the printable
// width; nothing for 0, a missing IDE or a picture that does not decode. Less than 2200 twips
// left on the page breaks it first.
void schema(Dokument& d, Database& cenik, double ide);
// Less than 2200 twips left on the page: the next row starts a new one.
void zlomStranyPodPrahem(Dokument& d);
// Column alignments by the old control's codes 6 (left), 7 (right), 8 (centre).
Qt::Alignment zarovnani(int kod);

struct Dan {
    double zaklad, dph, celkem;
};
// The base, the tax and the total with VAT: the total is rounded first, the tax is the rest.
Dan dan(double zaklad);
// The tax summary: "Základ daně", "DPH ( n% )", "Celkem včetně DPH", size 12 bold, two
// columns, after a gap; each report keeps its own widths and may light the total's cell.
struct VzhledDane {
    double levy = 45, pravy = 30;   // mm
    double mezera = 500;            // twips above
    QColor pozadiCelkem;            // invalid: none
};
void souhrnDane(Dokument& d, const Dan& dan, const VzhledDane& vzhled = {});

// The overlay of every page: the title, "Zakázka:", "Sestavy:" and the footer; with a note
// (not null, perhaps empty), "Poznámka:" in place of the assemblies, as the workshop's list has.
void prekryv(Dokument& d, const QString& titulek, const QString& zakazka, const QStringList& sestavy,
             const QString& poznamka = {});

QString castka(double v, int mist = 2);   // "1234,50" as the locale writes it
QString mena();                           // the setting Mena
double procentoDPH();                     // the setting DPH

// Fixed light greys for the old system colours of bands and headings.
inline const QColor SedaZvyrazneni(0xd8, 0xd8, 0xd8); // 0x80000013
inline const QColor SedaTlacitka(0xe8, 0xe8, 0xe8);   // 0x8000000F
inline const QColor Zluta(0xff, 0xff, 0x00);           // 65535, the purchase list's heads

}
