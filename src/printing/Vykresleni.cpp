#include "printing/Vykresleni.h"

#include "core/Soubory.h"

#include <QPainter>
#include <QPdfWriter>

namespace Vykresleni {
namespace {

QPen qPero(const Pero& p)
{
    if (!p.plne)
        return Qt::NoPen;
    QPen pen(p.barva, qMax(1.0, p.sirka));
    pen.setCapStyle(Qt::FlatCap);
    pen.setJoinStyle(Qt::MiterJoin);
    return pen;
}

QBrush qStetec(const Stetec& s) { return s.pruhledny ? QBrush(Qt::NoBrush) : QBrush(s.barva); }

struct Malir {
    QPainter& p;

    void operator()(const OpText& t) const
    {
        p.save();
        p.setFont(t.pismo.font());
        p.setPen(t.barva);
        p.translate(t.x, t.y);
        if (t.uhel == 900)
            p.rotate(-90);
        p.drawText(QPointF(0, QFontMetricsF(p.font()).ascent()), t.text);
        p.restore();
    }
    void operator()(const OpTextBox& t) const
    {
        p.setFont(t.pismo.font());
        p.setPen(t.barva);
        p.drawText(t.ramec, int(t.zarovnani) | Qt::TextWordWrap, t.text);
    }
    void operator()(const OpObdelnik& o) const
    {
        p.setPen(qPero(o.pero));
        p.setBrush(qStetec(o.stetec));
        p.drawRect(o.ramec);
    }
    void operator()(const OpCara& c) const
    {
        p.setPen(qPero(c.pero));
        p.drawLine(QPointF(c.x1, c.y1), QPointF(c.x2, c.y2));
    }
    void operator()(const OpObrazek& o) const { p.drawImage(o.ramec, o.obrazek); }
};

} // namespace

void strana(QPainter& painter, const Dokument& dokument, int cislo)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    const Malir malir{painter};
    for (const Operace& op : dokument.strana(cislo).operace)
        std::visit(malir, op);
    painter.restore();
}

QImage obraz(const Dokument& dokument, int cislo, int zoom)
{
    const double meritko = 96.0 / 1440.0 * zoom / 100.0;
    QImage img(qMax(1, qRound(dokument.PageWidth() * meritko)), qMax(1, qRound(dokument.PageHeight() * meritko)),
               QImage::Format_RGB32);
    img.fill(Qt::white);
    QPainter p(&img);
    p.scale(meritko, meritko);
    strana(p, dokument, cislo);
    return img;
}

void pdf(const Dokument& dokument, const QString& cesta, const QString& titulek)
{
    Soubory::zapis(cesta, [&](QIODevice& zarizeni) {
        QPdfWriter w(&zarizeni);
        w.setResolution(1440);
        w.setTitle(titulek);
        w.setCreator(QStringLiteral("Truhlář"));
        w.setPageSize(QPageSize(QPageSize::A4));
        w.setPageOrientation(dokument.naSirku ? QPageLayout::Landscape : QPageLayout::Portrait);
        w.setPageMargins(QMarginsF(0, 0, 0, 0));
        QPainter p(&w);
        for (int i = 1; i <= dokument.PageCount(); ++i) {
            if (i > 1)
                w.newPage();
            strana(p, dokument, i);
        }
        return p.end();
    });
}

} // namespace Vykresleni
