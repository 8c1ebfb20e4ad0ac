// Decoding of stored pictures: the five formats by content, the limits, the fitting.
#include "VzorkyObrazku.h"
#include "printing/Obrazky.h"

#include <QBuffer>
#include <QtEndian>
#include <QImageWriter>
#include <gtest/gtest.h>

// Each format reads: a missing Qt plugin or a build without libwmf fails here, loudly.
TEST(Obrazky, PetFormatuSeCtePodleObsahu)
{
    for (const char* f : {"png", "jpg", "bmp"}) {
        const QImage obr = Obrazky::dekoduj(vzorek(f, {40, 30}, Qt::red));
        ASSERT_FALSE(obr.isNull()) << f;
        EXPECT_EQ(obr.size(), QSize(40, 30)) << f;
        EXPECT_GT(qRed(obr.pixel(20, 15)), 200) << f;
        EXPECT_LT(qGreen(obr.pixel(20, 15)), 60) << f;
    }
    const QImage gif = Obrazky::dekoduj(vzorekGif());
    ASSERT_FALSE(gif.isNull());
    EXPECT_EQ(gif.size(), QSize(2, 1));
    EXPECT_EQ(QColor(gif.pixel(0, 0)), QColor(Qt::red));
    EXPECT_EQ(QColor(gif.pixel(1, 0)), QColor(Qt::blue));
    EXPECT_EQ(Obrazky::format(vzorekGif()), Obrazky::Format::Gif);
    EXPECT_EQ(Obrazky::format(vzorek("jpg")), Obrazky::Format::Jpeg);
    EXPECT_EQ(Obrazky::format(vzorekWmf()), Obrazky::Format::Wmf);
}

// The metafile drawn by the test: the red square stands where its records put it, the rest is
// not red; the size comes from the placeable header at 96 dpi.
TEST(Obrazky, WmfSeVykresliDoBitmapy)
{
    const QImage obr = Obrazky::dekoduj(vzorekWmf());
    ASSERT_FALSE(obr.isNull());
    EXPECT_EQ(obr.size(), QSize(100, 100));
    EXPECT_EQ(Obrazky::rozmer(vzorekWmf()), QSize(100, 100));
    for (QPoint uvnitr : {QPoint(12, 12), QPoint(35, 35), QPoint(57, 57)}) {
        const QColor c = obr.pixelColor(uvnitr);
        EXPECT_EQ(c.red(), 255) << uvnitr.x();
        EXPECT_EQ(c.green(), 0) << uvnitr.x();
        EXPECT_EQ(c.blue(), 0) << uvnitr.x();
    }
    for (QPoint venku : {QPoint(5, 5), QPoint(80, 30), QPoint(30, 80), QPoint(95, 95)})
        EXPECT_NE(obr.pixelColor(venku), QColor(Qt::red)) << venku.x() << "," << venku.y();
}

// Not a picture, a format of our own refusal (Qt reads PPM), a cut file, an empty one: the one
// message; the limits by the header, without decoding a hundred megapixels.
TEST(Obrazky, OdmitnuteSouborySvouZpravou)
{
    const QString neni = QStringLiteral("Soubor „x.jpg“ není obrázek JPG, PNG, BMP, GIF ani WMF, nebo je poškozený.");
    const QString velky = QStringLiteral("Soubor „x.jpg“ je příliš velký (nejvýše 50 MB a 100 Mpx).");
    EXPECT_EQ(Obrazky::proc({}, QStringLiteral("x.jpg")), neni);
    EXPECT_EQ(Obrazky::proc("dobrý den", QStringLiteral("x.jpg")), neni);
    const QByteArray ppm = vzorek("ppm");
    ASSERT_FALSE(QImage::fromData(ppm).isNull()); // Qt would read it
    EXPECT_EQ(Obrazky::proc(ppm, QStringLiteral("x.jpg")), neni);
    const QByteArray jpg = vzorek("jpg", {300, 200});
    EXPECT_EQ(Obrazky::proc(jpg.left(jpg.size() / 3), QStringLiteral("x.jpg")), neni);
    EXPECT_EQ(Obrazky::proc(vzorekWmf().left(30), QStringLiteral("x.jpg")), neni);
    EXPECT_EQ(Obrazky::proc(QByteArray(Obrazky::NejvicBajtu + 1, 'x'), QStringLiteral("x.jpg")), velky);
    // a BMP header announcing 20000 x 20000 pixels, with no pixels behind it
    QByteArray bmp = vzorek("bmp", {2, 2});
    qToLittleEndian<qint32>(20000, bmp.data() + 18);
    qToLittleEndian<qint32>(20000, bmp.data() + 22);
    EXPECT_EQ(Obrazky::proc(bmp, QStringLiteral("x.jpg")), velky);
    EXPECT_TRUE(Obrazky::dekoduj(bmp).isNull());
    for (const QByteArray& dobry : {vzorek("png"), vzorek("jpg"), vzorek("bmp"), vzorekGif(), vzorekWmf()})
        EXPECT_TRUE(Obrazky::proc(dobry, QStringLiteral("x")).isEmpty());
}

// Between 32 and 100 megapixels Qt's default limit would refuse; ours lets it through.
TEST(Obrazky, VelkyObrazekPodLimitemSeNacte)
{
    const QImage obr = Obrazky::dekoduj(vzorek("png", {7000, 5000}, Qt::white));
    EXPECT_EQ(obr.size(), QSize(7000, 5000));
}

TEST(Obrazky, VepsaniJenZmensujeAZachovaPomer)
{
    const QImage maly(40, 30, QImage::Format_RGB32);
    EXPECT_EQ(Obrazky::vepsany(maly, {400, 300}).size(), QSize(40, 30));
    const QImage siroky(800, 200, QImage::Format_RGB32);
    EXPECT_EQ(Obrazky::vepsany(siroky, {400, 300}).size(), QSize(400, 100));
    const QImage vysoky(100, 900, QImage::Format_RGB32);
    EXPECT_EQ(Obrazky::vepsany(vysoky, {400, 300}).size(), QSize(33, 300));
}
