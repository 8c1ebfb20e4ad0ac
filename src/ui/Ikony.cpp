#include "ui/Ikony.h"

#include <QFont>
#include <QPainter>
#include <QPixmap>
#include <cstring>

namespace Ikony {
namespace {

QIcon dlazdice(const QColor& barva, const QString& znacka, const QString& akce)
{
    QPixmap p(32, 32);
    p.fill(Qt::transparent);
    QPainter g(&p);
    g.setRenderHint(QPainter::Antialiasing);
    g.setPen(barva.darker(150));
    g.setBrush(barva);
    g.drawRoundedRect(QRectF(1.5, 1.5, 29, 29), 5, 5);
    QFont f(QStringLiteral("DejaVu Sans"));
    f.setBold(true);
    f.setPixelSize(znacka.size() > 1 ? 12 : 17);
    g.setFont(f);
    g.setPen(Qt::white);
    g.drawText(QRectF(0, akce.isEmpty() ? 0 : -5, 32, 32), Qt::AlignCenter, znacka);
    if (!akce.isEmpty()) {
        f.setPixelSize(13);
        g.setFont(f);
        g.setPen(Qt::white);
        g.drawText(QRectF(0, 14, 32, 18), Qt::AlignCenter, akce);
    }
    return QIcon(p);
}

} // namespace

QIcon zakazka() { return dlazdice(QColor(0x2e, 0x6d, 0xb4), QStringLiteral("Z"), QString()); }
QIcon sestava() { return dlazdice(QColor(0x4e, 0x9a, 0x06), QStringLiteral("S"), QString()); }

QIcon znacka(const QString& znak, const QColor& barva)
{
    return dlazdice(barva, znak, QString());
}

QIcon proKlic(const char* klic)
{
    const QString k = QString::fromLatin1(klic);
    const QString akce = k.startsWith(QLatin1Char('N')) && k.size() <= 3 && k != QLatin1String("NP") ? QStringLiteral("+")
                         : k.startsWith(QLatin1Char('U'))                                           ? QStringLiteral("✎")
                         : k.startsWith(QLatin1Char('O')) && k != QLatin1String("ODZ")              ? QStringLiteral("−")
                                                                                                     : QString();
    if (k.endsWith(QLatin1Char('Z')) && k.size() <= 3 && k != QLatin1String("ODZ"))
        return dlazdice(k.size() == 2 ? QColor(0x2e, 0x6d, 0xb4) : QColor(0x4e, 0x9a, 0x06),
                        k.size() == 2 ? QStringLiteral("Z") : QStringLiteral("S"), akce);
    if (k.endsWith(QLatin1String("PM")))
        return dlazdice(QColor(0xa4, 0x6a, 0x21), QStringLiteral("D"), akce);
    if (k.endsWith(QLatin1String("PR")))
        return dlazdice(QColor(0x75, 0x50, 0x7b), QStringLiteral("P"), akce);
    if (k == QLatin1String("CTM"))
        return dlazdice(QColor(0xc4, 0xa0, 0x00), QStringLiteral("Kč"), QString());
    if (k == QLatin1String("NP"))
        return dlazdice(QColor(0xcc, 0x00, 0x00), QStringLiteral("NP"), QString());
    if (k == QLatin1String("Moznosti"))
        return dlazdice(QColor(0x55, 0x57, 0x53), QStringLiteral("⚙"), QString());
    if (k == QLatin1String("ZD"))
        return dlazdice(QColor(0x20, 0x4a, 0x87), QStringLiteral("⇩"), QString());
    if (k == QLatin1String("ODZ"))
        return dlazdice(QColor(0x20, 0x4a, 0x87), QStringLiteral("⇧"), QString());
    if (k == QLatin1String("Sklad"))
        return dlazdice(QColor(0x8f, 0x59, 0x02), QStringLiteral("▤"), QString());
    return dlazdice(QColor(0x34, 0x65, 0xa4), QStringLiteral("?"), QString());
}

}
