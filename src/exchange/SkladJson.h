#pragma once
// Offcuts for the store as a JSON list of {"material", "x", "y", "pocet"} rows (millimetres).
#include <QByteArray>

class Database;

namespace SkladJson {
// Adds the rows to SkladOdrezku as they stand, in one transaction; returns how many.
// Throws Error 5 (Chyba::NeplatnyVstup) with a Czech message for bad input, writing nothing.
int nacti(Database& dataS, const QByteArray& json);
}
