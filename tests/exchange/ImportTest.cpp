// The board list import: encodings and line ends, unique names, bands made once, units, and
// all or nothing whatever the text.
#include "DomovTest.h"
#include "core/Error.h"
#include "core/Nastaveni.h"
#include "core/Prompt.h"
#include "core/Recordset.h"
#include "exchange/Import.h"
#include "exchange/ZakazkaJson.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRandomGenerator>
#include <QStringEncoder>

namespace {

const QString Seznam = QStringLiteral("Bok;720;560;2;2;2;0;0\nPolička\t562,5\t300\t1\t\t\t\t\nČelo žluté;596;716;1;2;2;2;2\n\n"
                                      "Bok;720;560;2;2;2;0;0\nzáda;700;600;1\n");

QJsonArray desky(Database& db, const QString& sestava = QStringLiteral("S"))
{
    for (const QJsonValue& s : ZakazkaJson::vypis(db, QStringLiteral("Z"))[QStringLiteral("sestavy")].toArray())
        if (s[QStringLiteral("nazev")].toString() == sestava)
            return s[QStringLiteral("desky")].toArray();
    return {};
}

} // namespace

class ImportTest : public NastavenyDomov {
protected:
    void SetUp() override
    {
        NastavenyDomov::SetUp();
        ZakazkaJson::nacti(db(), R"({"zakazka": "Z", "formaty": [{"id": 5000001, "material": "DTD", "x": 2800, "y": 2070}],
                                     "sestavy": [{"nazev": "S"}, {"nazev": "T0"}, {"nazev": "T1"}, {"nazev": "T2"}, {"nazev": "T3"}]})");
    }
    Database& db() { return uloziste().dataS(); }
    int radku() { return db().hodnota(QStringLiteral("SELECT count(*) FROM Zakazky")).toInt(); }
    int desek() { return db().hodnota(QStringLiteral("SELECT count(*) FROM Zakazky WHERE Oznaceni <> ''")).toInt(); }
};

TEST_F(ImportTest, KodovaniAKonceRadkuDajiStejneRadky)
{
    QString crlf = Seznam;
    crlf.replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
    QString cr = Seznam;
    cr.replace(QLatin1Char('\n'), QLatin1Char('\r'));
    QStringEncoder cp1250("windows-1250");
    QStringEncoder utf16(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom);
    const std::vector<QByteArray> soubory = {cp1250(crlf), Seznam.toUtf8(), QByteArray("\xEF\xBB\xBF") + cr.toUtf8(),
                                             utf16(crlf)};
    for (size_t i = 0; i < soubory.size(); ++i) {
        const QString text = Import::dekoduj(soubory[i]);
        EXPECT_TRUE(text.contains(QStringLiteral("Čelo žluté")));
        const QString sestava = QStringLiteral("T%1").arg(i);
        const Import::Vysledek v = Import::importuj(db(), QStringLiteral("Z"), sestava, text);
        ASSERT_FALSE(v.odmitnuti) << v.odmitnuti->zprava.toStdString();
        EXPECT_EQ(v.pridano, 5);
        EXPECT_EQ(desky(db(), sestava), desky(db(), QStringLiteral("T0"))) << i;
    }
    EXPECT_THROW(Import::dekoduj(QByteArray("a\0b", 3)), Error);
}

TEST_F(ImportTest, JmenaHranyAHlavickaSestavy)
{
    ASSERT_EQ(Import::importuj(db(), QStringLiteral("Z"), QStringLiteral("S"), Seznam).pridano, 5);
    const QJsonArray d = desky(db());
    QStringList jmena;
    for (const QJsonValue& v : d)
        jmena << v[QStringLiteral("oznaceni")].toString();
    EXPECT_EQ(jmena, QStringList({"Bok", "Polička", "Čelo žluté", "Bok 1", "záda"}));
    EXPECT_EQ(d[1][QStringLiteral("x")].toDouble(), 562.5);
    EXPECT_EQ(d[0][QStringLiteral("ov")].toBool(), true);
    // "hrana 2" made once and used on both X sides and in later lines
    const QJsonArray hrany = ZakazkaJson::vypis(db(), QStringLiteral("Z"))[QStringLiteral("hrany")].toArray();
    ASSERT_EQ(hrany.size(), 1);
    EXPECT_EQ(hrany[0][QStringLiteral("material")].toString(), QStringLiteral("hrana 2"));
    EXPECT_EQ(hrany[0][QStringLiteral("cena")].toDouble(), 5);
    EXPECT_EQ(d[2][QStringLiteral("hrany")].toArray(), QJsonArray({hrany[0][QStringLiteral("id")], hrany[0][QStringLiteral("id")],
                                                                   hrany[0][QStringLiteral("id")], hrany[0][QStringLiteral("id")]}));
    // the empty assembly's header row took the first board: 5 boards are 5 rows (plus 4 headers)
    EXPECT_EQ(radku(), 9);
    // a case-blind clash gets a number
    Import::importuj(db(), QStringLiteral("Z"), QStringLiteral("S"), QStringLiteral("BOK;100;100;1"));
    QStringList po;
    for (const QJsonValue& v : desky(db()))
        po << v[QStringLiteral("oznaceni")].toString();
    EXPECT_TRUE(po.contains(QStringLiteral("BOK 2")));
}

TEST_F(ImportTest, RozmeryVJednotceUzivatele)
{
    Nastaveni::SaveSetting(QStringLiteral("Setting"), QStringLiteral("Jednotky"), QStringLiteral("1"));
    Import::importuj(db(), QStringLiteral("Z"), QStringLiteral("S"), QStringLiteral("a;72;56,5;1"));
    Nastaveni::SaveSetting(QStringLiteral("Setting"), QStringLiteral("Jednotky"), QStringLiteral("4"));
    Import::importuj(db(), QStringLiteral("Z"), QStringLiteral("S"), QStringLiteral("b;1;0.333;1"));
    const QJsonArray d = desky(db());
    EXPECT_EQ(d[0][QStringLiteral("x")].toDouble(), 720);
    EXPECT_EQ(d[0][QStringLiteral("y")].toDouble(), 565);
    EXPECT_EQ(d[1][QStringLiteral("x")].toDouble(), 25.4);
    EXPECT_EQ(d[1][QStringLiteral("y")].toDouble(), 8.5);
}

TEST_F(ImportTest, OdmitnutyRadekNeimportujeNic)
{
    const int pred = radku();
    const std::vector<std::pair<QString, int>> spatne = {
        {QStringLiteral("a;100;100;1\nb;0;100;1"), 2},         {QStringLiteral("\na;100;100;1.5"), 2},
        {QStringLiteral("a;100;100;1;0;0;0;0;x"), 1},         {QStringLiteral("a;100;-5;1"), 1},
        {QStringLiteral("a;100;100"), 1},                      {QStringLiteral("a;100;100;1;x"), 1},
        {QStringLiteral("a;200000;100;1"), 1},
    };
    for (const auto& [text, radek] : spatne) {
        const Import::Vysledek v = Import::importuj(db(), QStringLiteral("Z"), QStringLiteral("S"), text);
        ASSERT_TRUE(v.odmitnuti) << text.toStdString();
        EXPECT_EQ(v.odmitnuti->zprava, QStringLiteral("Chyba při převodu řádku č. %1").arg(radek));
        EXPECT_EQ(v.odmitnuti->radek, radek);
    }
    ZakazkaJson::nacti(db(), R"({"zakazka": "Bez formátu", "sestavy": [{"nazev": "S"}]})");
    EXPECT_EQ(Import::importuj(db(), QStringLiteral("Bez formátu"), QStringLiteral("S"), QStringLiteral("a;1;1;1"))
                  .odmitnuti->zprava,
              QStringLiteral("Doplňte materiál formátu!"));
    EXPECT_EQ(radku(), pred + 1);
}

TEST_F(ImportTest, NahodneZmenyImportujiVseNeboNic)
{
    QRandomGenerator nahoda(2026);
    const QString znaky = QStringLiteral("0123456789;,\t\n -xBok.");
    for (int i = 0; i < 2000; ++i) {
        QString text = Seznam;
        for (int z = 0; z < 3; ++z)
            text[int(nahoda.bounded(text.size()))] = znaky[int(nahoda.bounded(znaky.size()))];
        const int pred = desek(), radkuPred = radku();
        const Import::Vysledek v = Import::importuj(db(), QStringLiteral("Z"), QStringLiteral("S"), text);
        if (v.odmitnuti) {
            ASSERT_EQ(desek(), pred) << text.toStdString();
            ASSERT_EQ(radku(), radkuPred);
        } else {
            ASSERT_EQ(desek() - pred, v.pridano) << text.toStdString();
        }
    }
}

TEST_F(ImportTest, DlouhySeznamUkazujePrubehAStornoNeulozNic)
{
    // counts the reports and asks to stop at the given one (0: never)
    class Pocitadlo : public Prubeh {
    public:
        explicit Pocitadlo(int stop) : m_stop(stop) {}
        void popisek(const QString&) override {}
        void hodnota(double h) override
        {
            EXPECT_GE(h, m_posledni);
            EXPECT_LE(h, maximum());
            m_posledni = h;
        }
        bool prerusit() override { return ++m_dotazu == m_stop; }
        int m_stop, m_dotazu = 0;
        double m_posledni = 0;
    };
    QString seznam;
    for (int i = 0; i < 3000; ++i)
        seznam += QStringLiteral("díl;%1;300;1\r\n").arg(100 + i % 500);
    const int pred = radku();
    Pocitadlo storno(3);
    const Import::Vysledek v = Import::importuj(db(), QStringLiteral("Z"), QStringLiteral("S"), seznam, &storno);
    ASSERT_TRUE(v.odmitnuti);
    EXPECT_EQ(v.odmitnuti->zprava, QStringLiteral("Import byl přerušen, nic nebylo uloženo."));
    EXPECT_EQ(radku(), pred);

    Pocitadlo az(0);
    EXPECT_EQ(Import::importuj(db(), QStringLiteral("Z"), QStringLiteral("S"), seznam, &az).pridano, 3000);
    EXPECT_EQ(az.m_dotazu, 6);
    EXPECT_GT(az.m_posledni, 90);
    EXPECT_EQ(desek(), 3000);
}

// A spreadsheet's CSV: a header naming the columns in any order (and columns the import does
// not know), "," or ";" between fields, quoted fields with a decimal comma, bands by thickness
// or by name, UTF-8 or Windows-1250; without "Počet" each line is one board.
TEST_F(ImportTest, CsvSHlavickouZTabulkovehoProcesoru)
{
    const QString carkami = QStringLiteral("Poznámka,DÉLKA,Šířka,Název,Hrana X1,Hrana Y2\n"
                                           "\"vlevo, dole\",\"562,5\",300,Bok,2,ABS dub\n"
                                           ",700,600,záda,,\n");
    const QString strednikem = QStringLiteral("Nazev;Delka;Sirka;Pocet;Hrana X1;Hrana X2;Hrana Y1;Hrana Y2\r\n"
                                              "Bok;562,5;300;1;2;;;ABS dub\r\nzáda;700;600;1;;;;\r\n");
    QStringEncoder cp1250("windows-1250");
    for (const auto& [sestava, text] : {std::pair{QStringLiteral("T0"), carkami}, std::pair{QStringLiteral("T1"), strednikem},
                                        std::pair{QStringLiteral("T2"), Import::dekoduj(cp1250(strednikem))}}) {
        SCOPED_TRACE(sestava.toStdString());
        const Import::Vysledek v = Import::importuj(db(), QStringLiteral("Z"), sestava, text);
        ASSERT_FALSE(v.odmitnuti) << v.odmitnuti->zprava.toStdString();
        EXPECT_EQ(v.pridano, 2);
        const QJsonArray d = desky(db(), sestava);
        ASSERT_EQ(d.size(), 2);
        EXPECT_EQ(d[0][QStringLiteral("oznaceni")].toString(), QStringLiteral("Bok"));
        EXPECT_EQ(d[0][QStringLiteral("x")].toDouble(), 562.5);
        EXPECT_EQ(d[0][QStringLiteral("pocet")].toDouble(), 1);
        EXPECT_EQ(d[1][QStringLiteral("oznaceni")].toString(), QStringLiteral("záda"));
        const QJsonArray h = d[0][QStringLiteral("hrany")].toArray();
        EXPECT_NE(h[0].toDouble(), 0);
        EXPECT_EQ(h[1].toDouble(), 0);
        EXPECT_NE(h[3].toDouble(), 0);
    }
    // each band made once, by its name, over the three imports
    const QJsonArray hrany = ZakazkaJson::vypis(db(), QStringLiteral("Z"))[QStringLiteral("hrany")].toArray();
    QStringList nazvy;
    for (const QJsonValue& h : hrany)
        nazvy << h[QStringLiteral("material")].toString();
    EXPECT_EQ(nazvy, (QStringList{QStringLiteral("hrana 2"), QStringLiteral("ABS dub")}));
    // a refused line under a header imports nothing either
    const int predtim = radku();
    const Import::Vysledek v =
        Import::importuj(db(), QStringLiteral("Z"), QStringLiteral("T3"), QStringLiteral("Délka;Šířka\n600;300\n600;x\n"));
    ASSERT_TRUE(v.odmitnuti);
    EXPECT_EQ(v.odmitnuti->radek, 3);
    EXPECT_EQ(radku(), predtim);
}
