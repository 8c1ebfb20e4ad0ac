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
// never a mix; a failure leaves the old file and no temporary one. Throws Error.
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
void kopiruj(const QString& zdroj, const QString& cil);
// For tests of a failing disk: called before each sync, rename, copy and unlink with the
// operation's name ("write", "sync", "rename", "copy", "unlink") and the file; a non-zero answer is the
// errno the operation then fails with. An empty function removes the seam.
void nastavPoruchu(std::function<int(const char* operace, const QString& soubor)> porucha);

// A name for a temporary file beside soubor that the next start will clear away ("*.tmp-…").
QString docasny(const QString& soubor, const QString& ucel);

} // namespace Soubory
