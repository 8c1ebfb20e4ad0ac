// The whole-file writer: a file replaced in one piece, and every failure of the file system
// reported by its number with the old file kept.
#include "core/Soubory.h"
#include "DomovTest.h"
#include "PoruchaSouboru.h"
#include "core/Error.h"

#include <QDir>
#include <QFile>
#include <cerrno>

TEST(Chyba, CisloProErrno)
{
    EXPECT_EQ(Chyba::cisloProErrno(ENOSPC), Chyba::DiskPlny);
    EXPECT_EQ(Chyba::cisloProErrno(EROFS), Chyba::JenProCteni);
    EXPECT_EQ(Chyba::cisloProErrno(EACCES), Chyba::JenProCteni);
    EXPECT_EQ(Chyba::cisloProErrno(EWOULDBLOCK), Chyba::DatabazePouzivana);
    EXPECT_EQ(Chyba::cisloProErrno(ENOENT), Chyba::PristupKSouboru);
}

class CelySoubor : public DomovTest {};

TEST_F(CelySoubor, NahrazujeVcelkuAPriPoruseNechavaStary)
{
    QDir().mkpath(domov());
    const QString cil = QDir(domov()).filePath(QStringLiteral("výstup.bin"));
    Soubory::zapis(cil, QByteArray("starý"));
    Soubory::zapis(cil, QByteArray("nový obsah"));
    EXPECT_EQ(obsahSouboru(cil), QByteArray("nový obsah"));

    ocekavejPoruchySouboru(cil, [&] { Soubory::zapis(cil, QByteArray(100000, 'x')); });
    ocekavejPoruchySouboru(cil, [&] { Soubory::zapis(cil, [](QIODevice& d) { return d.write("z", 1) == 1; }); });
    EXPECT_EQ(cisloChyby([&] { Soubory::zapis(cil, [](QIODevice&) { return false; }); }), Chyba::PristupKSouboru);
    EXPECT_EQ(obsahSouboru(cil), QByteArray("nový obsah"));

    // a folder that is not there
    EXPECT_EQ(cisloChyby([&] { Soubory::zapis(QDir(domov()).filePath(QStringLiteral("není/x")), QByteArray("a")); }),
              Chyba::PristupKSouboru);
}
