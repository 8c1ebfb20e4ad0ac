// init, the orders, the settings and the offcut store of the command line.
#include "Cli.h"
#include "Prikazy.h"
#include "catalogues/Sklad.h"

#include "core/Aplikace.h"
#include "core/Kolace.h"
#include "core/Nastaveni.h"
#include "core/Uloziste.h"
#include "exchange/SkladJson.h"
#include "exchange/ZakazkaJson.h"
#include "orders/Kopirovani.h"
#include "orders/RadkyZakazky.h"

#include <QJsonDocument>

namespace {

void pocet(const QStringList& argumenty, int kolik)
{
    if (argumenty.size() != kolik)
        throw Cli::ChybaPouziti(QStringLiteral("Nesprávný počet údajů příkazu."));
}

} // namespace

int prikazInit(const QStringList& argumenty)
{
    pocet(argumenty, 0);
    Aplikace::zaloz();
    Cli::out() << QStringLiteral("Aplikační složka: %1").arg(Aplikace::domov()) << Qt::endl;
    return Cli::Hotovo;
}

int prikazOrderLoad(const QStringList& argumenty)
{
    pocet(argumenty, 1);
    const QByteArray json = Cli::nactiSoubor(argumenty[0]);
    const QString nazev = ZakazkaJson::nacti(Cli::uloziste().dataS(), json);
    Cli::out() << QStringLiteral("Zakázka „%1“ byla založena.").arg(nazev) << Qt::endl;
    return Cli::Hotovo;
}

int prikazOrderDump(const QStringList& argumenty)
{
    pocet(argumenty, 1);
    const QJsonObject zakazka = ZakazkaJson::vypis(Cli::uloziste().dataS(), argumenty[0]);
    Cli::out() << QString::fromUtf8(QJsonDocument(zakazka).toJson(QJsonDocument::Indented));
    return Cli::Hotovo;
}

int prikazOrderList(const QStringList& argumenty)
{
    pocet(argumenty, 0);
    for (const QString& z : ZakazkaJson::seznam(Cli::uloziste().dataS()))
        Cli::out() << z << '\n';
    return Cli::Hotovo;
}

int prikazSettings(const QStringList& argumenty)
{
    if (argumenty.size() == 3 && argumenty[0] == QLatin1String("get")) {
        Cli::out() << Nastaveni::GetSetting(argumenty[1], argumenty[2]) << Qt::endl;
        return Cli::Hotovo;
    }
    if (argumenty.size() == 4 && argumenty[0] == QLatin1String("set")) {
        Nastaveni::SaveSetting(argumenty[1], argumenty[2], argumenty[3]);
        return Cli::Hotovo;
    }
    throw Cli::ChybaPouziti(QStringLiteral("settings get SEKCE KLÍČ nebo settings set SEKCE KLÍČ HODNOTA"));
}

int prikazOffcutsLoad(const QStringList& argumenty)
{
    pocet(argumenty, 1);
    const int n = SkladJson::nacti(Cli::uloziste().dataS(), Cli::nactiSoubor(argumenty[0]));
    Cli::out() << QStringLiteral("Do skladu přidáno odřezků: %1").arg(n) << Qt::endl;
    return Cli::Hotovo;
}

int prikazOffcutsList(const QStringList& argumenty)
{
    pocet(argumenty, 0);
    Cli::out() << QString::fromUtf8(QJsonDocument(Sklad::VypisJson(Cli::uloziste().dataS())).toJson(QJsonDocument::Compact))
               << '\n';
    return Cli::Hotovo;
}

int prikazOrderCopy(const QStringList& argumenty)
{
    pocet(argumenty, 2);
    Kopirovani::kopirujZakazku(Cli::uloziste().dataS(), argumenty[0], argumenty[1]);
    Cli::out() << argumenty[1] << Qt::endl;
    return Cli::Hotovo;
}

int prikazAssemblyCopy(const QStringList& argumenty)
{
    if (argumenty.size() != 3 && argumenty.size() != 4)
        throw Cli::ChybaPouziti(QStringLiteral("assembly-copy ZAKÁZKA SESTAVA CÍLOVÁ_ZAKÁZKA [NOVÝ_NÁZEV]"));
    Database& db = Cli::uloziste().dataS();
    const QString& zakazka = argumenty[0];
    const QString& sestava = argumenty[1];
    const QString& cil = argumenty[2];
    // within the order it is "save as" and needs the name; onto another order the name follows
    const bool vZakazce = Kolace::porovnej(cil, zakazka) == 0 && RadkyZakazky::existuje(db, zakazka);
    if (vZakazce) {
        if (argumenty.size() != 4)
            throw Cli::ChybaPouziti(QStringLiteral("Kopie sestavy ve stejné zakázce potřebuje nový název."));
        Kopirovani::kopirujSestavu(db, zakazka, sestava, argumenty[3]);
        Cli::out() << argumenty[3] << Qt::endl;
    } else {
        if (argumenty.size() == 4)
            throw Cli::ChybaPouziti(QStringLiteral("Kopie do jiné zakázky si název určí sama (A, A_, A__)."));
        Cli::out() << Kopirovani::KopirovaniSestavy(db, zakazka, sestava, cil) << Qt::endl;
    }
    return Cli::Hotovo;
}
