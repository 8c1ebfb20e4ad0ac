#pragma once
// The print document that plans, labels and reports are laid out in: pages in twips (1/1440
// inch, A4 = 11907 x 16839.9), each a list of recorded drawing operations, with the old print
// control's state (font, pen, brush, text angle, CurrentX/CurrentY, margins). Renderers
// (Vykresleni.h) paint the pages on screen, on a printer and into PDF; tests read the operations.
#include "printing/Operace.h"

#include <QImage>
#include <QString>
#include <QStringList>
#include <vector>

struct Strana {
    std::vector<Operace> operace;
};

// One table row as the reports lay it out: cells left to right over the columns' widths.
struct Tabulka {
    std::vector<double> sirky;              // twips
    std::vector<Qt::Alignment> zarovnani;   // per column; missing ones align left
    bool mrizka = true;                     // thin frames round the cells
    bool vpravo = false;                    // the table stands at the right margin
};

struct RadekTabulky {
    RadekTabulky() = default;
    RadekTabulky(QStringList b, double v = 0, QColor p = QColor()) : bunky(std::move(b)), vyska(v), pozadi(p) {}
    QStringList bunky;
    double vyska = 0;                       // 0: 1.3 times the text height
    QColor pozadi;                          // invalid: none
    std::vector<QColor> pozadiBunek;        // per cell, over pozadi
    std::vector<int> rozpeti;               // per cell: columns it spans (missing: 1)
};

class Dokument {
public:
    static constexpr double A4Sirka = 11907;
    static constexpr double A4Vyska = 16839.9;
    static constexpr double TwipuNaMm = 1440 / 25.4;

    // Page set-up; takes effect at StartDoc and NewPage.
    bool naSirku = false;
    double MarginLeft = 1440, MarginTop = 1440, MarginRight = 1440, MarginBottom = 1440;

    // Drawing state, as the old control kept it.
    Pismo pismo;
    QColor TextColor = Qt::black;
    Pero pero;
    Stetec stetec;
    int TextAngle = 0;                      // 0 or 900 (tenths of a degree, upward)
    double CurrentX = 0, CurrentY = 0;

    void StartDoc();                        // drops every page, starts page 1
    void NewPage();
    void EndDoc();                          // leaves an overlay if one is open
    int PageCount() const { return int(m_strany.size()); }
    int aktualniStrana() const { return m_aktualni + 1; }
    double PageWidth() const { return naSirku ? A4Vyska : A4Sirka; }
    double PageHeight() const { return naSirku ? A4Sirka : A4Vyska; }
    const std::vector<Strana>& strany() const { return m_strany; }
    const Strana& strana(int cislo) const { return m_strany.at(cislo - 1); } // from 1

    // Drawing on a finished page (headers, footers); what follows goes to that page until
    // EndOverlay.
    void StartOverlay(int cislo);
    void EndOverlay();

    double TextWidth(const QString& text) const;   // twips, in the current font
    double TextHeight(const QString& text) const;  // line height; "" measures one line

    // Writes at CurrentX/CurrentY (top left of the text before turning) and moves CurrentX on
    // along the line, as the old control did.
    void Text(const QString& text);
    // A line of text at the left margin; moves CurrentY down a line and starts a new page when
    // the line would pass the bottom margin.
    void Paragraph(const QString& text);
    // Text wrapped and aligned inside a box.
    void TextBox(const QString& text, const QRectF& ramec, Qt::Alignment zarovnani);
    void DrawRectangle(double left, double top, double right, double bottom);
    void DrawLine(double x1, double y1, double x2, double y2);
    void DrawPicture(const QImage& obrazek, double left, double top, double sirka, double vyska);

    // One table row at CurrentY from the left margin; a row that would pass the bottom margin
    // goes to a new page first. CurrentY moves below it.
    void AddRow(const Tabulka& tabulka, const RadekTabulky& radek);
    // Where a row would have to break: true when vyska more no longer fits on this page.
    bool presahne(double vyska) const;

    // Millimetres ("20mm" in the old control's positions) to twips.
    static double mm(double milimetru) { return milimetru * TwipuNaMm; }

private:
    void pridej(Operace op);
    Strana& cil();

    std::vector<Strana> m_strany;
    int m_aktualni = -1;
    int m_prekryv = -1;
};
