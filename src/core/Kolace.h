#pragma once
// The text order of the old engine: Czech (ch after h, háčky and čárky), blind to case.
// Registered as "CZ" on every connection; every text column of our schema declares it.
#include <QString>

struct sqlite3;

namespace Kolace {
constexpr const char* Nazev = "CZ";
void registruj(sqlite3* db);
int porovnej(const QString& a, const QString& b); // <0, 0, >0
}
