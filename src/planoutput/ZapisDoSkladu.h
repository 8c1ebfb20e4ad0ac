#pragma once
// The viewer's "Sklad": the plan booked against the offcut store (OdepisOdrezky), and a mark
// of it kept beside the plan's working tables in DataK, so that it lasts until the plan is
// computed again. A second booking of the same plan would put its remnants in twice: it is
// asked for first, with No as the default.
#include <QString>

class Database;
class Prompt;

namespace ZapisDoSkladu {

inline const char* Znovu = "Odřezky tohoto plánu už jsou ve skladu. Zapsat je znovu?";

// Whether the plan in dataK has been booked since it was computed.
bool zapsano(Database& dataK);

// Books the plan (asking again when it has been booked already); true when it was booked.
// Throws Error from the store; a failed booking leaves the store and the mark as they were.
bool zapis(Database& dataS, Database& dataK, Prompt& prompt, const QString& zakazka, double idFormatu);

} // namespace ZapisDoSkladu
