#pragma once
// Formats (sheet materials) and edge bands of one order: the grid rows, the texts by which the
// board dialog's combos name them, and new, edit (with the twin merge of formats) and delete.
// Messages through the Prompt; every write one transaction; store failures as Error.
#include <QString>
#include <optional>
#include <vector>

class Database;
class Prompt;

namespace Materialy {

struct Material {
    double ID = 0;
    QString nazev;
    double x = 0, y = 0; // formats, mm
    bool ov = false;     // formats: grain
    double cena = 0;     // without VAT, per m2 of a format, per metre of a band
    qint64 barva = 0;    // bands: colour in plans (0x00BBGGRR)
    double presah = 0;   // bands: overhang, mm
};

std::vector<Material> formaty(Database& db, const QString& zakazka); // table order
std::vector<Material> hrany(Database& db, const QString& zakazka);

QString textFormatu(const Material& m); // "DTD (2800 mm x 2070 mm)"
QString textHrany(const Material& m);   // "ABS ( 12,5 - 2 ) "
// The ID of the order's format or band whose built text is text; 0 when none is.
double idPodleTextu(Database& db, const QString& zakazka, const QString& text, bool hrana);

// A new row of the order's formats (hrana: bands) with m's ID as it stands, without checks: for
// the loads that bring their own (the exchange JSON, the import).
void pridej(Database& db, const QString& zakazka, const Material& m, bool hrana);
// The save of a new one is refused without a word while name, sizes or price are missing.
bool UlozitNovyFormat(Database& db, const QString& zakazka, const Material& m);
enum class Uprava { Odmitnuto, Upraveno, Slouceno };
Uprava UlozitUpravuFormatu(Database& db, Prompt& p, const QString& zakazka, const Material& m);
bool SmazatFormat(Database& db, Prompt& p, const QString& zakazka, const Material& m);

bool UlozitNovouHranu(Database& db, const QString& zakazka, const Material& m);
bool UlozitUpravuHrany(Database& db, const QString& zakazka, const Material& m);
bool SmazatHranu(Database& db, Prompt& p, const QString& zakazka, const Material& m);

} // namespace Materialy
