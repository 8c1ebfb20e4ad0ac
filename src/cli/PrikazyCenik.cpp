// The price list, the picture and schema libraries and the accessories of the command line.
#include "Cli.h"
#include "Prikazy.h"

#include "catalogues/Cenik.h"
#include "catalogues/Knihovna.h"
#include "core/Error.h"
#include "core/Soubory.h"
#include "core/Uloziste.h"
#include "orders/Prislusenstvi.h"
#include "printing/Dokument.h"
#include "printing/Obrazky.h"
#include "printing/Vykresleni.h"

#include <QFileInfo>
#include <QImageWriter>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

void pocet(const QStringList& argumenty, int kolik)
{
    if (argumenty.size() != kolik)
        throw Cli::ChybaPouziti(QStringLiteral("Nesprávný počet údajů příkazu."));
}

[[noreturn]] void odmitni(const QString& text) { throw Error(Chyba::NeplatnyVstup, text); }

Knihovna::Druh druh(QStringList& argumenty)
{
    return Cli::vezmiPrepinac(argumenty, QStringLiteral("--schema")) ? Knihovna::Druh::Schemata : Knihovna::Druh::Obrazky;
}

int ide(const QString& text)
{
    bool ok = false;
    const int v = text.toInt(&ok);
    if (!ok || v < 1)
        throw Cli::ChybaPouziti(QStringLiteral("IDE je celé číslo od 1: %1").arg(text));
    return v;
}

// A JSON value as the window's field would hold it: numbers as their text, text as it stands.
QString jakoText(const QJsonValue& v) { return v.isDouble() ? QString::number(v.toDouble(), 'g', 15) : v.toString(); }

QJsonObject jakoJson(const Cenik::Polozka& p)
{
    return {{QStringLiteral("kod"), double(p.kod)},   {QStringLiteral("nazev"), p.nazev},     {QStringLiteral("cena"), p.cena},
            {QStringLiteral("jednotka"), p.jednotka}, {QStringLiteral("skupina"), p.skupina}, {QStringLiteral("obr1"), p.obr1},
            {QStringLiteral("obr2"), p.obr2}};
}

} // namespace

int prikazPricelistLoad(const QStringList& argumenty)
{
    pocet(argumenty, 1);
    const QJsonDocument doc = QJsonDocument::fromJson(Cli::nactiSoubor(argumenty[0]));
    if (!doc.isArray())
        odmitni(QStringLiteral("Soubor musí obsahovat seznam položek ceníku (pole JSON)."));
    std::vector<Cenik::Zadani> polozky;
    for (const QJsonValue& v : doc.array()) {
        const QJsonObject o = v.toObject();
        polozky.push_back({jakoText(o.value(QStringLiteral("nazev"))), jakoText(o.value(QStringLiteral("kod"))),
                           jakoText(o.value(QStringLiteral("cena"))), jakoText(o.value(QStringLiteral("jednotka"))),
                           jakoText(o.value(QStringLiteral("skupina"))), o.value(QStringLiteral("obr1")).toInt(),
                           o.value(QStringLiteral("obr2")).toInt()});
    }
    const int chybna = Cenik::nahraj(Cli::uloziste().cenik(), Cli::prompt(), polozky);
    if (chybna >= 0)
        odmitni(QStringLiteral("Položka č. %1 („%2“) nebyla přijata; ceník zůstal beze změny.")
                    .arg(chybna + 1)
                    .arg(polozky[size_t(chybna)].nazev));
    Cli::out() << QStringLiteral("Do ceníku přibylo položek: %1").arg(polozky.size()) << Qt::endl;
    return Cli::Hotovo;
}

int prikazPricelistDump(const QStringList& argumenty)
{
    QStringList a = argumenty;
    QString vyber = Cli::vezmiVolbu(a, QStringLiteral("--vyber"));
    QString razeni = Cli::vezmiVolbu(a, QStringLiteral("--razeni"));
    pocet(a, 0);
    if (vyber.isNull())
        vyber = Cenik::ulozenyVyber();
    if (razeni.isNull())
        razeni = Cenik::ulozeneRazeni();
    QJsonArray pole;
    for (const Cenik::Polozka& p : Cenik::NaplnCenik(Cli::uloziste().cenik(), vyber, razeni))
        pole.append(jakoJson(p));
    Cli::out() << QString::fromUtf8(QJsonDocument(pole).toJson(QJsonDocument::Indented));
    return Cli::Hotovo;
}

int prikazPricelistPdf(const QStringList& argumenty)
{
    pocet(argumenty, 1);
    Dokument d;
    Cenik::TiskCeniku(d, Cli::uloziste().cenik(), Cenik::ulozenyVyber(), Cenik::ulozeneRazeni());
    Vykresleni::pdf(d, argumenty[0], QString::fromUtf8(Cenik::TitulekVypisu));
    return Cli::Hotovo;
}

int prikazPictureAdd(const QStringList& argumenty)
{
    QStringList a = argumenty;
    const Knihovna::Druh d = druh(a);
    pocet(a, 1);
    const QByteArray bajty = Cli::nactiSoubor(a[0]);
    const int nove = Knihovna::pridej(Cli::uloziste().cenik(), Cli::prompt(), d, QFileInfo(a[0]).fileName(), bajty);
    if (nove == 0)
        return Cli::Odmitnuto;
    Cli::out() << nove << Qt::endl;
    return Cli::Hotovo;
}

int prikazPictureGet(const QStringList& argumenty)
{
    QStringList a = argumenty;
    const Knihovna::Druh d = druh(a);
    pocet(a, 2);
    const auto bajty = Knihovna::data(Cli::uloziste().cenik(), d, ide(a[0]));
    if (!bajty)
        odmitni(QStringLiteral("Obrázek č. %1 v knihovně není.").arg(a[0]));
    Soubory::zapis(a[1], *bajty);
    return Cli::Hotovo;
}

int prikazPictureList(const QStringList& argumenty)
{
    QStringList a = argumenty;
    const Knihovna::Druh d = druh(a);
    pocet(a, 0);
    Database& cenik = Cli::uloziste().cenik();
    QJsonArray pole;
    for (const Knihovna::Zaznam& z : Knihovna::seznam(cenik, d)) {
        const QByteArray bajty = Knihovna::data(cenik, d, z.ide).value_or(QByteArray());
        const QSize s = Obrazky::rozmer(bajty);
        pole.append(QJsonObject{{QStringLiteral("IDE"), z.ide},
                                {QStringLiteral("nazev"), z.nazev},
                                {QStringLiteral("bytes"), double(bajty.size())},
                                {QStringLiteral("format"), Obrazky::nazevFormatu(Obrazky::format(bajty))},
                                {QStringLiteral("width"), s.isValid() ? s.width() : 0},
                                {QStringLiteral("height"), s.isValid() ? s.height() : 0}});
    }
    Cli::out() << QString::fromUtf8(QJsonDocument(pole).toJson(QJsonDocument::Indented));
    return Cli::Hotovo;
}

int prikazPictureDelete(const QStringList& argumenty)
{
    QStringList a = argumenty;
    const Knihovna::Druh d = druh(a);
    pocet(a, 1);
    if (!Knihovna::smaz(Cli::uloziste().cenik(), d, ide(a[0])))
        odmitni(QStringLiteral("Obrázek č. %1 v knihovně není.").arg(a[0]));
    return Cli::Hotovo;
}

int prikazPictureRender(const QStringList& argumenty)
{
    QStringList a = argumenty;
    const Knihovna::Druh d = druh(a);
    const QString ramec = Cli::vezmiVolbu(a, QStringLiteral("--fit"));
    pocet(a, 2);
    QSize velikost;
    if (!ramec.isNull()) {
        const QStringList wh = ramec.split(QLatin1Char('x'));
        velikost = wh.size() == 2 ? QSize(wh[0].toInt(), wh[1].toInt()) : QSize();
        if (velikost.isEmpty())
            throw Cli::ChybaPouziti(QStringLiteral("--fit čeká ŠÍŘKAxVÝŠKA, např. 400x300."));
    }
    const auto bajty = Knihovna::data(Cli::uloziste().cenik(), d, ide(a[0]));
    if (!bajty)
        odmitni(QStringLiteral("Obrázek č. %1 v knihovně není.").arg(a[0]));
    QImage obr = Obrazky::dekoduj(*bajty);
    if (obr.isNull())
        odmitni(QStringLiteral("Obrázek č. %1 nelze dekódovat.").arg(a[0]));
    if (velikost.isValid())
        obr = Obrazky::vepsany(obr, velikost);
    const QByteArray format = a[1].endsWith(QLatin1String(".ppm"), Qt::CaseInsensitive) ? "ppm" : "png";
    Soubory::zapis(a[1], [&](QIODevice& zarizeni) { return QImageWriter(&zarizeni, format).write(obr); });
    return Cli::Hotovo;
}

int prikazAccessoryAdd(const QStringList& argumenty)
{
    QStringList a = argumenty;
    QString jednotka = Cli::vezmiVolbu(a, QStringLiteral("--unit"));
    QString cena = Cli::vezmiVolbu(a, QStringLiteral("--price"));
    pocet(a, 4);
    if (const auto p = Cenik::nacti(Cli::uloziste().cenik(), a[2])) {
        if (jednotka.isNull())
            jednotka = p->jednotka;
        if (cena.isNull())
            cena = QString::number(p->cena, 'g', 15);
    }
    if (!Prislusenstvi::UlozitPrislusenstvi(Cli::uloziste().dataS(), Cli::prompt(), false, a[0], a[1],
                                            {a[2], a[3], jednotka, cena}))
        return Cli::Odmitnuto;
    return Cli::Hotovo;
}

int prikazAccessoryDelete(const QStringList& argumenty)
{
    pocet(argumenty, 3);
    if (!Prislusenstvi::SmazatPrislusenstvi(Cli::uloziste().dataS(), Cli::prompt(), argumenty[0], argumenty[1], argumenty[2]))
        odmitni(QStringLiteral("Příslušenství „%1“ v sestavě „%2“ není.").arg(argumenty[2], argumenty[1]));
    return Cli::Hotovo;
}
