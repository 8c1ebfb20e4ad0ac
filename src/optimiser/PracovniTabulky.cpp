#include "optimiser/PracovniTabulky.h"

#include "core/Database.h"
#include "core/Transakce.h"

QString textZbytku(DruhZbytku druh)
{
    switch (druh) {
    case DruhZbytku::ZT:
        return QStringLiteral("ZT");
    case DruhZbytku::ZR:
        return QStringLiteral("ZŘ");
    default:
        return QStringLiteral("KZ");
    }
}

void PracovniTabulky::zapis(Database& dataK) const
{
    Transakce t(dataK);
    for (const char* tabulka : {"SoupisDesek", "SoupisTabuli", "SoupisZbytku"})
        dataK.executeSqlite(QStringLiteral("DELETE FROM ") + QLatin1String(tabulka));

    const auto deska = dataK.prikaz(QStringLiteral(
        "INSERT INTO SoupisDesek (CDesky, Oznaceni, Sestava, x, y, OV, IDHX1, IDHX2, IDHY1, IDHY2, ID, XD, YD, "
        "tabule, OTOC, PlochaKZ, PlochaKZBOV, PlochaKZSLOUPEC, PlochaKZBOVSLOUPEC, SumaKZ, SumaKZBOV, "
        "SumaKZSloupec, SumaKZBOVSloupec, PVT, PD) VALUES (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)"));
    for (const DeskaNP& d : desky) {
        const QVariantList hodnoty{d.CDesky, d.Oznaceni, d.Sestava, d.x, d.y, d.OV, d.IDHX1, d.IDHX2,
                                   d.IDHY1, d.IDHY2, d.ID, d.XD, d.YD, d.tabule, d.OTOC,
                                   d.Plocha[0][0], d.Plocha[0][1], d.Plocha[1][0], d.Plocha[1][1],
                                   d.Suma[0][0], d.Suma[0][1], d.Suma[1][0], d.Suma[1][1], d.PVT, d.PD};
        for (int i = 0; i < hodnoty.size(); ++i)
            deska->navaz(i + 1, hodnoty[i]);
        deska->krok();
        deska->reset();
    }

    const auto tab = dataK.prikaz(
        QStringLiteral("INSERT INTO SoupisTabuli (CT, NCT, Material, x, y, OTOC, ID) VALUES (?,?,?,?,?,?,?)"));
    for (const TabuleNP& r : tabule) {
        if (r.smazany)
            continue;
        const QVariantList hodnoty{r.CT, r.NCT, r.Material, r.x, r.y, false, r.ID};
        for (int i = 0; i < hodnoty.size(); ++i)
            tab->navaz(i + 1, hodnoty[i]);
        tab->krok();
        tab->reset();
    }

    const auto zbytek = dataK.prikaz(QStringLiteral(
        "INSERT INTO SoupisZbytku (Oznaceni, CT, Rada, cislo, XZP, YZP, XDP, YDP, ID, plocha, celkemY) "
        "VALUES (?,?,?,?,?,?,?,?,?,?,?)"));
    for (const ZbytekNP& z : zbytky) {
        if (z.smazany)
            continue;
        const QVariantList hodnoty{textZbytku(z.Oznaceni), z.CT, z.Rada, z.cislo, z.XZP, z.YZP, z.XDP, z.YDP,
                                   z.ID, z.plocha, z.celkemY};
        for (int i = 0; i < hodnoty.size(); ++i)
            zbytek->navaz(i + 1, hodnoty[i]);
        zbytek->krok();
        zbytek->reset();
    }
    t.commit();
}
