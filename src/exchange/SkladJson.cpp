#include "exchange/SkladJson.h"

#include "core/Database.h"
#include "core/Recordset.h"
#include "core/Transakce.h"
#include "exchange/CteniJson.h"

namespace SkladJson {
namespace {

constexpr int MaxMaterial = 100;
constexpr double MaxRozmer = 100000;

struct Odrezek {
    QString material;
    double x, y, pocet;
};

Odrezek cti(const QJsonValue& v, int poradi)
{
    const CteniJson o(v, QStringLiteral("Odřezek č. %1").arg(poradi), {"material", "x", "y", "pocet"});
    Odrezek odrezek{o.text("material", true), o.cislo("x", 0.1, MaxRozmer, true), o.cislo("y", 0.1, MaxRozmer, true),
                    o.celeCislo("pocet", 0, MaxRozmer, true)};
    if (odrezek.material.size() > MaxMaterial)
        CteniJson::odmitni(QStringLiteral("%1: název materiálu smí mít nejvýše %2 znaků.").arg(o.kde()).arg(MaxMaterial));
    return odrezek;
}

} // namespace

int nacti(Database& dataS, const QByteArray& json)
{
    const QJsonDocument doc = CteniJson::dokument(json);
    if (!doc.isArray())
        CteniJson::odmitni(QStringLiteral("Soubor musí obsahovat seznam odřezků (seznam JSON)."));
    std::vector<Odrezek> odrezky;
    const QJsonArray radky = doc.array();
    for (int i = 0; i < radky.size(); ++i)
        odrezky.push_back(cti(radky[i], i + 1));

    Transakce t(dataS);
    Recordset rs(dataS, QStringLiteral("SkladOdrezku"), Recordset::Rozsah::Prvni);
    for (const Odrezek& o : odrezky) {
        rs.addNew();
        rs.set(QStringLiteral("Material"), o.material);
        rs.set(QStringLiteral("x"), o.x);
        rs.set(QStringLiteral("y"), o.y);
        rs.set(QStringLiteral("Pocet"), qint64(o.pocet));
        rs.update();
    }
    t.commit();
    return int(odrezky.size());
}

}
