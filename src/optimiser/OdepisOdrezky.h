#pragma once
// The plan booked against the offcut store: the offcut sheets it used go out of SkladOdrezku
// (when offcuts were offered, setting POdrezky), and every remnant that reaches XZ by YZ goes
// in, one more piece of a row of the same material and size or a new row. Reads the working
// tables of the plan run in DataK; all of it is one transaction. Pressing twice books twice.
#include <QString>

class Database;
class Prompt;

// Returns false when the user answered No to the question, and nothing was written.
bool OdepisOdrezky(Database& dataS, Database& dataK, Prompt& prompt, const QString& zakazka, double idFormatuNP);
