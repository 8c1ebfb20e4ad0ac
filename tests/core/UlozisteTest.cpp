// The store: translation of the old dialect, Czech case-blind text, row order, recordsets,
// creation, refusal of foreign files, the plan copy and transactions.
#include "DomovTest.h"
#include "core/Aplikace.h"
#include "core/Dotaz.h"
#include "core/Error.h"
#include "core/Recordset.h"
#include "core/Schema.h"
#include "core/Transakce.h"

#include <QFile>
#include <sys/file.h>
#include <fcntl.h>
#include <unistd.h>

namespace {

void pridejMaterial(Database& db, const QString& material, double x)
{
    Recordset rs(db, QStringLiteral("SkladOdrezku"));
    rs.addNew();
    rs.set(QStringLiteral("Material"), material);
    rs.set(QStringLiteral("x"), x);
    rs.set(QStringLiteral("y"), 100.0);
    rs.set(QStringLiteral("Pocet"), 1);
    rs.update();
}

QStringList materialy(Database& db, const QString& sql)
{
    QStringList v;
    for (Recordset rs(db, sql); !rs.eof(); rs.moveNext())
        v << rs.text(QStringLiteral("Material"));
    return v;
}

} // namespace

TEST(Dotaz, PrekladZachovavaLiteralyAPridavaPoradiRadku)
{
    EXPECT_EQ(Dotaz::preloz(QStringLiteral("SELECT * FROM T WHERE ID = False and A = 'True' ORDER BY y DESC, x DESC;"),
                            Dotaz::Razeni::PoradiRadku),
              QStringLiteral("SELECT * FROM T WHERE ID = 0 and A = 'True' ORDER BY y DESC, x DESC, rowid"));
    EXPECT_EQ(Dotaz::preloz(QStringLiteral("SELECT * FROM T WHERE PVT=true "), Dotaz::Razeni::PoradiRadku),
              QStringLiteral("SELECT * FROM T WHERE PVT=-1 ORDER BY rowid"));
    EXPECT_EQ(Dotaz::preloz(QStringLiteral("DELETE * FROM SoupisDesekKZ")),
              QStringLiteral("DELETE FROM SoupisDesekKZ"));
    EXPECT_EQ(Dotaz::preloz(QStringLiteral("SELECT len(a) FROM T WHERE b = 'x order by y'"), Dotaz::Razeni::PoradiRadku),
              QStringLiteral("SELECT length(a) FROM T WHERE b = 'x order by y' ORDER BY rowid"));
}

TEST(Dotaz, CislaPatnactiCifernaAApostrofyZdvojene)
{
    EXPECT_EQ(Dotaz::cislo(7200), QStringLiteral("7200"));
    EXPECT_EQ(Dotaz::cislo(0.1 + 0.2), QStringLiteral("0.3"));
    EXPECT_EQ(Dotaz::cislo(-40), QStringLiteral("-40"));
    EXPECT_EQ(Dotaz::cislo(3980246400), QStringLiteral("3980246400"));
    EXPECT_EQ(Dotaz::text(QStringLiteral("Novák's")), QStringLiteral("Novák''s"));
}

class Uloziste_ : public DomovTest {};

TEST_F(Uloziste_, ZakladaPrazdneDatabazeSeVsemiTabulkami)
{
    Uloziste& u = uloziste();
    for (const QString& t : Schema::tabulky(Schema::Soubor::Data)) {
        EXPECT_EQ(u.dataS().sloupce(t), Schema::sloupce(t)) << t.toStdString();
        EXPECT_EQ(u.dataS().hodnota(QStringLiteral("SELECT count(*) FROM ") + t).toInt(), 0);
    }
    for (const QString& t : Schema::tabulky(Schema::Soubor::Cenik))
        EXPECT_EQ(u.cenik().sloupce(t), Schema::sloupce(t));
    EXPECT_TRUE(Schema::tabulky(Schema::Soubor::Data).contains(QStringLiteral("SoupisProDilnu")));
    EXPECT_EQ(cisloChyby([&] { Recordset(u.dataS(), QStringLiteral("Cenik")); }), Chyba::TabulkaChybi);
}

TEST_F(Uloziste_, TextSeSrovnavaCeskyBezOhleduNaVelikost)
{
    Database& db = uloziste().dataS();
    for (const char* m : {"chata", "Hrad", "cihla", "čáp", "DTD bílá", "Žebřík", "Cesta"})
        pridejMaterial(db, QString::fromUtf8(m), 1);
    EXPECT_EQ(materialy(db, QStringLiteral("SELECT * FROM SkladOdrezku ORDER BY Material")),
              QStringList({"Cesta", "cihla", "čáp", "DTD bílá", "Hrad", "chata", "Žebřík"}));
    EXPECT_EQ(materialy(db, QStringLiteral("SELECT * FROM SkladOdrezku WHERE Material = 'dtd BÍLÁ'")),
              QStringList({"DTD bílá"}));
    EXPECT_TRUE(materialy(db, QStringLiteral("SELECT * FROM SkladOdrezku WHERE Material = 'DTD bila'")).isEmpty());
}

TEST_F(Uloziste_, ShodneRadkySeCtouVPoradiVlozeniIProtiIndexu)
{
    Database& db = uloziste().dataS();
    for (int i = 0; i < 5; ++i)
        pridejMaterial(db, QStringLiteral("M%1").arg(i), i % 2 ? 10 : 20);
    db.executeSqlite(QStringLiteral("CREATE INDEX ixTest ON SkladOdrezku (x DESC, Material DESC)"));
    EXPECT_EQ(materialy(db, QStringLiteral("SELECT * FROM SkladOdrezku ORDER BY x DESC;")),
              QStringList({"M0", "M2", "M4", "M1", "M3"}));
    EXPECT_EQ(materialy(db, QStringLiteral("SELECT * FROM SkladOdrezku WHERE x = 10")),
              QStringList({"M1", "M3"}));
}

TEST_F(Uloziste_, RecordsetJeSnimkemAPiseSePodleRadku)
{
    Database& db = uloziste().dataS();
    pridejMaterial(db, QStringLiteral("A"), 1);
    pridejMaterial(db, QStringLiteral("B"), 2);
    Recordset rs(db, QStringLiteral("SELECT * FROM SkladOdrezku ORDER BY x"));
    pridejMaterial(db, QStringLiteral("C"), 0); // added after the snapshot: not seen
    rs.moveLast();
    EXPECT_EQ(rs.recordCount(), 2);
    rs.moveFirst();
    rs.edit();
    rs.set(QStringLiteral("POCET"), 7); // names blind to case
    rs.update();
    EXPECT_EQ(rs.value(QStringLiteral("pocet")).toInt(), 7);
    rs.moveNext();
    rs.remove();
    EXPECT_EQ(cisloChyby([&] { rs.value(QStringLiteral("x")); }), Chyba::ZaznamSmazan);
    rs.moveNext();
    EXPECT_TRUE(rs.eof());
    EXPECT_EQ(materialy(db, QStringLiteral("SkladOdrezku")), QStringList({"A", "C"}));
}

TEST_F(Uloziste_, ApostrofVeJmenuNerozbijeDotaz)
{
    Database& db = uloziste().dataS();
    pridejMaterial(db, QStringLiteral("Novák's DTD"), 1);
    const QString sql = QStringLiteral("SELECT * FROM SkladOdrezku WHERE Material = '") +
                        Dotaz::text(QStringLiteral("novák's dtd")) + QStringLiteral("'");
    EXPECT_EQ(materialy(db, sql), QStringList({"Novák's DTD"}));
}

TEST_F(Uloziste_, TransakceBezCommituNechaUlozisteJakBylo)
{
    Database& db = uloziste().dataS();
    pridejMaterial(db, QStringLiteral("A"), 1);
    try {
        Transakce t(db);
        pridejMaterial(db, QStringLiteral("B"), 1);
        throw Error(Chyba::DiskPlny, QStringLiteral("disk"));
    } catch (const Error&) {
    }
    EXPECT_EQ(materialy(db, QStringLiteral("SkladOdrezku")), QStringList({"A"}));
}

TEST_F(Uloziste_, CiziNeboNovejsiSouborJeOdmitnut)
{
    uloziste();
    zavri();
    const QString cizi = domov() + QStringLiteral("/cizi.db");
    zapisSoubor(cizi, "toto neni databaze, jen text, ktery je dost dlouhy na hlavicku souboru........");
    EXPECT_EQ(cisloChyby([&] { Database d(cizi); d.hodnota(QStringLiteral("SELECT 1")); }), Chyba::TabulkaChybi);
    EXPECT_EQ(cisloChyby([&] { Database d(domov() + QStringLiteral("/chybi.db")); }), Chyba::PristupKSouboru);
    {
        Database d(Aplikace::dataS());
        d.executeSqlite(QStringLiteral("PRAGMA user_version = 99"));
    }
    EXPECT_EQ(cisloChyby([&] { Uloziste u(false); }), Chyba::TabulkaChybi);
}

TEST_F(Uloziste_, PracovniKopieMaDataAZbytekPoPaduZmizi)
{
    Uloziste& u = uloziste();
    pridejMaterial(u.dataS(), QStringLiteral("A"), 1);
    u.ObnovPracovniDatabazi();
    EXPECT_EQ(materialy(u.dataK(), QStringLiteral("SkladOdrezku")), QStringList({"A"}));
    pridejMaterial(u.dataK(), QStringLiteral("jen v kopii"), 1);
    EXPECT_EQ(materialy(u.dataS(), QStringLiteral("SkladOdrezku")), QStringList({"A"}));
    u.ObnovPracovniDatabazi(); // remade: the copy's own row is gone
    EXPECT_EQ(materialy(u.dataK(), QStringLiteral("SkladOdrezku")), QStringList({"A"}));

    // Files of another process on the same folder, and of one that crashed: while anyone holds
    // the store, a start removes nothing, so a live process never loses its plan copy.
    const QStringList ciziSoubory = {QStringLiteral("Data/DataK-p99-beef.db"), QStringLiteral("Data/DataK-p99-beef.db-journal"),
                                     QStringLiteral("Data/DataK.db"), QStringLiteral("Data/DataS.db.tmp-zaloha-p99-beef-1234")};
    for (const QString& s : ciziSoubory)
        zapisSoubor(Aplikace::cesta(s), {});
    {
        Uloziste druhy(false);
        EXPECT_TRUE(QFile::exists(Aplikace::dataK()));
        for (const QString& s : ciziSoubory)
            EXPECT_TRUE(QFile::exists(Aplikace::cesta(s))) << s.toStdString();
        EXPECT_EQ(materialy(u.dataK(), QStringLiteral("SkladOdrezku")), QStringList({"A"}));
    }
    EXPECT_TRUE(Aplikace::dataK().contains(Aplikace::znackaProcesu()));
    zavri();
    EXPECT_FALSE(QFile::exists(Aplikace::dataK())); // a process takes its own plan copy with it
    for (const QString& s : ciziSoubory)
        EXPECT_TRUE(QFile::exists(Aplikace::cesta(s))) << s.toStdString();

    // the next start with the store to itself clears them all away
    Uloziste znovu(false);
    EXPECT_FALSE(QFile::exists(Aplikace::dataK()));
    for (const QString& s : ciziSoubory)
        EXPECT_FALSE(QFile::exists(Aplikace::cesta(s))) << s.toStdString();
    EXPECT_EQ(materialy(znovu.dataS(), QStringLiteral("SkladOdrezku")), QStringList({"A"}));
}

TEST_F(Uloziste_, DrzeneUlozisteHlasi3356)
{
    uloziste();
    zavri();
    const int fd = ::open(QFile::encodeName(Aplikace::zamek()).constData(), O_RDWR);
    ASSERT_GE(fd, 0);
    ASSERT_EQ(::flock(fd, LOCK_EX | LOCK_NB), 0); // as a restore holds it
    EXPECT_EQ(cisloChyby([&] { Uloziste u(false); }), Chyba::DatabazePouzivana);
    ::close(fd);
    EXPECT_EQ(cisloChyby([&] { Uloziste u(false); }), 0);

    // a restore that cannot have the store alone keeps its shared hold, so a second one cannot
    // take it away from under the first
    Uloziste prvni(false), druhy(false);
    EXPECT_EQ(cisloChyby([&] { Uloziste::Vyhradne v(prvni); }), Chyba::DatabazePouzivana);
    EXPECT_EQ(cisloChyby([&] { Uloziste::Vyhradne v(druhy); }), Chyba::DatabazePouzivana);
}

TEST_F(Uloziste_, SouborBezIndexuHoDostanePriOtevreni)
{
    // a price list written before its lookups were indexed: the checks of a bulk load would
    // scan the whole table once per item
    uloziste().cenik().executeSqlite(QStringLiteral("DROP INDEX ixCenikNazev; DROP INDEX ixCenikKod;"));
    uloziste().zavriData();
    uloziste().otevriData();
    const auto p = uloziste().cenik().prikaz(QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'index' ORDER BY name DESC"));
    QStringList nalezene;
    while (p->krok())
        nalezene << p->sloupec(0).toString();
    EXPECT_EQ(nalezene, Schema::indexy(Schema::Soubor::Cenik));
}
