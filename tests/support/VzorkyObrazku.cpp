#include "VzorkyObrazku.h"

#include <QBuffer>
#include <QDataStream>
#include <QImage>
#include <QImageWriter>

QByteArray vzorek(const char* format, QSize velikost, QColor barva)
{
    QImage obr(velikost, QImage::Format_RGB32);
    obr.fill(barva);
    QByteArray bajty;
    QBuffer b(&bajty);
    b.open(QIODevice::WriteOnly);
    QImageWriter w(&b, format);
    w.write(obr);
    return bajty;
}

QByteArray vzorekGif()
{
    static const unsigned char gif[] = {
        'G', 'I', 'F', '8', '9', 'a', 2, 0, 1, 0, 0x80, 0, 0,          // screen 2 x 1, a table of 2 colours
        0xff, 0, 0, 0, 0, 0xff,                                       // red, blue
        0x2c, 0, 0, 0, 0, 2, 0, 1, 0, 0,                              // the image 2 x 1
        2, 2, 0x44, 0x0a, 0,                                          // LZW: clear, 0, 1, end
        0x3b};
    return QByteArray(reinterpret_cast<const char*>(gif), sizeof gif);
}

namespace {

// One record: its size in words, the function, its parameters.
void zaznam(QDataStream& s, quint16 funkce, std::initializer_list<quint16> parametry)
{
    s << quint32(3 + parametry.size()) << funkce;
    for (quint16 p : parametry)
        s << p;
}

} // namespace

QByteArray vzorekWmf()
{
    QByteArray telo;
    {
        QDataStream s(&telo, QIODevice::WriteOnly);
        s.setByteOrder(QDataStream::LittleEndian);
        zaznam(s, 0x020B, {0, 0});                       // SetWindowOrg
        zaznam(s, 0x020C, {100, 100});                   // SetWindowExt
        zaznam(s, 0x02FA, {5, 0, 0, 0, 0});              // CreatePenIndirect: PS_NULL
        zaznam(s, 0x02FC, {0, 0x00ff, 0x0000, 0});       // CreateBrushIndirect: solid, 0x000000FF (red)
        zaznam(s, 0x012D, {0});                          // SelectObject pen
        zaznam(s, 0x012D, {1});                          // SelectObject brush
        zaznam(s, 0x041B, {60, 60, 10, 10});             // Rectangle: bottom, right, top, left
        zaznam(s, 0x0000, {});                           // EOF
    }
    QByteArray vysledek;
    QDataStream s(&vysledek, QIODevice::WriteOnly);
    s.setByteOrder(QDataStream::LittleEndian);
    const quint16 placeable[10] = {0xCDD7, 0x9AC6, 0, 0, 0, 100, 100, 96, 0, 0};
    quint16 soucet = 0;
    for (quint16 w : placeable) {
        s << w;
        soucet ^= w;
    }
    s << soucet;
    const quint32 slov = quint32(9 + telo.size() / 2);
    s << quint16(1) << quint16(9) << quint16(0x0300) << slov << quint16(2) << quint32(8) << quint16(0);
    s.writeRawData(telo.constData(), int(telo.size()));
    return vysledek;
}
