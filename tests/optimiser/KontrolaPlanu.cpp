#include "KontrolaPlanu.h"

#include <QJsonArray>
#include <algorithm>
#include <functional>

namespace KontrolaPlanu {

namespace {

constexpr double Eps = 1e-6;

struct Obd { // a board with the kerf behind it on both axes
    double od[2], po[2];
};

// The levels of edge-to-edge cuts that part the boards, or -1 when they cannot be parted.
// Cuts along one axis split the piece into its groups; each group goes on along the other axis.
int urovne(const std::vector<Obd>& obd, int osa, bool jizZkuseno)
{
    if (obd.size() < 2)
        return 0;
    std::vector<Obd> serazene = obd;
    std::sort(serazene.begin(), serazene.end(), [&](const Obd& a, const Obd& b) { return a.od[osa] < b.od[osa]; });
    std::vector<std::vector<Obd>> skupiny;
    double konec = -1e300;
    for (const Obd& o : serazene) {
        if (skupiny.empty() || o.od[osa] >= konec - Eps)
            skupiny.emplace_back();
        skupiny.back().push_back(o);
        konec = std::max(konec, o.po[osa]);
    }
    if (skupiny.size() < 2)
        return jizZkuseno ? -1 : urovne(obd, 1 - osa, true);
    int nejvic = 0;
    for (const auto& s : skupiny) {
        const int u = urovne(s, 1 - osa, false);
        if (u < 0)
            return -1;
        nejvic = std::max(nejvic, u);
    }
    return nejvic + 1;
}

} // namespace

QStringList chyby(const Vstup& v)
{
    QStringList chyby;
    std::map<int, int> kolikrat;
    std::map<int, std::vector<Obd>> naTabuli;
    for (const Deska& d : v.desky) {
        const QString kdo = QStringLiteral("deska %1").arg(d.index);
        if (++kolikrat[d.index] > 1)
            chyby << kdo + QStringLiteral(" je v plánu víckrát");
        if (d.tabule == 0) {
            chyby << kdo + QStringLiteral(" neusazena");
            continue;
        }
        const auto t = v.tabule.find(d.tabule);
        if (t == v.tabule.end()) {
            chyby << kdo + QStringLiteral(" na neexistující tabuli %1").arg(d.tabule);
            continue;
        }
        if (d.x < v.okraj - Eps || d.y < v.okraj - Eps || d.x + d.w > t->second.first + Eps ||
            d.y + d.h > t->second.second + Eps)
            chyby << kdo + QStringLiteral(" mimo tabuli %1").arg(d.tabule);
        if (v.vzor && d.OV && d.otoc)
            chyby << kdo + QStringLiteral(" se vzorem otočena");
        const Obd o{{d.x, d.y}, {d.x + d.w + v.srez, d.y + d.h + v.srez}};
        for (const Obd& j : naTabuli[d.tabule])
            if (o.od[0] < j.po[0] - Eps && j.od[0] < o.po[0] - Eps && o.od[1] < j.po[1] - Eps && j.od[1] < o.po[1] - Eps)
                chyby << kdo + QStringLiteral(" se překrývá s jinou na tabuli %1 (i s řezem)").arg(d.tabule);
        naTabuli[d.tabule].push_back(o);
    }
    for (const auto& [tabule, obd] : naTabuli) {
        const int a = urovne(obd, 0, false), b = urovne(obd, 1, false);
        const int u = a < 0 ? b : b < 0 ? a : std::min(a, b);
        if (u < 0)
            chyby << QStringLiteral("tabule %1 se nedá rozřezat od kraje ke kraji").arg(tabule);
        else if (u > v.stupne)
            chyby << QStringLiteral("tabule %1 potřebuje %2 stupňů řezů").arg(tabule).arg(u);
    }
    return chyby;
}

Vstup zVypisu(const QJsonObject& vypis, double srez, double okraj, bool vzor)
{
    Vstup v;
    v.srez = srez;
    v.okraj = okraj;
    v.vzor = vzor;
    for (const QJsonValue& t : vypis[QStringLiteral("SoupisTabuli")].toArray())
        v.tabule[t[QStringLiteral("NCT")].toInt()] = {t[QStringLiteral("x")].toDouble(), t[QStringLiteral("y")].toDouble()};
    int i = 0;
    for (const QJsonValue& d : vypis[QStringLiteral("SoupisDesek")].toArray()) {
        const bool otoc = d[QStringLiteral("OTOC")].toInt() != 0;
        const double x = d[QStringLiteral("x")].toDouble(), y = d[QStringLiteral("y")].toDouble();
        v.desky.push_back({i++, d[QStringLiteral("ID")].toInt() != 0 ? d[QStringLiteral("tabule")].toInt() : 0,
                           d[QStringLiteral("XD")].toDouble(), d[QStringLiteral("YD")].toDouble(), otoc ? y : x, otoc ? x : y,
                           otoc, d[QStringLiteral("OV")].toInt() != 0});
    }
    return v;
}

}
