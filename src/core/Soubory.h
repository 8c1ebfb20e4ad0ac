#pragma once
// File operations for files replaced as a whole: each failure becomes the store's Error number
// by the one errno mapping, Chyba::cisloProErrno (3799 disk full, 3051 read-only, 75 other).
#include <QByteArray>
#include <QString>
#include <functional>

class QIODevice;

namespace Soubory {

// The one whole-file writer: obsah goes to a temporary file beside cil, is flushed and synced,
// renamed over cil, and the folder synced. A kill at any moment leaves the old file or the new,
// never a mix; a failure leaves the old file and no temporary one. Throws Error; 5 when cil
// lies in Data/ (CilZapisu).
void zapis(const QString& cil, const QByteArray& obsah);
// The same for content that a Qt writer streams into a device (QPdfWriter, QImageWriter):
// plnic writes into an in-memory device and returns false when it failed (then Error 75).
void zapis(const QString& cil, const std::function<bool(QIODevice&)>& plnic);

void synchronizuj(const QString& soubor);       // fsync the file's data
void synchronizujSlozku(const QString& soubor); // fsync the folder that holds it
// rename(2): atomically replaces cil, then syncs its folder.
void prejmenuj(const QString& zdroj, const QString& cil);
void odstran(const QString& soubor); // a missing file is no error
// Copies zdroj (opened read-only) to a new file cil and syncs it; cil must not exist.
// zdroj must be a regular file (Error 5 for a pipe, device or folder).
void kopiruj(const QString& zdroj, const QString& cil);
// The whole of a regular file the user offers as input (a link to one counts): a pipe would
// wait for ever and a device never end, so both are refused with Error 5, as is a file of more
// than nejvys bytes. Throws 75 (3051) when it cannot be read.
constexpr qint64 NejvysVstupu = 64 << 20;
QByteArray nacti(const QString& soubor, qint64 nejvys = NejvysVstupu);
// For tests of a failing disk: called before each sync, rename, copy and unlink with the
// operation's name ("write", "sync", "rename", "copy", "unlink") and the file; a non-zero answer is the
// errno the operation then fails with. An empty function removes the seam.
void nastavPoruchu(std::function<int(const char* operace, const QString& soubor)> porucha);

// A name for a temporary file beside soubor, carrying this process's mark, that a start with
// the store to itself clears away ("*.tmp-…").
QString docasny(const QString& soubor, const QString& ucel);

} // namespace Soubory
