#include "exchange/SkladJson.h"

#include "core/Database.h"
#include "core/Error.h"
#include "core/Recordset.h"
#include "core/Transakce.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cmath>

namespace SkladJson {

int nacti(Database& dataS, const QByteArray& json)
{
    QJsonParseError chyba;
    const QJsonDocument doc = QJsonDocument::fromJson(json, &chyba);
    if (chyba.error != QJsonParseError::NoError || !doc.isArray())
        throw Error(Chyba::NeplatnyVstup, QStringLiteral("Soubor musí obsahovat seznam odřezků v JSON."));
    const QJsonArray radky = doc.array();
    struct Odrezek {
        QString material;
        double x, y;
        int pocet;
    };
    std::vector<Odrezek> odrezky;
    for (int i = 0; i < radky.size(); ++i) {
        const QJsonObject o = radky[i].toObject();
        const QString kde = QStringLiteral("Odřezek č. %1").arg(i + 1);
        const QString material = o.value(QStringLiteral("material")).toString().trimmed();
        const QJsonValue x = o.value(QStringLiteral("x")), y = o.value(QStringLiteral("y")),
                         pocet = o.value(QStringLiteral("pocet"));
        if (!radky[i].isObject() || material.isEmpty() || material.size() > 100)
            throw Error(Chyba::NeplatnyVstup, kde + QStringLiteral(": chybí materiál (nejvýše 100 znaků)."));
        if (!x.isDouble() || !y.isDouble() || x.toDouble() <= 0 || y.toDouble() <= 0 || x.toDouble() > 100000 ||
            y.toDouble() > 100000)
            throw Error(Chyba::NeplatnyVstup, kde + QStringLiteral(": rozměry musí být kladná čísla do 100 000 mm."));
        if (!pocet.isDouble() || pocet.toDouble() < 0 || pocet.toDouble() != std::trunc(pocet.toDouble()) ||
            pocet.toDouble() > 100000)
            throw Error(Chyba::NeplatnyVstup, kde + QStringLiteral(": počet musí být celé číslo od 0."));
        odrezky.push_back({material, x.toDouble(), y.toDouble(), int(pocet.toDouble())});
    }
    Transakce t(dataS);
    Recordset rs(dataS, QStringLiteral("SkladOdrezku"), Recordset::Rozsah::Prvni);
    for (const Odrezek& o : odrezky) {
        rs.addNew();
        rs.set(QStringLiteral("Material"), o.material);
        rs.set(QStringLiteral("x"), o.x);
        rs.set(QStringLiteral("y"), o.y);
        rs.set(QStringLiteral("Pocet"), o.pocet);
        rs.update();
    }
    t.commit();
    return int(odrezky.size());
}

}
