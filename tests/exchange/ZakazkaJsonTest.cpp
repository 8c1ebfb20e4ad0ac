// The order exchange form: what loading writes, that a dump gives it back, and that refused
// input writes nothing.
#include "DomovTest.h"
#include "core/Error.h"
#include "core/Recordset.h"
#include "exchange/SkladJson.h"
#include "exchange/ZakazkaJson.h"

#include <QFile>
#include <QJsonDocument>

namespace {

QByteArray demo()
{
    QFile f(QStringLiteral(TRUHLAR_SHARE "/demo/kuchyne.json"));
    EXPECT_TRUE(f.open(QIODevice::ReadOnly));
    return f.readAll();
}

int radku(Database& db, const char* tabulka)
{
    return db.hodnota(QStringLiteral("SELECT count(*) FROM ") + QLatin1String(tabulka)).toInt();
}

QString chyba(const std::function<void()>& f)
{
    try {
        f();
    } catch (const Error& e) {
        EXPECT_EQ(e.cislo(), Chyba::NeplatnyVstup);
        return e.text();
    }
    return QString();
}

} // namespace

class ZakazkaJsonTest : public DomovTest {};

TEST_F(ZakazkaJsonTest, DemoSeNacteAVypiseStejne)
{
    Database& db = uloziste().dataS();
    EXPECT_EQ(ZakazkaJson::nacti(db, demo()), QStringLiteral("Kuchyně Novák"));
    EXPECT_EQ(ZakazkaJson::vypis(db, QStringLiteral("Kuchyně Novák")), QJsonDocument::fromJson(demo()).object());
    EXPECT_EQ(radku(db, "ZakazkyMaterialy"), 3);
    // every board and accessory is one row; the first row carries the order's header fields
    Recordset rs(db, QStringLiteral("SELECT * FROM Zakazky WHERE Sestava = 'Dřez80' ORDER BY cas"));
    EXPECT_EQ(rs.recordCount(), 7);
    EXPECT_EQ(rs.text(QStringLiteral("Oznaceni")), QStringLiteral("bok"));
    EXPECT_EQ(rs.cislo(QStringLiteral("IDFormat")), 5000001);
    EXPECT_EQ(rs.cislo(QStringLiteral("IDHX1")), 5000101);
    EXPECT_EQ(rs.text(QStringLiteral("Poznamka")), QStringLiteral("Kuchyňská linka 2,4 m, bílá, úchytky nerez"));
    rs.moveLast();
    EXPECT_EQ(rs.cislo(QStringLiteral("IDFormat")), 1);
    EXPECT_EQ(rs.text(QStringLiteral("jednotka")), QStringLiteral("ks"));
    EXPECT_EQ(rs.cislo(QStringLiteral("Cena")), 12.0);
}

TEST_F(ZakazkaJsonTest, HlavickoveRadkyZakazkyASestavyBezPolozek)
{
    Database& db = uloziste().dataS();
    const QByteArray prazdna = R"({"zakazka": "Prázdná", "poznamka": "", "formaty": [], "hrany": [], "sestavy": []})";
    ZakazkaJson::nacti(db, prazdna);
    Recordset z(db, QStringLiteral("SELECT * FROM Zakazky WHERE Zakazka = 'prázdná'"));
    ASSERT_EQ(z.recordCount(), 1);
    EXPECT_EQ(z.text(QStringLiteral("Sestava")), QString());
    EXPECT_EQ(z.text(QStringLiteral("Oznaceni")), QString());
    EXPECT_TRUE(z.value(QStringLiteral("IDFormat")).isNull());

    const QByteArray sestava = R"({"zakazka": "S", "poznamka": "", "formaty": [], "hrany": [],
        "sestavy": [{"nazev": "Skříň", "popis": "p", "pocet": 2, "schema": 0, "desky": [], "prislusenstvi": []}]})";
    ZakazkaJson::nacti(db, sestava);
    Recordset s(db, QStringLiteral("SELECT * FROM Zakazky WHERE Zakazka = 'S'"));
    ASSERT_EQ(s.recordCount(), 1);
    EXPECT_EQ(s.text(QStringLiteral("Sestava")), QStringLiteral("Skříň"));
    EXPECT_EQ(s.cislo(QStringLiteral("pocetelementuVsestave")), 2);
    EXPECT_EQ(ZakazkaJson::vypis(db, QStringLiteral("S")), QJsonDocument::fromJson(sestava).object());
    EXPECT_EQ(ZakazkaJson::seznam(db), QStringList({"Prázdná", "S"}));
}

TEST_F(ZakazkaJsonTest, ApostrofACeskaPismenaVNazvech)
{
    Database& db = uloziste().dataS();
    QByteArray json = demo();
    json.replace("Kuchyně Novák", "Novák's kuchyň");
    json.replace("\"bok\"", "\"bok 'L'\"");
    ZakazkaJson::nacti(db, json);
    EXPECT_EQ(ZakazkaJson::vypis(db, QStringLiteral("Novák's kuchyň")), QJsonDocument::fromJson(json).object());
}

TEST_F(ZakazkaJsonTest, ChybejiciCisloMaterialuDostaneRazitko)
{
    Database& db = uloziste().dataS();
    ZakazkaJson::nacti(db, R"({"zakazka": "R", "formaty": [{"material": "A", "x": 100, "y": 100},
                                                     {"material": "B", "x": 100, "y": 100}]})");
    Recordset rs(db, QStringLiteral("ZakazkyMaterialy"));
    const double stamp = 46086.0 * 86400 + 10 * 3600; // 2026-03-05 10:00 of the test clock
    EXPECT_EQ(rs.cislo(QStringLiteral("ID")), stamp);
    rs.moveNext();
    EXPECT_EQ(rs.cislo(QStringLiteral("ID")), stamp + 1);
}

TEST_F(ZakazkaJsonTest, OdmitnutyVstupNicNezapise)
{
    Database& db = uloziste().dataS();
    ZakazkaJson::nacti(db, demo());
    const int zakazky = radku(db, "Zakazky"), materialy = radku(db, "ZakazkyMaterialy");
    QByteArray kopie = demo();
    kopie.replace("Kuchyně Novák", "kuchyně NOVÁK");
    EXPECT_EQ(chyba([&] { ZakazkaJson::nacti(db, kopie); }),
              QStringLiteral("Zakazka pod tímhle názvem již existuje, zadejte jiný nazev !!!"));
    EXPECT_TRUE(chyba([&] { ZakazkaJson::nacti(db, "{\"zakazka\": \"X\", "); }).startsWith(QStringLiteral("Soubor není platný JSON")));
    EXPECT_TRUE(chyba([&] { ZakazkaJson::nacti(db, R"({"poznamka": ""})"); }).contains(QStringLiteral("zakazka")));
    QByteArray bezFormatu = demo();
    bezFormatu.replace("\"Kuchyně Novák\"", "\"Jiná\"").replace("\"format\": 5000001", "\"format\": 7");
    EXPECT_TRUE(chyba([&] { ZakazkaJson::nacti(db, bezFormatu); }).contains(QStringLiteral("formát č. 7 v zakázce není")));
    QByteArray zaporna = demo();
    zaporna.replace("\"Kuchyně Novák\"", "\"Jiná\"").replace("\"x\": 720", "\"x\": -720");
    EXPECT_TRUE(chyba([&] { ZakazkaJson::nacti(db, zaporna); }).contains(QStringLiteral("mimo povolený rozsah")));
    EXPECT_EQ(radku(db, "Zakazky"), zakazky);
    EXPECT_EQ(radku(db, "ZakazkyMaterialy"), materialy);
    EXPECT_THROW(ZakazkaJson::vypis(db, QStringLiteral("Neni")), Error);
}

TEST_F(ZakazkaJsonTest, OdrezkyVseNeboNic)
{
    Database& db = uloziste().dataS();
    EXPECT_EQ(SkladJson::nacti(db, R"([{"material": "DTD", "x": 500, "y": 300, "pocet": 2}])"), 1);
    EXPECT_TRUE(chyba([&] {
        SkladJson::nacti(db, R"([{"material": "DTD", "x": 500, "y": 300, "pocet": 1}, {"material": "", "x": 1, "y": 1, "pocet": 1}])");
    }).contains(QStringLiteral("Odřezek č. 2")));
    EXPECT_EQ(radku(db, "SkladOdrezku"), 1);
}
