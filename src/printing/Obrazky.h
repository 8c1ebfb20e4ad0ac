#pragma once
// Pictures stored as bytes in the price list and the libraries, decoded in memory: recognised
// by their content (JPEG, PNG, BMP, GIF through Qt, WMF through libwmf), refused above 50 MB or
// 100 megapixels. A null image for anything else, never a temporary file.
#include <QByteArray>
#include <QImage>
#include <QString>

namespace Obrazky {

constexpr qsizetype NejvicBajtu = 50 * 1024 * 1024;
constexpr qint64 NejvicPixelu = 100'000'000;

enum class Format { Zadny, Jpeg, Png, Bmp, Gif, Wmf };

// The format the first bytes announce; Zadny for anything outside the five.
Format format(const QByteArray& data);
QString nazevFormatu(Format f); // "jpeg", "png", "bmp", "gif", "wmf", "" for Zadny

// The size in pixels that the header announces, without decoding; invalid when unreadable.
QSize rozmer(const QByteArray& data);

// The decoded image (a GIF's first frame, EXIF turns applied); null when the bytes are no
// picture of the five formats, are damaged, or pass the limits.
QImage dekoduj(const QByteArray& data);

// Why the bytes of file nazev cannot be stored, in the user's words; empty when they can.
// Decodes the whole picture, so a truncated file is caught here and not when shown.
QString proc(const QByteArray& data, const QString& nazev);

// The image shrunk (never enlarged) to fit inside ramec, its proportions kept.
QImage vepsany(const QImage& obrazek, const QSize& ramec);

}
