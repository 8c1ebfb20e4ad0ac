#include "core/BarvaVB.h"

#include <QRegularExpression>

namespace BarvaVB {
namespace {
quint32 prohod(quint32 v) // RGB <-> BGR: the middle byte stays
{
    return (v & 0xff) << 16 | (v & 0xff00) | (v >> 16 & 0xff);
}
}

QString text(quint32 bgr)
{
    return QStringLiteral("&H%1&").arg(bgr & 0xffffff, 8, 16, QLatin1Char('0')).toUpper();
}

std::optional<quint32> zTextu(const QString& vstup)
{
    QString t = vstup.trimmed();
    bool ok = false;
    qint64 hodnota = 0;
    if (t.startsWith(QLatin1String("&H"), Qt::CaseInsensitive)) {
        t = t.mid(2);
        if (t.endsWith(QLatin1Char('&')))
            t.chop(1);
        hodnota = t.toLongLong(&ok, 16);
    } else {
        hodnota = t.toLongLong(&ok);
    }
    if (!ok || hodnota < 0)
        return std::nullopt;
    return quint32(hodnota & 0xffffff);
}

QString html(quint32 bgr)
{
    return QStringLiteral("#%1").arg(prohod(bgr & 0xffffff), 6, 16, QLatin1Char('0')).toUpper();
}

std::optional<quint32> zHtml(const QString& vstup)
{
    static const QRegularExpression vzor(QStringLiteral("^#([0-9A-Fa-f]{6})$"));
    const auto m = vzor.match(vstup.trimmed());
    if (!m.hasMatch())
        return std::nullopt;
    return prohod(m.captured(1).toUInt(nullptr, 16));
}

}
