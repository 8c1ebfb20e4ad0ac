#pragma once
// A table of the store as JSON, for the command line's outputs and the tests: every row in
// rowid order, each column under its name (Yes/No as -1/0, NULL as null, whole numbers without
// a fraction). The owner of a table passes its name; throws Error when the store fails.
#include <QJsonArray>
#include <QString>

class Database;

QJsonArray VypisTabulky(Database& db, const QString& nazev);
