#include "planoutput/SeznamDilcu.h"

#include "core/Jednotky.h"
#include "core/Recordset.h"
#include "core/Soubory.h"
#include "optimiser/CteniPlanu.h"
#include "orders/RadkyZakazky.h"
#include "exchange/Import.h"

#include <QHash>

namespace SeznamDilcu {
namespace {

// A field in double quotes when it holds the separator, a quote or a line end.
QString pole(const QString& t)
{
    if (!t.contains(QLatin1Char(';')) && !t.contains(QLatin1Char('"')) && !t.contains(QLatin1Char('\n')) &&
        !t.contains(QLatin1Char('\r')))
        return t;
    return QLatin1Char('"') + QString(t).replace(QStringLiteral("\""), QStringLiteral("\"\"")) + QLatin1Char('"');
}

// A plan length (tenths of a millimetre) as a number in the user's unit.
QString delka(double desetin)
{
    return Jednotky::cislo(Jednotky::ZMilimetruCislo(desetin / 10));
}

} // namespace

QByteArray csv(Database& k, const QString& zakazka)
{
    QHash<double, QString> hrany;
    for (Recordset h = RadkyZakazky::materialy(k, zakazka, RadkyZakazky::Pouziti::Hrany); !h.eof(); h.moveNext())
        hrany.insert(h.cislo(QStringLiteral("ID")), h.text(QStringLiteral("Material")));
    QStringList hlava{QStringLiteral("Tabule"), QStringLiteral("Název"), QStringLiteral("Sestava"), QStringLiteral("Délka"),
                      QStringLiteral("Šířka"), QStringLiteral("Počet"), QStringLiteral("X"), QStringLiteral("Y"),
                      QStringLiteral("Otočeno")};
    for (const char* h : Import::SloupceHran)
        hlava << QString::fromUtf8(h);
    QString text = hlava.join(QLatin1Char(';')) + QStringLiteral("\r\n");
    for (const CteniPlanu::Deska& d : CteniPlanu::usazeneDesky(k)) {
        QStringList r{QString::number(d.tabule), pole(d.Oznaceni), pole(d.Sestava), delka(d.x), delka(d.y),
                      QStringLiteral("1"), delka(d.XD), delka(d.YD), d.OTOC ? QStringLiteral("ano") : QStringLiteral("ne")};
        for (double id : d.hrany)
            r << pole(hrany.value(id));
        text += r.join(QLatin1Char(';')) + QStringLiteral("\r\n");
    }
    return QByteArray("\xEF\xBB\xBF") + text.toUtf8();
}

void uloz(Database& dataK, const QString& zakazka, const QString& cil)
{
    Soubory::zapis(cil, csv(dataK, zakazka));
}

QString navrhNazvu(const QString& zakazka)
{
    return zakazka + QStringLiteral("-dilce.csv");
}

} // namespace SeznamDilcu
