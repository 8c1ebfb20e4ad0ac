#pragma once
// Reading the exchange files (orders, offcuts): the document and its objects, field by field,
// each fault refused with a Czech message that says where it stands ("Sestava č. 2 (Skříň),
// deska č. 3: údaj „x“ musí být číslo."). Every refusal throws Error 5 (Chyba::NeplatnyVstup);
// nothing here writes, so a caller that reads everything first writes nothing on bad input.
#include "core/KontrolaTextu.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <initializer_list>

class CteniJson {
public:
    // The parsed document; a text that is not JSON is refused with the place of the fault.
    static QJsonDocument dokument(const QByteArray& json);
    [[noreturn]] static void odmitni(const QString& text);

    // v must be an object holding only the keys named: an unknown key (a typo such as "pocett")
    // is refused rather than read as a missing value. kde names the object in messages.
    CteniJson(const QJsonValue& v, const QString& kde, std::initializer_list<const char*> klice);

    // Text as it stands (never trimmed, so a dump gives it back); a required one must not be
    // blank, and none may break the rules of KontrolaTextu. Missing and not required: "".
    QString text(const char* klic, bool povinny, int nejvys = KontrolaTextu::Nejvys,
                 KontrolaTextu::Radky radky = KontrolaTextu::Radky::Ne) const;
    // A finite number within od .. doHodnoty; missing and not required: vychozi.
    double cislo(const char* klic, double od, double doHodnoty, bool povinny, double vychozi = 0) const;
    // As cislo, and whole.
    double celeCislo(const char* klic, double od, double doHodnoty, bool povinny, double vychozi = 0) const;
    bool ano(const char* klic) const;          // true or false; missing: false
    QJsonArray pole(const char* klic) const;   // a list; missing: empty

    const QString& kde() const { return m_kde; }

private:
    QJsonValue hodnota(const char* klic, bool povinny) const; // undefined when missing
    QJsonObject m_o;
    QString m_kde;
};
