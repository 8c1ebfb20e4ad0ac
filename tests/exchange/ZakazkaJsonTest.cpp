// The order exchange form: what loading writes, that a dump gives it back, and that refused
// input writes nothing.
#include "DomovTest.h"
#include "core/Error.h"
#include "core/Recordset.h"
#include "exchange/SkladJson.h"
#include "exchange/ZakazkaJson.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

int radku(Database& db, const char* tabulka)
{
    return db.hodnota(QStringLiteral("SELECT count(*) FROM ") + QLatin1String(tabulka)).toInt();
}

} // namespace

class ZakazkaJsonTest : public DomovTest {
protected:
    Database& db() { return uloziste().dataS(); }
};

TEST_F(ZakazkaJsonTest, DemoSeNacteAVypiseStejne)
{
    EXPECT_EQ(ZakazkaJson::nacti(db(), demoJson()), QStringLiteral("Kuchyně Novák"));
    EXPECT_EQ(ZakazkaJson::vypis(db(), QStringLiteral("Kuchyně Novák")), QJsonDocument::fromJson(demoJson()).object());
    EXPECT_EQ(radku(db(), "ZakazkyMaterialy"), 3);
    // every board and accessory is one row; the first row carries the order's header fields
    Recordset rs(db(), QStringLiteral("SELECT * FROM Zakazky WHERE Sestava = 'Dřez80' ORDER BY cas"));
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
    const QByteArray prazdna = R"({"zakazka": "Prázdná", "poznamka": "", "formaty": [], "hrany": [], "sestavy": []})";
    ZakazkaJson::nacti(db(), prazdna);
    Recordset z(db(), QStringLiteral("SELECT * FROM Zakazky WHERE Zakazka = 'prázdná'"));
    ASSERT_EQ(z.recordCount(), 1);
    EXPECT_EQ(z.text(QStringLiteral("Sestava")), QString());
    EXPECT_EQ(z.text(QStringLiteral("Oznaceni")), QString());
    EXPECT_TRUE(z.value(QStringLiteral("IDFormat")).isNull());
    // "" rather than NULL: the queries of the tree and the dialogs test Sestava = '' and Oznaceni = ''
    EXPECT_EQ(db().hodnota(QStringLiteral("SELECT count(*) FROM Zakazky WHERE Sestava = '' and Oznaceni = ''")).toInt(), 1);

    const QByteArray sestava = R"({"zakazka": "S", "poznamka": "", "formaty": [], "hrany": [],
        "sestavy": [{"nazev": "Skříň", "popis": "p", "pocet": 2, "schema": 0, "desky": [], "prislusenstvi": []}]})";
    ZakazkaJson::nacti(db(), sestava);
    Recordset s(db(), QStringLiteral("SELECT * FROM Zakazky WHERE Zakazka = 'S'"));
    ASSERT_EQ(s.recordCount(), 1);
    EXPECT_EQ(s.text(QStringLiteral("Sestava")), QStringLiteral("Skříň"));
    EXPECT_EQ(s.cislo(QStringLiteral("pocetelementuVsestave")), 2);
    EXPECT_EQ(s.text(QStringLiteral("popis")), QStringLiteral("p"));
    EXPECT_EQ(s.value(QStringLiteral("Oznaceni")), QVariant(QStringLiteral("")));
    EXPECT_EQ(ZakazkaJson::vypis(db(), QStringLiteral("S")), QJsonDocument::fromJson(sestava).object());
    EXPECT_EQ(ZakazkaJson::seznam(db()), QStringList({"Prázdná", "S"}));
}

TEST_F(ZakazkaJsonTest, ApostrofACeskaPismenaVNazvech)
{
    QByteArray json = demoJson();
    json.replace("Kuchyně Novák", "Novák's kuchyň");
    json.replace("\"bok\"", "\"bok 'L'\"");
    ZakazkaJson::nacti(db(), json);
    EXPECT_EQ(ZakazkaJson::vypis(db(), QStringLiteral("Novák's kuchyň")), QJsonDocument::fromJson(json).object());
}

TEST_F(ZakazkaJsonTest, ChybejiciCisloMaterialuDostaneRazitko)
{
    ZakazkaJson::nacti(db(), R"({"zakazka": "R", "formaty": [{"material": "A", "x": 100, "y": 100},
                                                     {"material": "B", "x": 100, "y": 100}]})");
    Recordset rs(db(), QStringLiteral("ZakazkyMaterialy"));
    const double stamp = 46086.0 * 86400 + 10 * 3600; // 2026-03-05 10:00 of the test clock
    EXPECT_EQ(rs.cislo(QStringLiteral("ID")), stamp);
    rs.moveNext();
    EXPECT_EQ(rs.cislo(QStringLiteral("ID")), stamp + 1);
}

TEST_F(ZakazkaJsonTest, RadkyNesouPoleJakoZDialogu)
{
    ZakazkaJson::nacti(db(), demoJson());
    // one datum and one note on every row; cas rises in list order, boards before accessories
    EXPECT_EQ(db().hodnota(QStringLiteral("SELECT count(DISTINCT datum) FROM Zakazky")).toInt(), 1);
    EXPECT_EQ(db().hodnota(QStringLiteral("SELECT count(*) FROM Zakazky WHERE Poznamka <> 'Kuchyňská linka 2,4 m, bílá, úchytky nerez'")).toInt(), 0);
    std::vector<double> casy;
    QStringList poradi;
    for (Recordset rs(db(), QStringLiteral("Zakazky")); !rs.eof(); rs.moveNext()) {
        casy.push_back(rs.cislo(QStringLiteral("cas")));
        poradi << rs.text(QStringLiteral("Sestava")) + QLatin1Char('/') + rs.text(QStringLiteral("Oznaceni"));
    }
    EXPECT_TRUE(std::is_sorted(casy.begin(), casy.end()) && std::adjacent_find(casy.begin(), casy.end()) == casy.end());
    QStringList ocekavane;
    for (const QJsonValue& sestava : QJsonDocument::fromJson(demoJson())["sestavy"].toArray())
        for (const char* seznam : {"desky", "prislusenstvi"})
            for (const QJsonValue& p : sestava[seznam].toArray())
                ocekavane << sestava["nazev"].toString() + QLatin1Char('/') + p["oznaceni"].toString();
    EXPECT_EQ(poradi, ocekavane);
    // a board leaves the accessory's fields unset and the other way round
    Recordset deska(db(), QStringLiteral("SELECT * FROM Zakazky WHERE IDFormat > 1"));
    EXPECT_TRUE(deska.value(QStringLiteral("Cena")).isNull());
    EXPECT_TRUE(deska.value(QStringLiteral("jednotka")).isNull());
    Recordset prislusenstvi(db(), QStringLiteral("SELECT * FROM Zakazky WHERE IDFormat = 1"));
    EXPECT_TRUE(prislusenstvi.value(QStringLiteral("x")).isNull());
    EXPECT_TRUE(prislusenstvi.value(QStringLiteral("IDHX1")).isNull());
    EXPECT_EQ(prislusenstvi.cislo(QStringLiteral("OV")), 0);
    Recordset material(db(), QStringLiteral("SELECT * FROM ZakazkyMaterialy WHERE Pouziti = 'hrana'"));
    EXPECT_TRUE(material.value(QStringLiteral("RozmerX")).isNull());
    EXPECT_EQ(material.cislo(QStringLiteral("BarvaVNP")), 255);
}

TEST_F(ZakazkaJsonTest, KazdaZakazkaLavicesSeVratiStejna)
{
    const QDir slozka(QStringLiteral(TRUHLAR_BENCH_DIR));
    const QStringList soubory = slozka.entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name);
    if (soubory.isEmpty())
        GTEST_SKIP() << "složka s objednávkami lavice chybí";
    for (const QString& s : soubory) {
        const QJsonObject o = QJsonDocument::fromJson(obsahSouboru(slozka.filePath(s))).object();
        const QString nazev = ZakazkaJson::nacti(db(), QJsonDocument(o).toJson());
        EXPECT_EQ(ZakazkaJson::vypis(db(), nazev), o) << s.toStdString();
    }
}

TEST_F(ZakazkaJsonTest, TextyZustavajiJakStojiABezejmennaDeskaDostaneJmeno)
{
    ZakazkaJson::nacti(db(), R"({"zakazka": " Mezery ", "poznamka": "dvě\nřádky ", "formaty": [{"id": 9, "material": "m", "x": 900, "y": 900}],
        "sestavy": [{"nazev": "S", "desky": [
            {"oznaceni": "deska 1", "x": 10, "y": 10, "pocet": 1, "format": 9},
            {"oznaceni": "", "x": 20, "y": 10, "pocet": 1, "format": 9},
            {"oznaceni": "DESKA 3", "x": 30, "y": 10, "pocet": 1, "format": 9},
            {"x": 40, "y": 10, "pocet": 1, "format": 9},
            {"oznaceni": " bok ", "x": 50, "y": 10, "pocet": 1, "format": 9}]}]})");
    const QJsonObject o = ZakazkaJson::vypis(db(), QStringLiteral(" Mezery "));
    EXPECT_EQ(o["zakazka"].toString(), QStringLiteral(" Mezery "));
    EXPECT_EQ(o["poznamka"].toString(), QStringLiteral("dvě\nřádky "));
    QStringList nazvy;
    for (const QJsonValue& d : o["sestavy"][0]["desky"].toArray())
        nazvy << d["oznaceni"].toString();
    EXPECT_EQ(nazvy, QStringList({"deska 1", "deska 2", "DESKA 3", "deska 4", " bok "}));
}

TEST_F(ZakazkaJsonTest, OdmitnutyVstupNicNezapise)
{
    ZakazkaJson::nacti(db(), demoJson());
    // a small valid order, each case spoils one thing in it
    const QByteArray zaklad = R"({"zakazka": "Jiná", "formaty": [{"id": 11, "material": "DTD", "x": 2800, "y": 2070, "ov": false}],
        "hrany": [{"id": 21, "material": "ABS"}, {"id": 22, "material": "ABS 2"}],
        "sestavy": [{"nazev": "S", "pocet": 2, "desky": [{"oznaceni": "bok", "x": 720, "y": 560, "pocet": 2, "format": 11,
                                                          "hrany": [21, 0, 0, 0]}]}]})";
    ZakazkaJson::vypis(db(), ZakazkaJson::nacti(db(), QByteArray(zaklad).replace("Jiná", "Platná")));
    const int zakazky = radku(db(), "Zakazky"), materialy = radku(db(), "ZakazkyMaterialy");
    auto jina = [&](const char* z, const char* na) { return QByteArray(zaklad).replace(z, na); };
    QByteArray kopie = demoJson();
    kopie.replace("Kuchyně Novák", "kuchyně NOVÁK");
    const std::pair<QByteArray, QString> pripady[] = {
        {kopie, QStringLiteral("Zakazka pod tímhle názvem již existuje, zadejte jiný nazev !!!")},
        {"{\"zakazka\": \"X\", ", QStringLiteral("Soubor není platný JSON: neukončený objekt")},
        {"[1, 2]", QStringLiteral("jednu zakázku")},
        {R"({"poznamka": ""})", QStringLiteral("Zakázka: chybí údaj „zakazka“.")},
        {R"({"zakazka": "  "})", QStringLiteral("nesmí být prázdný")},
        {R"({"zakazka": "X", "sestavy": [{"nazev": "S", "pocett": 2}]})", QStringLiteral("Sestava č. 1: neznámý údaj „pocett“")},
        {R"({"zakazka": "X", "sestavy": [{"nazev": "Skříň"}, {"nazev": "SKŘÍŇ"}]})",
         QStringLiteral("Sestava pod tímhle názvem již existuje")},
        {R"({"zakazka": "X", "sestavy": [{"nazev": "S", "prislusenstvi": [{"oznaceni": ")" + QByteArray(101, 'p') +
             R"(", "mnozstvi": 1}]}]})",
         QStringLiteral("Název nového příslušenstvi smí obsahovat maximálně 100 znaků!!!")},
        {jina("\"format\": 11", "\"format\": 7"), QStringLiteral("S), deska č. 1: formát č. 7 v zakázce není")},
        {jina("\"format\": 11", "\"format\": 21"), QStringLiteral("formát č. 21 v zakázce není")},
        {jina("[21, 0, 0, 0]", "[11, 0, 0, 0]"), QStringLiteral("hrana č. 11 v zakázce není")},
        {jina("[21, 0, 0, 0]", "[21, 0]"), QStringLiteral("hrany se zadávají čtyři")},
        {jina("\"id\": 22", "\"id\": 11"), QStringLiteral("Hrana č. 2: číslo materiálu 11 je v zakázce dvakrát")},
        {jina("\"id\": 22", "\"id\": 22.5"), QStringLiteral("Hrana č. 2: údaj „id“ musí být celé číslo")},
        {jina("\"x\": 720", "\"x\": -720"), QStringLiteral("údaj „x“ = -720 je mimo povolený rozsah 0.1 až 100000")},
        {jina("\"x\": 720", "\"x\": \"720\""), QStringLiteral("údaj „x“ musí být číslo")},
        {jina("\"pocet\": 2,", "\"pocet\": 1.5,"), QStringLiteral("Sestava č. 1: údaj „pocet“ musí být celé číslo")},
        {jina("\"ov\": false", "\"ov\": 0"), QStringLiteral("musí být true nebo false")},
        {jina("\"sestavy\"", "\"sestava\""), QStringLiteral("Zakázka: neznámý údaj „sestava“")},
    };
    for (const auto& [json, zprava] : pripady)
        EXPECT_TRUE(textChyby([&] { ZakazkaJson::nacti(db(), json); }).contains(zprava)) << zprava.toStdString();
    EXPECT_EQ(radku(db(), "Zakazky"), zakazky);
    EXPECT_EQ(radku(db(), "ZakazkyMaterialy"), materialy);
    EXPECT_EQ(textChyby([&] { ZakazkaJson::vypis(db(), QStringLiteral("Neni")); }), QStringLiteral("Zakázka „Neni“ neexistuje."));
}

TEST_F(ZakazkaJsonTest, OdrezkyVseNeboNic)
{
    EXPECT_EQ(SkladJson::nacti(db(), R"([{"material": "DTD", "x": 500, "y": 300, "pocet": 2}])"), 1);
    EXPECT_TRUE(textChyby([&] {
        SkladJson::nacti(db(), R"([{"material": "DTD", "x": 500, "y": 300, "pocet": 1}, {"material": "", "x": 1, "y": 1, "pocet": 1}])");
    }).contains(QStringLiteral("Odřezek č. 2")));
    EXPECT_TRUE(textChyby([&] { SkladJson::nacti(db(), R"([{"material": "DTD", "x": 500, "y": 300, "ks": 1}])"); })
                    .contains(QStringLiteral("neznámý údaj „ks“")));
    EXPECT_TRUE(textChyby([&] { SkladJson::nacti(db(), R"({"material": "DTD"})"); }).contains(QStringLiteral("seznam odřezků")));
    EXPECT_EQ(radku(db(), "SkladOdrezku"), 1);
    Recordset rs(db(), QStringLiteral("SkladOdrezku"));
    EXPECT_EQ(rs.text(QStringLiteral("Material")), QStringLiteral("DTD"));
    EXPECT_EQ(rs.cislo(QStringLiteral("x")), 500);
    EXPECT_EQ(rs.cislo(QStringLiteral("Pocet")), 2);
}
