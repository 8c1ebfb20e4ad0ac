#include "core/VypisTabulky.h"

#include "core/Database.h"

#include <QJsonObject>
#include <cmath>

namespace {

QJsonValue hodnota(const QVariant& v)
{
    if (v.isNull())
        return QJsonValue::Null;
    if (v.typeId() == QMetaType::QString)
        return v.toString();
    const double d = v.toDouble();
    if (std::trunc(d) == d && std::abs(d) < 9.0e15)
        return qint64(d); // whole numbers print without a fraction
    return d;
}

} // namespace

QJsonArray VypisTabulky(Database& db, const QString& nazev)
{
    QJsonArray radky;
    const QStringList sloupce = db.sloupce(nazev);
    const auto p = db.prikaz(QStringLiteral("SELECT * FROM %1 ORDER BY rowid").arg(nazev));
    while (p->krok()) {
        QJsonObject radek;
        for (int i = 0; i < sloupce.size(); ++i)
            radek.insert(sloupce[i], hodnota(p->sloupec(i)));
        radky.append(radek);
    }
    p->reset();
    return radky;
}
