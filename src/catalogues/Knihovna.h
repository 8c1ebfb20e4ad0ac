#pragma once
// The picture library Obrazky and the schema library Schemata of the catalogue database: one
// design for both. OBR holds a picture file's bytes unchanged, always bound, never spliced.
// A new record gets IDE = the highest + 1 (1 in an empty table); deleting a picture clears it
// in the price list, deleting a schema leaves the assemblies' references as they are.
// Store failures as Error.
#include <QByteArray>
#include <QImage>
#include <QString>
#include <optional>
#include <vector>

class Database;
class Prompt;

namespace Knihovna {

enum class Druh { Obrazky, Schemata };
QString tabulka(Druh druh); // "Obrazky" or "Schemata"

struct Zaznam {
    int ide = 0;
    QString nazev;
};

// The records in the order they were added, as the window steps through them.
std::vector<Zaznam> seznam(Database& cenik, Druh druh);
// The stored bytes of one record; nullopt when there is none such.
std::optional<QByteArray> data(Database& cenik, Druh druh, int ide);
// Whether the record is (still) there.
bool existuje(Database& cenik, Druh druh, int ide);
// The name of one record; empty when there is none such.
QString nazev(Database& cenik, Druh druh, int ide);
// The decoded picture of one record; null when missing or undecodable (an empty frame).
QImage obrazek(Database& cenik, Druh druh, int ide);

// The file's bytes checked (format by content, at most 50 MB and 100 Mpx, decodes whole) and
// stored under nazev (the file's title). Returns the new IDE, or 0 when refused: the message
// went through the Prompt and nothing was stored.
int pridej(Database& cenik, Prompt& prompt, Druh druh, const QString& nazev, const QByteArray& bajty);
// Deletes the record (and for pictures its use in Cenik's obr1/obr2) in one transaction.
// Returns whether a record was there.
bool smaz(Database& cenik, Druh druh, int ide);

} // namespace Knihovna
