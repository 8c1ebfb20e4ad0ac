#include "planoutput/SeznamDilcu.h"

#include "core/Database.h"
#include "core/Jednotky.h"
#include "core/Recordset.h"
#include "core/Soubory.h"
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
    for (Recordset h(k, QStringLiteral("SELECT * FROM ZakazkyMaterialy WHERE Zakazka = ? and Pouziti = 'hrana'"), {zakazka});
         !h.eof(); h.moveNext())
        hrany.insert(h.cislo(QStringLiteral("ID")), h.text(QStringLiteral("Material")));
    QStringList hlava{QStringLiteral("Tabule"), QStringLiteral("Název"), QStringLiteral("Sestava"), QStringLiteral("Délka"),
                      QStringLiteral("Šířka"), QStringLiteral("Počet"), QStringLiteral("X"), QStringLiteral("Y"),
                      QStringLiteral("Otočeno")};
    for (const char* h : Import::SloupceHran)
        hlava << QString::fromUtf8(h);
    QString text = hlava.join(QLatin1Char(';')) + QStringLiteral("\r\n");
    for (Recordset d(k, QStringLiteral("SELECT * FROM SoupisDesek  WHERE ID = True ORDER BY Tabule, YD, XD")); !d.eof();
         d.moveNext()) {
        QStringList r{QString::number(d.cislo(QStringLiteral("Tabule"))), pole(d.text(QStringLiteral("Oznaceni"))),
                      pole(d.text(QStringLiteral("Sestava"))), delka(d.cislo(QStringLiteral("x"))),
                      delka(d.cislo(QStringLiteral("y"))), QStringLiteral("1"), delka(d.cislo(QStringLiteral("XD"))),
                      delka(d.cislo(QStringLiteral("YD"))), d.ano(QStringLiteral("OTOC")) ? QStringLiteral("ano") : QStringLiteral("ne")};
        for (const char* h : {"IDHX1", "IDHX2", "IDHY1", "IDHY2"})
            r << pole(hrany.value(d.cislo(QLatin1String(h))));
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
