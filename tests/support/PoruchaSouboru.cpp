#include "PoruchaSouboru.h"

#include "DomovTest.h"
#include "core/Error.h"
#include "core/Soubory.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstring>
#include <gtest/gtest.h>
#include <optional>

namespace {

std::optional<QByteArray> obsah(const QString& cesta)
{
    QFile f(cesta);
    if (!f.open(QIODevice::ReadOnly))
        return std::nullopt;
    return f.readAll();
}

} // namespace

void ocekavejPoruchySouboru(const QString& cil, const std::function<void()>& zapis)
{
    struct Pripad {
        const char* operace;
        int chyba;
        int cislo;
    };
    static const Pripad pripady[] = {{"write", ENOSPC, Chyba::DiskPlny},
                                     {"write", EROFS, Chyba::JenProCteni},
                                     {"sync", ENOSPC, Chyba::DiskPlny},
                                     {"rename", EROFS, Chyba::JenProCteni},
                                     {"rename", EIO, Chyba::PristupKSouboru}};
    const std::optional<QByteArray> pred = obsah(cil);
    const QDir slozka = QFileInfo(cil).dir();
    for (const Pripad& p : pripady) {
        Soubory::nastavPoruchu(
            [&](const char* operace, const QString&) { return std::strcmp(operace, p.operace) == 0 ? p.chyba : 0; });
        const int cislo = cisloChyby(zapis);
        Soubory::nastavPoruchu({});
        const std::string kde = std::string(p.operace) + " " + std::strerror(p.chyba);
        EXPECT_EQ(cislo, p.cislo) << kde;
        EXPECT_EQ(obsah(cil), pred) << kde;
        EXPECT_TRUE(slozka.entryList({QStringLiteral("*.tmp-*")}, QDir::Files | QDir::Hidden).isEmpty()) << kde;
    }
}
