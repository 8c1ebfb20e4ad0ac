#pragma once
// The one place where SQLite result codes become the store's Error numbers (errno: Error.h).
#include <QString>

struct sqlite3;

namespace SqliteChyba {
// Throws Error for any rc other than SQLITE_OK, SQLITE_ROW and SQLITE_DONE.
void zkontroluj(sqlite3* db, int rc, const QString& kontext);
// The Error for rc (with the connection's message and errno when db is given).
[[noreturn]] void vyhod(sqlite3* db, int rc, const QString& kontext);
} // namespace SqliteChyba
