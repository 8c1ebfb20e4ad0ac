#pragma once
// Backup and restore of the data database (DataS) and of the catalogue (Cenik). A backup is a
// compacted copy of the database, checked as a restore would check it, written beside its
// target and renamed over it; a restore checks a private copy of the chosen file before it
// asks, keeps the replaced data as Data/DataZ.db (Data/CenikZ.db), and swaps the files by
// rename. A kill at any moment leaves every file old or new.
#include "core/Schema.h"

#include <QDate>
#include <QString>

class Error;
class Prompt;
class Uloziste;

namespace Zaloha {

// Whether soubor holds a whole database of ours of the given kind (our mark, no newer schema,
// every table with its columns and nothing else, integrity). Throws Error 3078 otherwise
// (75 when it cannot be read).
void zkontroluj(const QString& soubor, Schema::Soubor druh);

QString navrh(Schema::Soubor druh, const QDate& den); // "BData5_3_2026.bvk", "Cenik5_3_2026.cen"
QString filtr(Schema::Soubor druh);                   // "Databáze programu Truhlář (*.bvk)"
QString pripona(Schema::Soubor druh);                 // ".bvk", ".cen"
QString slozka();                                     // "Zálohy dat" of the application folder

// Writes a backup into cil, replacing it. The store stays open. Throws Error 5 (cil lies in
// Data/), 3799, 3051, 75.
void zalohuj(Uloziste& u, Schema::Soubor druh, const QString& cil);

// Restores from zdroj: checks it, asks "Opravdu chcete nynější data nahradit za …" through the
// prompt, and replaces the live file. Returns false when the answer was No (nothing changed).
// Throws Error 5 (no regular file), 3078 (not a valid file), 3356 (the store is held by another
// process or program), 3799,
// 3051 (nothing changed), 75 (no good copy of the data opens: the program must end).
bool obnov(Uloziste& u, Schema::Soubor druh, const QString& zdroj, Prompt& prompt);

// The message of a failed backup or restore, as the workbench shows it.
struct Zprava {
    QString text;       // empty: nothing to show (a cancelled dialog)
    QString titulek;
    bool konec = false; // the program must end
};
Zprava zpravaZalohy(const Error& e);
Zprava zpravaObnovy(const Error& e, Schema::Soubor druh);

}
