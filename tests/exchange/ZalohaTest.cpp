// Backup and restore: what comes back, what is refused, and that a failing disk or a held
// store changes nothing.
#include "DomovTest.h"
#include "SelhavajiciVfs.h"
#include "SkriptovanyPrompt.h"
#include "core/Aplikace.h"
#include "core/Error.h"
#include "core/Recordset.h"
#include "core/Soubory.h"
#include "exchange/SkladJson.h"
#include "exchange/Zaloha.h"
#include "exchange/ZakazkaJson.h"

#include <QDir>
#include <cerrno>
#include <cstring>
#include <QFile>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

QStringList slozkaDat()
{
    return QDir(Aplikace::cesta(QStringLiteral("Data"))).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

// Answers Yes to whatever is asked, however far a failing step lets the restore get.
class VzdyAno : public Prompt {
public:
    Odpoved zprava(const QString&, const QString&, Ikona, Tlacitka) override { return Odpoved::Ano; }
    QString vstup(const QString&, const QString&, const QString& v) override { return v; }
    QString soubor(bool, const QString&, const QString&, const QString&, const QString&) override { return {}; }
};

} // namespace

class ZalohaTest : public DomovTest {
protected:
    QString zaloha() const { return domov() + QStringLiteral("/Zálohy dat/BData 'a' ž.bvk"); }
    QStringList zakazky() { return ZakazkaJson::seznam(uloziste().dataS()); }
};

TEST_F(ZalohaTest, ZalohaZmenaObnovaVratiVseJakBylo)
{
    Uloziste& u = uloziste();
    ZakazkaJson::nacti(u.dataS(), demoJson());
    SkladJson::nacti(u.dataS(), R"([{"material": "DTD bílá 18", "x": 600, "y": 400, "pocet": 1}])");
    const QJsonObject pred = ZakazkaJson::vypis(u.dataS(), QStringLiteral("Kuchyně Novák"));
    Zaloha::zalohuj(u, Schema::Soubor::Data, zaloha());
    EXPECT_NO_THROW(Zaloha::zkontroluj(zaloha(), Schema::Soubor::Data));

    QByteArray druha = demoJson();
    ZakazkaJson::nacti(u.dataS(), druha.replace("Kuchyně Novák", "Druhá"));
    u.dataS().execute(QStringLiteral("DELETE * FROM SkladOdrezku"));
    SkriptovanyPrompt prompt;
    prompt.odpovez(Prompt::Odpoved::Ano);
    EXPECT_TRUE(Zaloha::obnov(u, Schema::Soubor::Data, zaloha(), prompt));
    EXPECT_EQ(prompt.zpravy.last(), QStringLiteral("Obnova zálohy byla úspěšně dokončena"));
    EXPECT_EQ(zakazky(), QStringList({"Kuchyně Novák"}));
    EXPECT_EQ(ZakazkaJson::vypis(u.dataS(), QStringLiteral("Kuchyně Novák")), pred);
    EXPECT_EQ(u.dataS().hodnota(QStringLiteral("SELECT count(*) FROM SkladOdrezku")).toInt(), 1);
    // the replaced data are kept, and nothing else is left in Data/
    Database z(Aplikace::cesta(QStringLiteral("Data/DataZ.db")));
    EXPECT_EQ(ZakazkaJson::seznam(z), QStringList({"Kuchyně Novák", "Druhá"}));
    EXPECT_EQ(slozkaDat(), QStringList({".lock", "Cenik.db", "DataS.db", "DataZ.db"}));
}

TEST_F(ZalohaTest, NeplatnySouborJeOdmitnutANicSeNezmeni)
{
    Uloziste& u = uloziste();
    ZakazkaJson::nacti(u.dataS(), demoJson());
    const QString cenik = domov() + QStringLiteral("/c.cen");
    Zaloha::zalohuj(u, Schema::Soubor::Cenik, cenik);
    Zaloha::zalohuj(u, Schema::Soubor::Data, zaloha());
    const QByteArray obsah = obsahSouboru(zaloha());

    const QString spatna = domov() + QStringLiteral("/spatna.bvk");
    const std::vector<QByteArray> pripady = {QByteArray(), QByteArray("SQLite format 3\0 a pak nic", 26),
                                             obsah.left(obsah.size() / 2), demoJson()};
    for (const QByteArray& p : pripady) {
        zapisSoubor(spatna, p);
        SkriptovanyPrompt prompt; // asks nothing
        EXPECT_EQ(cisloChyby([&] { Zaloha::obnov(u, Schema::Soubor::Data, spatna, prompt); }), Chyba::TabulkaChybi);
    }
    SkriptovanyPrompt prompt;
    EXPECT_EQ(cisloChyby([&] { Zaloha::obnov(u, Schema::Soubor::Data, cenik, prompt); }), Chyba::TabulkaChybi);
    EXPECT_EQ(cisloChyby([&] { Zaloha::obnov(u, Schema::Soubor::Cenik, zaloha(), prompt); }), Chyba::TabulkaChybi);
    {   // a newer schema
        Database novejsi(zaloha());
        novejsi.executeSqlite(QStringLiteral("PRAGMA user_version = 99"));
    }
    EXPECT_EQ(cisloChyby([&] { Zaloha::obnov(u, Schema::Soubor::Data, zaloha(), prompt); }), Chyba::TabulkaChybi);
    EXPECT_EQ(zakazky(), QStringList({"Kuchyně Novák"}));
    EXPECT_EQ(slozkaDat(), QStringList({".lock", "Cenik.db", "DataS.db"}));
    EXPECT_EQ(Zaloha::zpravaObnovy(Error(Chyba::TabulkaChybi, QString()), Schema::Soubor::Data).titulek,
              QStringLiteral("Chybný soubor"));
}

TEST_F(ZalohaTest, OdpovedNeNeboDrzeneUlozisteNicNezmeni)
{
    Uloziste& u = uloziste();
    Zaloha::zalohuj(u, Schema::Soubor::Data, zaloha());
    ZakazkaJson::nacti(u.dataS(), demoJson());
    SkriptovanyPrompt ne;
    ne.odpovez(Prompt::Odpoved::Ne);
    EXPECT_FALSE(Zaloha::obnov(u, Schema::Soubor::Data, zaloha(), ne));

    // another process holds the store with its own shared lock
    const int fd = ::open(QFile::encodeName(Aplikace::zamek()).constData(), O_RDWR);
    ASSERT_EQ(::flock(fd, LOCK_SH), 0);
    SkriptovanyPrompt ano;
    ano.odpovez(Prompt::Odpoved::Ano);
    EXPECT_EQ(cisloChyby([&] { Zaloha::obnov(u, Schema::Soubor::Data, zaloha(), ano); }), Chyba::DatabazePouzivana);
    ::close(fd);
    EXPECT_EQ(zakazky(), QStringList({"Kuchyně Novák"}));
    EXPECT_EQ(slozkaDat(), QStringList({".lock", "Cenik.db", "DataS.db"}));
}

TEST_F(ZalohaTest, PlnyNeboChranenyDiskNechaDataIStarouZalohu)
{
    SelhavajiciVfs vfs;
    Uloziste& u = uloziste();
    ZakazkaJson::nacti(u.dataS(), demoJson());
    Zaloha::zalohuj(u, Schema::Soubor::Data, zaloha());
    const QByteArray stara = obsahSouboru(zaloha());
    QByteArray druha = demoJson();
    ZakazkaJson::nacti(u.dataS(), druha.replace("Kuchyně Novák", "Druhá"));

    for (auto porucha : {SelhavajiciVfs::Porucha::DiskPlny, SelhavajiciVfs::Porucha::JenProCteni}) {
        vfs.selhej(QStringLiteral(".tmp-zaloha"), porucha, 8192);
        const int cislo = cisloChyby([&] { Zaloha::zalohuj(u, Schema::Soubor::Data, zaloha()); });
        EXPECT_EQ(cislo, porucha == SelhavajiciVfs::Porucha::DiskPlny ? Chyba::DiskPlny : Chyba::JenProCteni);
        EXPECT_EQ(Zaloha::zpravaZalohy(Error(cislo, QString())).titulek, QStringLiteral("Chyba zápisu"));
        EXPECT_EQ(obsahSouboru(zaloha()), stara);
        EXPECT_EQ(QDir(domov() + QStringLiteral("/Zálohy dat")).entryList(QDir::Files).size(), 1);
    }
    // a restore whose safety copy cannot be written changes nothing either
    vfs.selhej(QStringLiteral("DataZ.db.tmp"), SelhavajiciVfs::Porucha::DiskPlny, 4096);
    SkriptovanyPrompt ano;
    ano.odpovez(Prompt::Odpoved::Ano);
    EXPECT_EQ(cisloChyby([&] { Zaloha::obnov(u, Schema::Soubor::Data, zaloha(), ano); }), Chyba::DiskPlny);
    vfs.oprav();
    EXPECT_EQ(zakazky(), QStringList({"Kuchyně Novák", "Druhá"}));
    EXPECT_EQ(slozkaDat(), QStringList({".lock", "Cenik.db", "DataS.db"}));
}

// Every sync, rename and copy of a backup and of a restore fails in turn, as a full disk, a
// read-only disk and an I/O error: the store stays open with its data, the older backup stays
// whole, and nothing of ours is left in Data/.
TEST_F(ZalohaTest, KazdyKrokZalohyIObnovySelzeBezSkody)
{
    Uloziste& u = uloziste();
    ZakazkaJson::nacti(u.dataS(), demoJson());
    Zaloha::zalohuj(u, Schema::Soubor::Data, zaloha());
    QByteArray druha = demoJson();
    ZakazkaJson::nacti(u.dataS(), druha.replace("Kuchyně Novák", "Druhá"));
    const QStringList data = {"Kuchyně Novák", "Druhá"};

    for (const char* operace : {"sync", "rename", "copy"})
        for (auto [errno_, cislo] : {std::pair{ENOSPC, Chyba::DiskPlny}, {EROFS, Chyba::JenProCteni}, {EIO, Chyba::PristupKSouboru}})
            for (int kolikaty = 1; kolikaty <= 4; ++kolikaty)
                for (bool obnova : {false, true}) {
                    if (!zakazky().contains(QStringLiteral("Druhá"))) // a restore before ran through
                        ZakazkaJson::nacti(u.dataS(), druha);
                    int volani = 0;
                    Soubory::nastavPoruchu([&](const char* o, const QString&) {
                        return std::strcmp(o, operace) == 0 && ++volani == kolikaty ? errno_ : 0;
                    });
                    VzdyAno prompt;
                    const int chyba = cisloChyby([&] {
                        if (obnova) {
                            Zaloha::obnov(u, Schema::Soubor::Data, zaloha(), prompt);
                        } else {
                            Zaloha::zalohuj(u, Schema::Soubor::Data, zaloha());
                        }
                    });
                    Soubory::nastavPoruchu({});
                    const std::string kde = std::string(operace) + " #" + std::to_string(kolikaty) + (obnova ? " obnova" : " záloha");
                    // the backup file is old or new, and whole
                    EXPECT_NO_THROW(Zaloha::zkontroluj(zaloha(), Schema::Soubor::Data)) << kde;
                    if (chyba == 0 || volani < kolikaty)
                        continue; // ran through, or its step had fewer such operations
                    EXPECT_EQ(chyba, cislo) << kde;
                    EXPECT_EQ(zakazky(), data) << kde;
                    for (const QString& f : slozkaDat())
                        EXPECT_FALSE(f.contains(QStringLiteral(".tmp-"))) << kde << " " << f.toStdString();
                }
}
