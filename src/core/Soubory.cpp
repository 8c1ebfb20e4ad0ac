#include "core/Soubory.h"

#include "core/Aplikace.h"
#include "core/CilZapisu.h"
#include "core/Error.h"
#include "core/ZpravaChyby.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUuid>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Soubory {
namespace {

std::function<int(const char*, const QString&)> g_porucha;

// The injected failure of an operation, as if the system call had failed with that errno.
bool porucha(const char* operace, const QString& soubor)
{
    if (!g_porucha)
        return false;
    const int e = g_porucha(operace, soubor);
    errno = e;
    return e != 0;
}

[[noreturn]] void chyba(const QString& text, const QString& soubor)
{
    const int e = errno;
    const int cislo = Chyba::cisloProErrno(e);
    throw Error(cislo, ZpravaChyby::text(cislo, soubor, e),
                QStringLiteral("%1 %2: %3").arg(text, soubor, QString::fromLocal8Bit(strerror(e))));
}

void fsync(const QString& cesta, int priznaky)
{
    if (porucha("sync", cesta))
        chyba(QStringLiteral("Nelze uložit na disk"), cesta);
    const int fd = ::open(QFile::encodeName(cesta).constData(), priznaky | O_CLOEXEC);
    if (fd < 0)
        chyba(QStringLiteral("Nelze otevřít"), cesta);
    const int rc = ::fsync(fd);
    const int e = errno;
    ::close(fd);
    errno = e;
    if (rc != 0)
        chyba(QStringLiteral("Nelze uložit na disk"), cesta);
}

// Writes all of obsah to fd; false with errno set on the first failed write.
bool zapisVse(int fd, const QString& cesta, const QByteArray& obsah)
{
    for (qsizetype hotovo = 0; hotovo < obsah.size();) {
        if (porucha("write", cesta))
            return false;
        const ssize_t w = ::write(fd, obsah.constData() + hotovo, size_t(obsah.size() - hotovo));
        if (w < 0 && errno != EINTR)
            return false;
        hotovo += qMax<ssize_t>(w, 0);
    }
    return true;
}

// Writes and syncs a new file; on failure it is removed and the Error thrown names cil.
void zapisNovy(const QString& docasny, const QString& cil, const QByteArray& obsah)
{
    const int fd = ::open(QFile::encodeName(docasny).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (fd < 0)
        chyba(QStringLiteral("Nelze vytvořit"), cil);
    bool dobre = zapisVse(fd, docasny, obsah) && !porucha("sync", docasny) && ::fsync(fd) == 0;
    const int e = errno;
    dobre = ::close(fd) == 0 && dobre;
    if (!dobre) {
        ::unlink(QFile::encodeName(docasny).constData());
        errno = e ? e : EIO;
        chyba(QStringLiteral("Nelze zapsat"), cil);
    }
}

// Opens a regular file for reading without waiting on a pipe; throws for anything else.
int otevriObycejny(const QString& soubor)
{
    const int fd = ::open(QFile::encodeName(soubor).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0)
        chyba(QStringLiteral("Nelze přečíst"), soubor);
    struct stat s {};
    if (::fstat(fd, &s) != 0 || !S_ISREG(s.st_mode)) {
        ::close(fd);
        throw Error(Chyba::NeplatnyVstup,
                    QStringLiteral("%1 není obyčejný soubor, nelze z něj číst.").arg(QDir::toNativeSeparators(soubor)));
    }
    ::fcntl(fd, F_SETFL, 0); // reads of a regular file wait for the disk as usual
    return fd;
}

} // namespace

QByteArray nacti(const QString& soubor, qint64 nejvys)
{
    const int fd = otevriObycejny(soubor);
    QFile f;
    if (!f.open(fd, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(fd);
        chyba(QStringLiteral("Nelze přečíst"), soubor);
    }
    const Error velky(Chyba::NeplatnyVstup, QStringLiteral("Soubor %1 je příliš velký (nejvýše %2 MB).")
                                                .arg(QDir::toNativeSeparators(soubor))
                                                .arg(nejvys >> 20));
    if (f.size() > nejvys)
        throw velky;
    errno = 0;
    QByteArray bajty = f.read(nejvys + 1);
    if (f.error() != QFileDevice::NoError)
        chyba(QStringLiteral("Nelze přečíst"), soubor);
    if (bajty.size() > nejvys) // grew while read
        throw velky;
    return bajty;
}

void zapis(const QString& cil, const QByteArray& obsah)
{
    CilZapisu::zkontroluj(cil); // what the user names as output never replaces the store
    const QString docasny = Soubory::docasny(cil, QStringLiteral("zapis"));
    zapisNovy(docasny, cil, obsah);
    try {
        prejmenuj(docasny, cil);
    } catch (...) {
        ::unlink(QFile::encodeName(docasny).constData());
        throw;
    }
}

void zapis(const QString& cil, const std::function<bool(QIODevice&)>& plnic)
{
    QByteArray obsah;
    QBuffer buffer(&obsah);
    buffer.open(QIODevice::WriteOnly);
    if (!plnic(buffer))
        throw Error(Chyba::PristupKSouboru, QStringLiteral("Soubor %1 nelze sestavit.").arg(cil));
    buffer.close();
    zapis(cil, obsah);
}

void nastavPoruchu(std::function<int(const char*, const QString&)> p) { g_porucha = std::move(p); }

void synchronizuj(const QString& soubor) { fsync(soubor, O_RDONLY); }

void synchronizujSlozku(const QString& soubor) { fsync(QFileInfo(soubor).absolutePath(), O_RDONLY | O_DIRECTORY); }

void prejmenuj(const QString& zdroj, const QString& cil)
{
    if (porucha("rename", cil) || ::rename(QFile::encodeName(zdroj).constData(), QFile::encodeName(cil).constData()) != 0)
        chyba(QStringLiteral("Nelze přejmenovat na"), cil);
    synchronizujSlozku(cil);
}

void odstran(const QString& soubor)
{
    if (porucha("unlink", soubor) || (::unlink(QFile::encodeName(soubor).constData()) != 0 && errno != ENOENT))
        chyba(QStringLiteral("Nelze odstranit"), soubor);
}

void kopiruj(const QString& zdroj, const QString& cil)
{
    if (porucha("copy", cil))
        chyba(QStringLiteral("Nelze zkopírovat do"), cil);
    const int z = otevriObycejny(zdroj);
    const int c = ::open(QFile::encodeName(cil).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
    if (c < 0) {
        const int e = errno;
        ::close(z);
        errno = e;
        chyba(QStringLiteral("Nelze vytvořit"), cil);
    }
    char buf[1 << 16];
    for (;;) {
        const ssize_t n = ::read(z, buf, sizeof buf);
        bool chybne = n < 0;
        for (ssize_t hotovo = 0; !chybne && hotovo < n;) {
            const ssize_t w = ::write(c, buf + hotovo, size_t(n - hotovo));
            chybne = w < 0;
            hotovo += w;
        }
        if (chybne || (n == 0 && ::fsync(c) != 0)) {
            const int e = errno;
            ::close(z);
            ::close(c);
            ::unlink(QFile::encodeName(cil).constData());
            errno = e;
            chyba(QStringLiteral("Nelze zkopírovat do"), cil);
        }
        if (n == 0)
            break;
    }
    ::close(z);
    ::close(c);
}

QString docasny(const QString& soubor, const QString& ucel)
{
    return soubor + QStringLiteral(".tmp-") + ucel + QLatin1Char('-') + Aplikace::znackaProcesu() + QLatin1Char('-') +
           QUuid::createUuid().toString(QUuid::Id128).left(8);
}

} // namespace Soubory
