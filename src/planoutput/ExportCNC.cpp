#include "planoutput/ExportCNC.h"

#include "core/Database.h"
#include "core/Jednotky.h"
#include "core/Nastaveni.h"
#include "core/Razitko.h"
#include "core/Recordset.h"
#include "core/Soubory.h"
#include "optimiser/CteniPlanu.h"
#include "orders/RadkyZakazky.h"

#include <QLocale>
#include <QStringEncoder>

namespace ExportCNC {
namespace {

// A number as the old platform printed a double: general form, the locale's decimal sign.
QString n(double v) { return Jednotky::cislo(v); }

QString sDeskami() { return QStringLiteral("SELECT * FROM SoupisDesek WHERE ID = True  ORDER BY sestava,oznaceni,XD,YD "); }

// Each part kind (a new pair of assembly and board name in the walk) with its rows.
template <class F>
void kazdyDruh(Database& k, F&& naDruh)
{
    QString sestava, oznaceni;
    bool prvni = true;
    for (Recordset r(k, sDeskami()); !r.eof(); r.moveNext()) {
        const QString s = r.text(QStringLiteral("Sestava")), o = r.text(QStringLiteral("Oznaceni"));
        if (!prvni && s == sestava && o == oznaceni)
            continue;
        prvni = false;
        sestava = s;
        oznaceni = o;
        Recordset druh(k, QStringLiteral("SELECT * FROM SoupisDesek WHERE sestava = ? and oznaceni = ? ORDER BY XD,YD"), {s, o});
        naDruh(druh);
    }
}

// The remnants worth keeping: longer than XZ and wider than YZ.
Recordset sZbytky(Database& k)
{
    return Recordset(
        k,
        QStringLiteral("SELECT * FROM SoupisZbytku WHERE ID = True and (XZP / 10) > ? And (YZP / 10) > ? ORDER BY CT,XZP,YZP "),
        {Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("XZ")),
         Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("YZ"))});
}

} // namespace

QStringList konstantyMaterialu()
{
    return {QStringLiteral("CutParams=4736"), QStringLiteral("CuttingSpeed=200"), QStringLiteral("SawSpeed=4500"),
            QStringLiteral("CuttingWide=44"), QStringLiteral("MaxBudget=1"),      QStringLiteral("Thickness=180"),
            QStringLiteral("ShortName=MO")};
}

QString text(Database& dataS, Database& k, const PlanNaStrankach& plan)
{
    if (Recordset(k, sDeskami(), Recordset::Rozsah::Prvni).eof())
        return {};
    int druhu = 0;
    kazdyDruh(k, [&](Recordset& druh) {
        ++druhu;
        for (; !druh.eof(); druh.moveNext()) {
            druh.edit();
            druh.set(QStringLiteral("Part"), druhu);
            druh.update();
        }
    });
    Recordset zbytky = sZbytky(k);
    if (zbytky.eof())
        return {};
    for (int i = zbytky.recordCount(); !zbytky.eof(); zbytky.moveNext(), --i) {
        zbytky.edit();
        zbytky.set(QStringLiteral("Part"), i);
        zbytky.update();
    }

    QStringList r;
    const QDateTime ted = Razitko::ted();
    const QLocale l; // the system's, unless a test fixed another
    const QString datum = l.toString(ted.date(), QLocale::ShortFormat), cas = ted.time().toString(QStringLiteral("H:mm:ss"));
    const QString program = QStringLiteral("Truhlář ") + Nastaveni::verze();
    const int tabuli = CteniPlanu::posledniTabule(k);
    const auto format = RadkyZakazky::material(dataS, plan.zakazka, plan.idFormatu);
    r << QStringLiteral("[COMMON]") << QStringLiteral("OrderNote=") + datum + QLatin1Char(' ') + cas
      << QStringLiteral("OrderName=") + datum + QLatin1Char(' ') + cas << QStringLiteral("OrderNumber=") + plan.zakazka
      << QStringLiteral("TimeOfExport=") + cas << QStringLiteral("DateOfExport=") + datum
      << QStringLiteral("SerialID=") + Nastaveni::verze() << QStringLiteral("Organization=") << QStringLiteral("User=")
      << QStringLiteral("OptiProgram=") + program << QStringLiteral("ExportProgram=") + program
      << QStringLiteral("ImportFormatVersion=") << QString();
    r << QStringLiteral("[MATERIAL]") << QStringLiteral("SheetCount=") + QString::number(tabuli) << konstantyMaterialu()
      << QStringLiteral("Name=") + (format ? format->text(QStringLiteral("Material")) : QString()) << QString();
    r << QStringLiteral("[PARTS]") << QStringLiteral("PrintMode=0")
      << QStringLiteral("Count=") +
             n(Recordset(k, QStringLiteral("SELECT * FROM SoupisDesek WHERE ID = True  ORDER BY Part Desc "),
                         Recordset::Rozsah::Prvni)
                   .cislo(QStringLiteral("Part")));
    int druh = 0;
    kazdyDruh(k, [&](Recordset& d) {
        ++druh;
        const QString x = n(d.cislo(QStringLiteral("x"))), y = n(d.cislo(QStringLiteral("y")));
        r << QStringLiteral("Part%1=%1;%2;%3;%4;%2;%3;;%5;%6;%7")
                 .arg(druh)
                 .arg(x, y, QString::number(d.recordCount()), plan.zakazka, d.text(QStringLiteral("Sestava")),
                      d.text(QStringLiteral("Oznaceni")));
    });
    r << QString() << QStringLiteral("[RESTS]") << QStringLiteral("PrintMode=0");
    Recordset rest = sZbytky(k);
    r << QStringLiteral("Count=") + QString::number(rest.recordCount());
    for (; !rest.eof(); rest.moveNext())
        r << QStringLiteral("Part%1=%1;%2;%3")
                 .arg(n(rest.cislo(QStringLiteral("Part"))), n(rest.cislo(QStringLiteral("XZP"))),
                      n(rest.cislo(QStringLiteral("YZP"))));
    r << QString();
    for (int t = 1; t <= tabuli; ++t) {
        const Recordset hlava(k, QStringLiteral("SELECT * FROM SoupisTabuli WHERE ID = True and NCT = ? ORDER BY NCT "), {t},
                              Recordset::Rozsah::Prvni);
        r << QStringLiteral("[SHEET%1]").arg(t);
        if (!hlava.eof())
            r << QStringLiteral("Sheet=%1;%2;%3;1;1;0")
                     .arg(QString::number(t), n(hlava.cislo(QStringLiteral("x"))), n(hlava.cislo(QStringLiteral("y"))));
        Recordset casti(k, QStringLiteral("SELECT * FROM SoupisDesek WHERE ID = True and tabule = ? ORDER BY Part desc, XD desc"),
                        {t});
        r << QStringLiteral("PartCount=%1").arg(casti.recordCount());
        for (int i = casti.recordCount(); !casti.eof(); casti.moveNext(), --i)
            r << QStringLiteral("Part%1=%2;%3;%4;%5")
                     .arg(QString::number(i), n(casti.cislo(QStringLiteral("Part"))),
                          n(casti.cislo(QStringLiteral("XD")) + plan.srez), n(casti.cislo(QStringLiteral("YD")) + plan.srez),
                          casti.ano(QStringLiteral("OTOC")) ? QStringLiteral("1") : QStringLiteral("0"));
        Recordset zb(k, QStringLiteral("SELECT * FROM SoupisZbytku WHERE ID = True and Part <> 0 and CT = ? ORDER BY part desc "),
                     {t});
        r << QStringLiteral("RestCount=%1").arg(zb.recordCount());
        for (int i = zb.recordCount(); !zb.eof(); zb.moveNext(), --i)
            r << QStringLiteral("Rest%1=%2;%3;%4;0")
                     .arg(QString::number(i), n(zb.cislo(QStringLiteral("Part"))), n(zb.cislo(QStringLiteral("XDP")) + plan.srez),
                          n(zb.cislo(QStringLiteral("YDP")) + plan.srez));
        r << QString();
    }
    return r.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n");
}

bool zapis(Database& dataS, Database& dataK, const PlanNaStrankach& plan, const QString& soubor)
{
    const QString obsah = text(dataS, dataK, plan);
    if (obsah.isEmpty())
        return false;
    QStringEncoder cp1250("windows-1250");
    const QByteArray bajty = cp1250.isValid() ? QByteArray(cp1250(obsah)) : obsah.toLocal8Bit();
    Soubory::zapis(soubor, bajty);
    return true;
}

} // namespace ExportCNC
