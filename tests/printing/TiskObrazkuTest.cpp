// A picture printed alone: natural size while it fits, shrunk into the margins with its
// proportions when it does not, the page turned for a wide picture.
#include "printing/Dokument.h"
#include "printing/TiskObrazku.h"

#include <gtest/gtest.h>

namespace {

QRectF ramecObrazku(const Dokument& d)
{
    EXPECT_EQ(d.PageCount(), 1);
    const auto& ops = d.strana(1).operace;
    EXPECT_EQ(ops.size(), 1u);
    const auto* o = ops.empty() ? nullptr : std::get_if<OpObrazek>(&ops.front());
    return o ? o->ramec : QRectF();
}

QImage obrazek(int w, int h)
{
    QImage i(w, h, QImage::Format_RGB32);
    i.fill(Qt::green);
    return i;
}

} // namespace

TEST(TiskObrazku, MalyObrazekVPrirozeneVelikostiUHornihoOkraje)
{
    Dokument d;
    TiskObrazku::tiskni(d, obrazek(200, 300));
    const QRectF r = ramecObrazku(d);
    EXPECT_FALSE(d.naSirku);
    EXPECT_DOUBLE_EQ(r.left(), Dokument::mm(10));
    EXPECT_DOUBLE_EQ(r.top(), Dokument::mm(10));
    EXPECT_DOUBLE_EQ(r.width(), 200 * 15.0); // 96 px to the inch
    EXPECT_DOUBLE_EQ(r.height(), 300 * 15.0);
}

TEST(TiskObrazku, VelkyObrazekZmensenDoOkrajuSPomerem)
{
    Dokument d;
    TiskObrazku::tiskni(d, obrazek(4000, 1000));
    const QRectF r = ramecObrazku(d);
    EXPECT_TRUE(d.naSirku); // wider than tall: landscape
    EXPECT_NEAR(r.right(), d.PageWidth() - Dokument::mm(10), 1e-6);
    EXPECT_LE(r.bottom(), d.PageHeight() - Dokument::mm(10));
    EXPECT_NEAR(r.width() / r.height(), 4.0, 1e-9);

    TiskObrazku::tiskni(d, obrazek(500, 9000)); // tall: the height decides
    const QRectF v = ramecObrazku(d);
    EXPECT_FALSE(d.naSirku);
    EXPECT_NEAR(v.bottom(), d.PageHeight() - Dokument::mm(10), 1e-6);
    EXPECT_NEAR(v.height() / v.width(), 18.0, 1e-9);
}

TEST(TiskObrazku, PrazdnyObrazekDaPrazdnouStranu)
{
    Dokument d;
    TiskObrazku::tiskni(d, QImage());
    EXPECT_EQ(d.PageCount(), 1);
    EXPECT_TRUE(d.strana(1).operace.empty());
}
