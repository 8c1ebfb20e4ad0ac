#include "exchange/CteniJson.h"

#include "core/Error.h"

#include <QStringList>
#include <cmath>

namespace {

QString popisChyby(QJsonParseError::ParseError chyba)
{
    switch (chyba) {
    case QJsonParseError::UnterminatedObject: return QStringLiteral("neukončený objekt");
    case QJsonParseError::MissingNameSeparator: return QStringLiteral("za názvem údaje chybí dvojtečka");
    case QJsonParseError::UnterminatedArray: return QStringLiteral("neukončený seznam");
    case QJsonParseError::MissingValueSeparator: return QStringLiteral("mezi hodnotami chybí čárka");
    case QJsonParseError::IllegalValue: return QStringLiteral("neplatná hodnota");
    case QJsonParseError::TerminationByNumber: return QStringLiteral("text končí uprostřed čísla");
    case QJsonParseError::IllegalNumber: return QStringLiteral("neplatné číslo");
    case QJsonParseError::IllegalEscapeSequence: return QStringLiteral("neplatná sekvence za znakem \\");
    case QJsonParseError::IllegalUTF8String: return QStringLiteral("text není v kódování UTF-8");
    case QJsonParseError::UnterminatedString: return QStringLiteral("neukončený text");
    case QJsonParseError::MissingObject: return QStringLiteral("chybí objekt");
    case QJsonParseError::DeepNesting: return QStringLiteral("příliš hluboké vnoření");
    case QJsonParseError::DocumentTooLarge: return QStringLiteral("soubor je příliš velký");
    case QJsonParseError::GarbageAtEnd: return QStringLiteral("za koncem dat následují další znaky");
    case QJsonParseError::NoError: break;
    }
    return QStringLiteral("neznámá chyba");
}

} // namespace

QJsonDocument CteniJson::dokument(const QByteArray& json)
{
    QJsonParseError chyba;
    QJsonDocument doc = QJsonDocument::fromJson(json, &chyba);
    if (chyba.error != QJsonParseError::NoError)
        odmitni(QStringLiteral("Soubor není platný JSON: %1 (znak %2).").arg(popisChyby(chyba.error)).arg(chyba.offset));
    return doc;
}

void CteniJson::odmitni(const QString& text)
{
    throw Error(Chyba::NeplatnyVstup, text);
}

CteniJson::CteniJson(const QJsonValue& v, const QString& kde, std::initializer_list<const char*> klice)
    : m_o(v.toObject()), m_kde(kde)
{
    if (!v.isObject())
        odmitni(QStringLiteral("%1: položka musí být objekt JSON.").arg(kde));
    for (const QString& klic : m_o.keys())
        if (std::none_of(klice.begin(), klice.end(), [&](const char* k) { return klic == QLatin1String(k); })) {
            QStringList povolene;
            for (const char* k : klice)
                povolene << QLatin1String(k);
            odmitni(QStringLiteral("%1: neznámý údaj „%2“ (povolené: %3).").arg(kde, klic, povolene.join(QStringLiteral(", "))));
        }
}

QJsonValue CteniJson::hodnota(const char* klic, bool povinny) const
{
    const QJsonValue v = m_o.value(QLatin1String(klic));
    if (!v.isUndefined() && !v.isNull())
        return v;
    if (povinny)
        odmitni(QStringLiteral("%1: chybí údaj „%2“.").arg(m_kde, QLatin1String(klic)));
    return QJsonValue(QJsonValue::Undefined);
}

QString CteniJson::text(const char* klic, bool povinny, int nejvys, KontrolaTextu::Radky radky) const
{
    const QJsonValue v = hodnota(klic, povinny);
    if (v.isUndefined())
        return QStringLiteral("");
    if (!v.isString())
        odmitni(QStringLiteral("%1: údaj „%2“ musí být text.").arg(m_kde, QLatin1String(klic)));
    const QString t = v.toString();
    if (povinny && t.trimmed().isEmpty())
        odmitni(QStringLiteral("%1: údaj „%2“ nesmí být prázdný.").arg(m_kde, QLatin1String(klic)));
    if (const QString spatny = KontrolaTextu::chyba(t, QLatin1String(klic), nejvys, radky); !spatny.isEmpty())
        odmitni(m_kde + QStringLiteral(": ") + spatny);
    return t;
}

double CteniJson::cislo(const char* klic, double od, double doHodnoty, bool povinny, double vychozi) const
{
    const QJsonValue v = hodnota(klic, povinny);
    if (v.isUndefined())
        return vychozi;
    if (!v.isDouble() || !std::isfinite(v.toDouble()))
        odmitni(QStringLiteral("%1: údaj „%2“ musí být číslo.").arg(m_kde, QLatin1String(klic)));
    const double d = v.toDouble();
    if (d < od || d > doHodnoty)
        odmitni(QStringLiteral("%1: údaj „%2“ = %3 je mimo povolený rozsah %4 až %5.")
                    .arg(m_kde, QLatin1String(klic))
                    .arg(d, 0, 'g', 15)
                    .arg(od, 0, 'g', 15)
                    .arg(doHodnoty, 0, 'g', 15));
    return d;
}

double CteniJson::celeCislo(const char* klic, double od, double doHodnoty, bool povinny, double vychozi) const
{
    const double d = cislo(klic, od, doHodnoty, povinny, vychozi);
    if (d != std::trunc(d))
        odmitni(QStringLiteral("%1: údaj „%2“ musí být celé číslo.").arg(m_kde, QLatin1String(klic)));
    return d;
}

bool CteniJson::ano(const char* klic) const
{
    const QJsonValue v = hodnota(klic, false);
    if (v.isUndefined())
        return false;
    if (!v.isBool())
        odmitni(QStringLiteral("%1: údaj „%2“ musí být true nebo false.").arg(m_kde, QLatin1String(klic)));
    return v.toBool();
}

QJsonArray CteniJson::pole(const char* klic) const
{
    const QJsonValue v = hodnota(klic, false);
    if (v.isUndefined())
        return {};
    if (!v.isArray())
        odmitni(QStringLiteral("%1: údaj „%2“ musí být seznam.").arg(m_kde, QLatin1String(klic)));
    return v.toArray();
}
