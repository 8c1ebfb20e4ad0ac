#include "costing/PruchodZakazky.h"

#include "core/Dotaz.h"
#include "core/Error.h"
#include "core/Kolace.h"
#include "core/Recordset.h"
#include "orders/RadkyZakazky.h"

namespace PruchodZakazky {
namespace {

// Calls naSestave once per distinct, chosen Sestava of the walk, in its order.
void kazdaSestava(Recordset&& r, const Vyber& vyber, const std::function<void(const QString&)>& naSestave)
{
    kazdaSkupina(std::move(r), QStringLiteral("Sestava"), [&](const Recordset& s, int) {
        if (vybrana(vyber, s.text(QStringLiteral("Sestava"))))
            naSestave(s.text(QStringLiteral("Sestava")));
    });
}

} // namespace

void kazdaSkupina(Recordset&& r, const QString& pole, const std::function<void(const Recordset&, int)>& naSkupinu)
{
    QString posledni;
    int poradi = 0;
    for (; !r.eof(); r.moveNext()) {
        const QString hodnota = r.text(pole);
        if (poradi > 0 && Kolace::porovnej(hodnota, posledni) == 0)
            continue;
        posledni = hodnota;
        naSkupinu(r, poradi++);
    }
}

bool vybrana(const Vyber& v, const QString& sestava)
{
    return v.isEmpty() || std::any_of(v.begin(), v.end(), [&](const QString& s) { return Kolace::porovnej(s, sestava) == 0; });
}

void radky(Database& db, const QString& zakazka, const Vyber& vyber, const QString& poradi,
           const std::function<void(const Recordset&, const QString&)>& naRadek)
{
    kazdaSestava(RadkyZakazky::radky(db, zakazka, QStringLiteral("Sestava")), vyber, [&](const QString& sestava) {
        for (Recordset p = RadkyZakazky::polozkySestavy(db, zakazka, sestava, poradi); !p.eof(); p.moveNext())
            if (!p.text(QStringLiteral("Oznaceni")).isEmpty())
                naRadek(p, sestava);
    });
}

void hrany(Database& db, const QString& zakazka, const Vyber& vyber,
           const std::function<void(const Recordset&, const Recordset&, const QString&, StranaHrany)>& naStranu)
{
    for (Recordset h = RadkyZakazky::materialy(db, zakazka, RadkyZakazky::Pouziti::Hrany); !h.eof(); h.moveNext()) {
        const double idHrany = h.cislo(QStringLiteral("ID"));
        const QString id = Dotaz::cislo(idHrany);
        kazdaSestava(RadkyZakazky::deskySHranou(db, zakazka, idHrany), vyber, [&](const QString& sestava) {
            for (Recordset b = RadkyZakazky::deskySHranou(db, zakazka, idHrany, sestava); !b.eof(); b.moveNext())
                for (const auto& [cislo, a, c] : {std::tuple{2, "IDHX1", "IDHX2"}, std::tuple{3, "IDHY1", "IDHY2"}}) {
                    const bool prvni = Dotaz::cislo(b.cislo(QLatin1String(a))) == id;
                    const bool druha = Dotaz::cislo(b.cislo(QLatin1String(c))) == id;
                    if (prvni || druha)
                        naStranu(h, b, sestava, StranaHrany{cislo, prvni && druha});
                }
        });
    }
}

Recordset format(Database& db, const QString& zakazka, const Recordset& deska, const QString& sestava)
{
    auto f = RadkyZakazky::material(db, zakazka, deska.cislo(QStringLiteral("IDFormat")));
    if (!f)
        throw Error(Chyba::NeplatnyVstup, QStringLiteral("Deska „%1“ v sestavě „%2“ nemá formát: doplňte ho.")
                                              .arg(deska.text(QStringLiteral("Oznaceni")), sestava));
    return std::move(*f);
}

} // namespace PruchodZakazky
