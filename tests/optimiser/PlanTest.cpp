#include "PlanTest.h"

#include "core/Nastaveni.h"
#include "core/Recordset.h"
#include "optimiser/VypisNP.h"

void PlanTest::SetUp()
{
    DomovTest::SetUp();
    Nastaveni::ZapisVychoziNastaveni(0, 0, 100, 100);
}

void PlanTest::nastav(const char* klic, const char* hodnota)
{
    Nastaveni::SaveSetting(QStringLiteral("Setting2"), QString::fromLatin1(klic), QString::fromLatin1(hodnota));
}

void PlanTest::odrezek(double x, double y, int pocet, const QString& material)
{
    Recordset rs(uloziste().dataS(), QStringLiteral("SkladOdrezku"), Recordset::Rozsah::Prvni);
    rs.addNew();
    rs.set(QStringLiteral("Material"), material);
    rs.set(QStringLiteral("x"), x);
    rs.set(QStringLiteral("y"), y);
    rs.set(QStringLiteral("Pocet"), pocet);
    rs.update();
}

void PlanTest::zakazka(double x, double y, bool ov, const std::vector<DeskaTest>& desky, const QString& nazev)
{
    Database& db = uloziste().dataS();
    Recordset m(db, QStringLiteral("ZakazkyMaterialy"));
    m.addNew();
    m.set(QStringLiteral("ID"), 5000001.0);
    m.set(QStringLiteral("Zakazka"), nazev);
    m.set(QStringLiteral("Material"), QStringLiteral("DTD"));
    m.set(QStringLiteral("pouziti"), QStringLiteral("format"));
    m.set(QStringLiteral("RozmerX"), x);
    m.set(QStringLiteral("RozmerY"), y);
    m.set(QStringLiteral("OV"), ov);
    m.update();
    Recordset z(db, QStringLiteral("Zakazky"));
    double cas = 1000;
    for (const DeskaTest& d : desky) {
        z.addNew();
        z.set(QStringLiteral("Zakazka"), nazev);
        z.set(QStringLiteral("Sestava"), d.sestava);
        z.set(QStringLiteral("pocetelementuVsestave"), d.kusuSestavy);
        z.set(QStringLiteral("Oznaceni"), d.oznaceni);
        z.set(QStringLiteral("IDFormat"), 5000001.0);
        for (const char* h : {"IDHX1", "IDHX2", "IDHY1", "IDHY2"})
            z.set(QLatin1String(h), 0.0);
        z.set(QStringLiteral("cas"), cas++);
        z.set(QStringLiteral("x"), d.x);
        z.set(QStringLiteral("y"), d.y);
        z.set(QStringLiteral("Pocet"), d.pocet);
        z.set(QStringLiteral("OV"), d.ov);
        z.update();
    }
}

QJsonObject PlanTest::spust(ZpusobNP zpusob, int volba, const QString& nazev)
{
    TichyPrubeh prubeh;
    PlanRun run(uloziste(), prompt, prubeh);
    run.SpustNP(nazev, 5000001, zpusob, volba);
    return VypisNP(uloziste().dataK(), run);
}
