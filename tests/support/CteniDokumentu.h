#pragma once
// What a document recorded, read back by kind: the operations of one page, or of every page
// when strana is 0, and the texts of the text operations of the kinds named, in drawing order;
// where a text's letters stand.
#include "printing/Dokument.h"

#include <QRectF>
#include <QStringList>
#include <vector>

template <class Op>
std::vector<Op> operace(const Dokument& d, int strana = 0)
{
    std::vector<Op> v;
    for (int p = strana ? strana : 1; p <= (strana ? strana : d.PageCount()); ++p)
        for (const Operace& op : d.strana(p).operace)
            if (const auto* o = std::get_if<Op>(&op))
                v.push_back(*o);
    return v;
}

template <class... Op>
QStringList texty(const Dokument& d, int strana = 0)
{
    QStringList t;
    for (int p = strana ? strana : 1; p <= (strana ? strana : d.PageCount()); ++p)
        for (const Operace& op : d.strana(p).operace)
            (..., [&] {
                if (const auto* o = std::get_if<Op>(&op))
                    t << o->text;
            }());
    return t;
}

// The rectangle a text operation's letters cover, written across or upward (uhel 900).
inline QRectF ramecTextu(Dokument& d, const OpText& t)
{
    d.pismo = t.pismo;
    const double w = d.TextWidth(t.text), h = d.TextHeight(t.text);
    return t.uhel == 900 ? QRectF(t.x, t.y - w, h, w) : QRectF(t.x, t.y, w, h);
}
