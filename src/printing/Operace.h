#pragma once
// What a page of the print document is made of: fonts, pens and brushes as the old print
// control named them, and the recorded drawing operations, all in twips.
#include <QColor>
#include <QFont>
#include <QImage>
#include <QRectF>
#include <QString>
#include <variant>

struct Pismo {
    QString nazev = QStringLiteral("Arial");
    double velikost = 10; // points
    bool tucne = false, kurziva = false, podtrzene = false, preskrtnute = false;

    // The font with its pixel size in twips (a point is 20 twips), so that one QFont measures
    // and paints the same on every device once the painter is scaled to twips.
    QFont font() const;
};

struct Pero {
    QColor barva = Qt::black;
    double sirka = 1;     // twips; the old control's PenWidth
    bool plne = true;     // PenStyle 0 solid; false: no outline
};

struct Stetec {
    QColor barva = Qt::white;
    bool pruhledny = false; // BrushStyle 1: no fill
};

struct OpText {
    double x, y;          // top left of the text before turning
    QString text;
    Pismo pismo;
    QColor barva;
    int uhel;             // 0 or 900
};

struct OpTextBox {
    QRectF ramec;
    QString text;
    Pismo pismo;
    QColor barva;
    Qt::Alignment zarovnani;
};

struct OpObdelnik {
    QRectF ramec;
    Pero pero;
    Stetec stetec;
};

struct OpCara {
    double x1, y1, x2, y2;
    Pero pero;
};

struct OpObrazek {
    QRectF ramec;
    QImage obrazek;
};

using Operace = std::variant<OpText, OpTextBox, OpObdelnik, OpCara, OpObrazek>;

// Colours as the old settings and tables store them: a number 0x00BBGGRR, or its text
// "&H00BBGGRR&". Unreadable text gives the fallback.
namespace Barva {
QColor zVB(qint64 bgr);
QColor zTextu(const QString& text, const QColor& jinak = Qt::black);
qint64 doVB(const QColor& barva);
}
