#pragma once
// Pictures stored as bytes in the price list and the libraries, decoded in memory: recognised
// by their content, refused above 50 MB or 100 megapixels. A null image for anything else.
#include <QByteArray>
#include <QImage>

namespace Obrazky {

constexpr qsizetype NejvicBajtu = 50 * 1024 * 1024;
constexpr qint64 NejvicPixelu = 100'000'000;

QImage dekoduj(const QByteArray& data);

}
