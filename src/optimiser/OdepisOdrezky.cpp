#include "optimiser/OdepisOdrezky.h"

#include "core/Database.h"
#include "core/Dotaz.h"
#include "core/Nastaveni.h"
#include "core/Prompt.h"
#include "core/Recordset.h"
#include "core/Transakce.h"

namespace {

QString c(double v) { return Dotaz::cislo(v); }

// One piece of the material and size (tenths of a millimetre) out of the store.
void odepis(Database& dataS, const QString& material, double prvni, double druhy, bool otoceno)
{
    Recordset r(dataS, QStringLiteral("SELECT * FROM SkladOdrezku WHERE Material = '") + Dotaz::text(material) +
                           QStringLiteral("' and X*10 = ") + c(prvni) +
                           (otoceno ? QStringLiteral(" and Y *10= ") : QStringLiteral(" and Y*10 = ")) + c(druhy),
                Recordset::Rozsah::Prvni);
    if (r.eof())
        return;
    if (r.cislo(QStringLiteral("Pocet")) == 1) {
        r.remove();
        return;
    }
    r.edit();
    r.set(QStringLiteral("Pocet"), r.cislo(QStringLiteral("Pocet")) - 1);
    r.update();
}

// One piece of a remnant (tenths of a millimetre) into the store.
void pripis(Database& dataS, const QString& material, double x, double y)
{
    Recordset r(dataS, QStringLiteral("SELECT * FROM SkladOdrezku WHERE Material = '") + Dotaz::text(material) +
                           QStringLiteral("' and X *10= ") + c(x) + QStringLiteral(" and Y*10 = ") + c(y),
                Recordset::Rozsah::Prvni);
    if (r.eof()) {
        r.addNew();
        r.set(QStringLiteral("Material"), material);
        r.set(QStringLiteral("x"), x / 10);
        r.set(QStringLiteral("y"), y / 10);
        r.set(QStringLiteral("Pocet"), 1);
    } else {
        r.edit();
        r.set(QStringLiteral("Pocet"), r.cislo(QStringLiteral("Pocet")) + 1);
    }
    r.update();
}

} // namespace

bool OdepisOdrezky(Database& dataS, Database& dataK, Prompt& prompt, const QString& zakazka, double idFormatuNP)
{
    const Recordset format(dataK, QStringLiteral("SELECT * FROM ZakazkyMaterialy WHERE Zakazka = '") + Dotaz::text(zakazka) +
                                      QStringLiteral("' and ID =") + c(idFormatuNP),
                           Recordset::Rozsah::Prvni);
    const double rozmerX = format.eof() ? 0 : format.cislo(QStringLiteral("RozmerX"));
    const double rozmerY = format.eof() ? 0 : format.cislo(QStringLiteral("RozmerY"));
    const QString material = format.eof() ? QString() : format.text(QStringLiteral("Material"));
    const double xz = Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("XZ"));
    const double yz = Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("YZ"));
    const bool odrezky = Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("POdrezky")) == 1;
    const QString otazka = odrezky ? QStringLiteral("Chcete odepsat použité odřezky ze skladu odřezků a připsat nově vzniklé?")
                                   : QStringLiteral("Chcete připsat nově vzniklé odřezky do skladu odřezků?");
    if (prompt.zprava(otazka, QString(), Prompt::Ikona::Otaznik, Prompt::Tlacitka::AnoNe) != Prompt::Odpoved::Ano)
        return false;
    Transakce t(dataS); // a failure half way must not leave some offcuts booked and others not
    if (odrezky) {
        // X here is in tenths, so X*10 never equals the format in mm times 10: every sheet
        // comes through, and a full sheet goes out only if the store holds one of its size
        for (Recordset t(dataK, QStringLiteral("SELECT * FROM SoupisTabuli WHERE X*10 <>") + c(rozmerX * 10) +
                                    QStringLiteral("and Y*10 <> ") + c(rozmerY * 10));
             !t.eof(); t.moveNext()) {
            const bool otoc = t.ano(QStringLiteral("OTOC"));
            const double x = t.cislo(QStringLiteral("x")), y = t.cislo(QStringLiteral("y"));
            odepis(dataS, t.text(QStringLiteral("Material")), otoc ? y : x, otoc ? x : y, otoc);
        }
    }
    for (Recordset z(dataK, QStringLiteral("SELECT * FROM SoupisZbytku WHERE XZP >=") + c(xz * 10) +
                                QStringLiteral(" and YZP >=") + c(yz * 10));
         !z.eof(); z.moveNext())
        pripis(dataS, material, z.cislo(QStringLiteral("XZP")), z.cislo(QStringLiteral("YZP")));
    t.commit();
    return true;
}
