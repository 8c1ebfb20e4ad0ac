#include "optimiser/OdepisOdrezky.h"

#include "catalogues/Sklad.h"
#include "core/Database.h"
#include "core/Nastaveni.h"
#include "core/Prompt.h"
#include "core/Recordset.h"
#include "core/Transakce.h"
#include "orders/RadkyZakazky.h"

bool OdepisOdrezky(Database& dataS, Database& dataK, Prompt& prompt, const QString& zakazka, double idFormatuNP)
{
    const auto format = RadkyZakazky::material(dataK, zakazka, idFormatuNP);
    const double rozmerX = format ? format->cislo(QStringLiteral("RozmerX")) : 0;
    const double rozmerY = format ? format->cislo(QStringLiteral("RozmerY")) : 0;
    const QString material = format ? format->text(QStringLiteral("Material")) : QString();
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
        for (Recordset t(dataK, QStringLiteral("SELECT * FROM SoupisTabuli WHERE X*10 <> ? and Y*10 <> ?"),
                         {rozmerX * 10, rozmerY * 10});
             !t.eof(); t.moveNext()) {
            const bool otoc = t.ano(QStringLiteral("OTOC"));
            const double x = t.cislo(QStringLiteral("x")), y = t.cislo(QStringLiteral("y"));
            Sklad::odeberKus(dataS, t.text(QStringLiteral("Material")), otoc ? y : x, otoc ? x : y);
        }
    }
    for (Recordset z(dataK, QStringLiteral("SELECT * FROM SoupisZbytku WHERE XZP >= ? and YZP >= ?"), {xz * 10, yz * 10});
         !z.eof(); z.moveNext())
        Sklad::pridejKus(dataS, material, z.cislo(QStringLiteral("XZP")), z.cislo(QStringLiteral("YZP")));
    t.commit();
    return true;
}
