// The workshop list's table: the same walk as the costing, keeping sizes, band colours and
// notes instead of prices.
#include "costing/Kalkulace.h"

#include "core/Database.h"
#include "core/Jednotky.h"
#include "core/Recordset.h"
#include "core/Transakce.h"
#include "core/Zaokrouhleni.h"
#include "costing/PruchodZakazky.h"
#include "orders/RadkyZakazky.h"

namespace Kalkulace {
namespace {

const char* const Hrany[] = {"IDHX1", "IDHX2", "IDHY1", "IDHY2"};

// BarvaVNP of a band reference; none when the band row is gone.
QVariant barvaHrany(Database& db, const QString& zakazka, double id)
{
    const auto h = RadkyZakazky::material(db, zakazka, id, RadkyZakazky::Pouziti::Hrany);
    return h ? h->value(QStringLiteral("BarvaVNP")) : QVariant();
}

} // namespace

void NaplnSoupisProDilnu(Database& dataK, const QString& zakazka, const Vyber& sestavy)
{
    Transakce t(dataK);
    dataK.execute(QStringLiteral("DELETE * FROM SoupisProDilnu"));
    Recordset out(dataK, QStringLiteral("SoupisProDilnu"), Recordset::Rozsah::Prvni);
    auto zacniRadek = [&](const Recordset& p, const QString& sestava, int cislo) {
        out.addNew();
        out.set(QStringLiteral("ID"), true);
        out.set(QStringLiteral("cislo"), cislo);
        out.set(QStringLiteral("Sestava"), sestava);
        for (const char* pole : {"popis", "Poznamka"})
            out.set(QLatin1String(pole), p.value(QLatin1String(pole)));
        out.set(QStringLiteral("pocetsestav"), p.value(QStringLiteral("pocetelementuVsestave")));
    };
    auto kusu = [](const Recordset& p) {
        return p.cislo(QStringLiteral("pocetelementuVsestave")) * p.cislo(QStringLiteral("Pocet"));
    };
    PruchodZakazky::radky(
        dataK, zakazka, sestavy, QStringLiteral("IDFormat desc, cas"), [&](const Recordset& p, const QString& sestava) {
            const double x = p.cislo(QStringLiteral("x")), y = p.cislo(QStringLiteral("y"));
            const bool deska = p.cislo(QStringLiteral("IDFormat")) > 1;
            const QString oznaceni = p.text(QStringLiteral("Oznaceni"));
            QString material = oznaceni;
            if (deska) {
                const Recordset f = PruchodZakazky::format(dataK, zakazka, p, sestava);
                material = Jednotky::RozmerDesky(f.text(QStringLiteral("Material")), f.cislo(QStringLiteral("RozmerX")),
                                                 f.cislo(QStringLiteral("RozmerY")));
            }
            zacniRadek(p, sestava, 1);
            out.set(QStringLiteral("schema"), p.value(QStringLiteral("schema")));
            out.set(QStringLiteral("RozmerX"), x);
            out.set(QStringLiteral("RozmerY"), y);
            for (const char* pole : Hrany) {
                const double id = p.cislo(QLatin1String(pole));
                out.set(QLatin1String(pole), id);
                if (const QVariant barva = barvaHrany(dataK, zakazka, id); !barva.isNull())
                    out.set(QStringLiteral("BarvaVNPH") + QLatin1String(pole + 3), barva);
            }
            out.set(QStringLiteral("Material"), material);
            out.set(QStringLiteral("Oznaceni"), deska ? Jednotky::RozmerDesky(oznaceni, x, y) : QString());
            out.set(QStringLiteral("OV"), p.value(QStringLiteral("OV")));
            out.set(QStringLiteral("mnozstvi"), Zaokrouhli(kusu(p), 3));
            // an accessory is counted in its own unit (pieces, metres, sets)
            out.set(QStringLiteral("jednotka"), deska ? QStringLiteral("ks") : p.text(QStringLiteral("jednotka")));
            out.update();
        });
    PruchodZakazky::hrany(
        dataK, zakazka, sestavy,
        [&](const Recordset& h, const Recordset& b, const QString& sestava, PruchodZakazky::StranaHrany strana) {
            zacniRadek(b, sestava, strana.cislo);
            out.set(QStringLiteral("BarvaHranyVNP"), h.value(QStringLiteral("BarvaVNP")));
            out.set(QStringLiteral("Material"), h.text(QStringLiteral("Material")));
            out.set(QStringLiteral("Oznaceni"),
                    Jednotky::RozmerDesky(b.text(QStringLiteral("Oznaceni")), b.cislo(QStringLiteral("x")),
                                          b.cislo(QStringLiteral("y"))));
            out.set(QStringLiteral("mnozstvi"), kusu(b) * (strana.obe ? 2 : 1));
            out.set(QStringLiteral("delka"),
                    Zaokrouhli((b.cislo(QLatin1String(strana.rozmer())) + 2 * h.cislo(QStringLiteral("PresahHrany"))) / 1000, 3));
            out.set(QStringLiteral("jednotka"), QStringLiteral("ks"));
            out.update();
        });
    t.commit();
}

} // namespace Kalkulace
