// A failing disk or a held store, as the user reads it: the program's Czech words for the
// cause, never SQL or the system's English (those stay in the details).
#include "DomovTest.h"
#include "SelhavajiciVfs.h"
#include "core/Error.h"
#include "core/ZpravaChyby.h"
#include "exchange/ZakazkaJson.h"

#include <QFile>
#include <sqlite3.h>

using ChybyUloziste = DomovTest;

TEST_F(ChybyUloziste, PlnyChranenyADrzenyDiskCeskyAPravouPricinou)
{
    SelhavajiciVfs vfs;
    Uloziste& u = uloziste();
    vfs.selhej(QStringLiteral("DataS.db"), SelhavajiciVfs::Porucha::DiskPlny);
    Error e = chybaZ([&] { ZakazkaJson::nacti(u.dataS(), demoJson()); });
    EXPECT_EQ(e.text(), QStringLiteral("Na disku není dostatek místa!!!"));
    EXPECT_FALSE(e.podrobnosti().isEmpty());

    vfs.selhej(QStringLiteral("DataS.db"), SelhavajiciVfs::Porucha::JenProCteni);
    e = chybaZ([&] { ZakazkaJson::nacti(u.dataS(), demoJson()); });
    EXPECT_EQ(e.text(), QStringLiteral("Disk je chráněn proti zápisu!!!"));

    // a plan copy that does not fit on the disk is no store "used by another program"
    vfs.selhej(QStringLiteral("DataK"), SelhavajiciVfs::Porucha::DiskPlny);
    e = chybaZ([&] { u.ObnovPracovniDatabazi(); });
    EXPECT_EQ(ZpravaChyby::pracovniDatabaze(e), QStringLiteral("Na disku není dostatek místa!!!"));
    EXPECT_FALSE(e.text().contains(QStringLiteral("VACUUM")));
    vfs.oprav();

    // another program's write lock
    sqlite3* cizi = nullptr;
    ASSERT_EQ(sqlite3_open(QFile::encodeName(u.dataS().soubor()).constData(), &cizi), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(cizi, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
    e = chybaZ([&] { ZakazkaJson::nacti(u.dataS(), demoJson()); });
    EXPECT_EQ(e.cislo(), Chyba::DatabazePouzivana);
    EXPECT_EQ(e.text(), QStringLiteral("Databáze programu je používána jiným programem!\rUkončete toto používání!!!"));
    EXPECT_TRUE(e.podrobnosti().contains(QStringLiteral("locked"))) << e.podrobnosti().toStdString();
    sqlite3_exec(cizi, "ROLLBACK", nullptr, nullptr, nullptr);
    sqlite3_close(cizi);
    ZakazkaJson::nacti(u.dataS(), demoJson()); // and it all works again
}
