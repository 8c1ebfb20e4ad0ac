#pragma once
// Files the user names for the program to write (backups, PDFs, saw files, pictures, lists) must
// never be the store itself: a backup written over Cenik.db would replace the price list with
// the orders. Everything in the application folder's Data/ is the store's (databases, their
// journals, the lock, the safety copies), whatever path or link leads there.
#include <QString>

namespace CilZapisu {

// Whether writing cil would replace or add a file of Data/ (the path itself, a link or a
// hard link to a file there).
bool jeVDatech(const QString& cil);
// The message for such a choice, naming the file.
QString zprava(const QString& cil);
// Throws Error 5 (refused input) with zprava() when cil lies in Data/.
void zkontroluj(const QString& cil);

}
