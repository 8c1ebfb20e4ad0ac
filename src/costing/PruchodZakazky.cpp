#include "costing/PruchodZakazky.h"

#include "core/Dotaz.h"
#include "core/Error.h"
#include "core/Kolace.h"
#include "core/Recordset.h"

namespace PruchodZakazky {
namespace {

QString z(const QString& t) { return Dotaz::text(t); }

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
    return v.isEmpty() ||
           std::any_of(v.begin(), v.end(), [&](const QString& s) { return Kolace::porovnej(s, sestava) == 0; });
}

void radky(Database& db, const QString& zakazka, const Vyber& vyber, const QString& poradi,
           const std::function<void(const Recordset&, const QString&)>& naRadek)
{
    const QString zz = z(zakazka);
    kazdaSestava(Recordset(db, QStringLiteral("SELECT * FROM Zakazky  WHERE Zakazka = '") + zz + QStringLiteral("' ORDER BY Sestava")),
                 vyber, [&](const QString& sestava) {
                     for (Recordset p(db, QStringLiteral("SELECT * FROM Zakazky  WHERE Zakazka = '") + zz +
                                              QStringLiteral("' and Sestava = '") + z(sestava) +
                                              QStringLiteral("' and cas > 0 ") + poradi);
                          !p.eof(); p.moveNext())
                         if (!p.text(QStringLiteral("Oznaceni")).isEmpty())
                             naRadek(p, sestava);
                 });
}

void hrany(Database& db, const QString& zakazka, const Vyber& vyber,
           const std::function<void(const Recordset&, const Recordset&, const QString&, StranaHrany)>& naStranu)
{
    const QString zz = z(zakazka);
    for (Recordset h(db, QStringLiteral("SELECT * FROM ZakazkyMaterialy  WHERE Zakazka = '") + zz +
                             QStringLiteral("' and Pouziti = 'hrana'  "));
         !h.eof(); h.moveNext()) {
        const QString id = Dotaz::cislo(h.cislo(QStringLiteral("ID")));
        const QString pouziti = QStringLiteral(" and (IDHX1 = %1 or IDHX2 = %1 or IDHY1 = %1 or IDHY2 = %1 )").arg(id);
        kazdaSestava(
            Recordset(db, QStringLiteral("SELECT * FROM Zakazky  WHERE Zakazka = '") + zz + QStringLiteral("'") + pouziti +
                              QStringLiteral(" ORDER BY Sestava")),
            vyber, [&](const QString& sestava) {
                // the old query wrote the name with a trailing blank; our comparison is exact, so it goes
                for (Recordset b(db, QStringLiteral("SELECT * FROM Zakazky  WHERE Zakazka = '") + zz +
                                         QStringLiteral("' and  Sestava = '") + z(sestava) + QStringLiteral("'") + pouziti +
                                         QStringLiteral(" ORDER BY Sestava"));
                     !b.eof(); b.moveNext())
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
    Recordset f(db, QStringLiteral("SELECT * FROM ZakazkyMaterialy  WHERE ID = ") + Dotaz::cislo(deska.cislo(QStringLiteral("IDFormat"))) +
                        QStringLiteral(" and Zakazka = '") + z(zakazka) + QStringLiteral("' "),
                Recordset::Rozsah::Prvni);
    if (f.eof())
        throw Error(Chyba::NeplatnyVstup, QStringLiteral("Deska „%1“ v sestavě „%2“ nemá formát: doplňte ho.")
                                              .arg(deska.text(QStringLiteral("Oznaceni")), sestava));
    return f;
}

}
