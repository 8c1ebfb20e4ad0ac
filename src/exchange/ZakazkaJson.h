#pragma once
// The order exchange form: one order with its formats, edge bands, assemblies, boards and
// accessories as JSON (millimetres, prices without VAT). Loading writes the rows that the entry
// dialogs would have written; dumping gives the same form back, so a load then a dump is equal.
#include <QByteArray>
#include <QJsonObject>
#include <QStringList>

class Database;

namespace ZakazkaJson {

// Checks the whole text first, then writes the order in one transaction. Returns its name.
// Texts are stored as they stand; a board without a name becomes "deska N" as in the board
// dialog; an unknown key is refused. Items get rising `cas`, boards before accessories.
// Throws Error 5 (Chyba::NeplatnyVstup) with a Czech message for malformed or incomplete input
// or a name that exists; store errors as they come (nothing is written then either).
QString nacti(Database& dataS, const QByteArray& json);

// The order in the exchange form: assemblies in the order their rows were written, items by
// `cas`. Throws Error 5 when there is no such order.
QJsonObject vypis(Database& dataS, const QString& zakazka);

// The names of the orders in the tree's order (by the date they were made).
QStringList seznam(Database& dataS);

}
