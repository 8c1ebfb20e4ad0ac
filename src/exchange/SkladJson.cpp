#include "exchange/SkladJson.h"

#include "catalogues/Sklad.h"
#include "exchange/CteniJson.h"

namespace SkladJson {
namespace {

constexpr double MaxRozmer = 100000;

Sklad::Odrezek cti(const QJsonValue& v, int poradi)
{
    const CteniJson o(v, QStringLiteral("Odřezek č. %1").arg(poradi), {"material", "x", "y", "pocet"});
    Sklad::Odrezek odrezek{o.text("material", true), o.cislo("x", 0.1, MaxRozmer, true), o.cislo("y", 0.1, MaxRozmer, true),
                           int(o.celeCislo("pocet", 0, MaxRozmer, true))};
    if (odrezek.material.size() > Sklad::MaxNazev)
        CteniJson::odmitni(QStringLiteral("%1: název materiálu smí mít nejvýše %2 znaků.").arg(o.kde()).arg(Sklad::MaxNazev));
    return odrezek;
}

} // namespace

int nacti(Database& dataS, const QByteArray& json)
{
    const QJsonDocument doc = CteniJson::dokument(json);
    if (!doc.isArray())
        CteniJson::odmitni(QStringLiteral("Soubor musí obsahovat seznam odřezků (seznam JSON)."));
    std::vector<Sklad::Odrezek> odrezky;
    const QJsonArray radky = doc.array();
    for (int i = 0; i < radky.size(); ++i)
        odrezky.push_back(cti(radky[i], i + 1));
    Sklad::pridej(dataS, odrezky);
    return int(odrezky.size());
}

} // namespace SkladJson
