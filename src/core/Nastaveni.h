#pragma once
// The per-user settings store: sections and keys of string values, read at every use and never
// cached, in an INI file at the per-user config location (tests set XDG_CONFIG_HOME).
#include <QList>
#include <QString>

namespace Nastaveni {

QString GetSetting(const QString& sekce, const QString& klic, const QString& vychozi = {});
void SaveSetting(const QString& sekce, const QString& klic, const QString& hodnota);
// Several values written as one: the file holds all of them or none, whatever stops the write.
struct Hodnota {
    QString sekce, klic, hodnota;
};
void SaveSettings(const QList<Hodnota>& hodnoty);
// The setting through Val: "" and a missing key give 0.
double cislo(const QString& sekce, const QString& klic);

QString verze();          // this program's version, "1.0.0"
QString soubor();         // the INI file
bool jeZmenaVerze();      // the stored Verze differs from verze()

// Writes every first-run value over what is stored (also the window position, from the
// given one). As the old program did: PresahPris is written where SlevaPris belongs.
void ZapisVychoziNastaveni(int left, int top, int width, int height);

}
