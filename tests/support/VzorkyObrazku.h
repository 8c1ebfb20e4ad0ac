#pragma once
// Small pictures made by the tests in each stored format, so that no sample file is needed.
#include <QByteArray>
#include <QColor>
#include <QSize>

// A picture of one colour written by Qt: "png", "jpg", "bmp" (also "ppm", a format we refuse).
QByteArray vzorek(const char* format, QSize velikost = {40, 30}, QColor barva = Qt::red);
// A GIF of 2 x 1 pixels: red, then blue. Qt writes no GIF, so the bytes stand here.
QByteArray vzorekGif();
// A placeable metafile of 100 x 100 pixels at 96 dpi: a red square from (10,10) to (60,60) with
// no outline, nothing else drawn.
QByteArray vzorekWmf();
