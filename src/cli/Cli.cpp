#include "Cli.h"

#include "Prikazy.h"
#include "core/Aplikace.h"
#include "core/Error.h"
#include "core/Nastaveni.h"
#include "core/Soubory.h"
#include "core/Uloziste.h"

#include <QFile>
#include <memory>

namespace Cli {
namespace {

std::unique_ptr<Uloziste> g_uloziste;

const char* const TextPouziti =
    "Použití: truhlar-cli [--home SLOŽKA] [--verbose] PŘÍKAZ ...\n"
    "  --verbose                     u chyby vypíše i hlášení databáze a systému\n"
    "  init                          založí aplikační složku s prázdnými databázemi\n"
    "  order-load SOUBOR.json        založí zakázku ze souboru JSON\n"
    "  order-dump NÁZEV              vypíše zakázku jako JSON\n"
    "  order-list                    zakázky v pořadí stromu, jedna na řádek\n"
    "  order-copy NÁZEV NOVÝ         zakázka pod novým názvem\n"
    "  assembly-copy ZAKÁZKA SESTAVA CÍL [NOVÝ]   sestava pod novým názvem, nebo do jiné zakázky\n"
    "  settings get SEKCE KLÍČ       settings set SEKCE KLÍČ HODNOTA\n"
    "  plan NÁZEV --format ID --mode kombinovane|podelne|pricne|usporne [--cas S] [--volba N] [--dump]\n"
    "       [--pdf SOUBOR] [--labels-pdf SOUBOR] [--vpf SOUBOR] [--write-back]\n"
    "  offcuts-load SOUBOR.json      přidá odřezky do skladu\n"
    "  offcuts-list                  sklad odřezků jako JSON\n"
    "  backup [SOUBOR]  restore SOUBOR  pricelist-backup [SOUBOR]  pricelist-restore SOUBOR\n"
    "  check [SOUBOR]                zkontroluje zálohu, bez souboru živé databáze\n"
    "  import SOUBOR --order ZAKÁZKA --assembly SESTAVA   seznam desek do sestavy\n"
    "  calc|calc-sestavy|purchase|quote NÁZEV [--sestava S]... [--json] [--pdf SOUBOR]\n"
    "  workshop NÁZEV [--sestava S]... [--schemata] [--json] [--pdf SOUBOR]\n"
    "  totals NÁZEV [--sestava S]    ceny panelů 2 a 3, jedna na řádek\n"
    "  options show                  nastavení z okna Možnosti jako JSON\n"
    "  options apply KLÍČ=HODNOTA ...   jako „Použít“: délky v nastavené jednotce, barvy #RRGGBB\n"
    "  language-check czech|english|SOUBOR   řádky jazykového souboru a kam patří\n"
    "  pricelist-load SOUBOR.json    pricelist-dump [--vyber V] [--razeni R]    pricelist-pdf SOUBOR\n"
    "  picture-add SOUBOR | picture-get IDE VÝSTUP | picture-list | picture-delete IDE\n"
    "  picture-render IDE VÝSTUP [--fit ŠxV]   (každý s --schema pro knihovnu schemat)\n"
    "  accessory-add ZAKÁZKA SESTAVA NÁZEV MNOŽSTVÍ [--unit J] [--price C]\n"
    "  accessory-delete ZAKÁZKA SESTAVA NÁZEV\n";

struct Prikaz {
    const char* nazev;
    int (*funkce)(const QStringList&);
};

const Prikaz prikazy[] = {
    {"init", prikazInit},           {"order-load", prikazOrderLoad},     {"order-dump", prikazOrderDump},
    {"order-list", prikazOrderList}, {"order-copy", prikazOrderCopy}, {"assembly-copy", prikazAssemblyCopy}, {"settings", prikazSettings},        {"plan", prikazPlan}, {"calc", prikazCalc}, {"totals", prikazTotals},
    {"calc-sestavy", prikazCalcSestavy}, {"purchase", prikazPurchase}, {"quote", prikazQuote}, {"workshop", prikazWorkshop},
    {"offcuts-load", prikazOffcutsLoad}, {"offcuts-list", prikazOffcutsList}, {"backup", prikazBackup},       {"restore", prikazRestore},
    {"pricelist-backup", prikazPricelistBackup}, {"pricelist-restore", prikazPricelistRestore},
    {"check", prikazCheck},                {"import", prikazImport},
    {"options", prikazOptions},            {"language-check", prikazLanguageCheck},
    {"pricelist-load", prikazPricelistLoad}, {"pricelist-dump", prikazPricelistDump}, {"pricelist-pdf", prikazPricelistPdf},
    {"picture-add", prikazPictureAdd}, {"picture-get", prikazPictureGet}, {"picture-list", prikazPictureList},
    {"picture-delete", prikazPictureDelete}, {"picture-render", prikazPictureRender},
    {"accessory-add", prikazAccessoryAdd}, {"accessory-delete", prikazAccessoryDelete},
};

} // namespace

QTextStream& out()
{
    static QTextStream s(stdout);
    return s;
}

QTextStream& err()
{
    static QTextStream s(stderr);
    return s;
}

CliPrompt& prompt()
{
    static CliPrompt p;
    return p;
}

Prompt::Odpoved CliPrompt::zprava(const QString& text, const QString& titulek, Ikona, Tlacitka tlacitka)
{
    err() << (titulek.isEmpty() ? QString() : titulek + QStringLiteral(": ")) << text << Qt::endl;
    return tlacitka == Tlacitka::Ok || tlacitka == Tlacitka::OkStorno ? Odpoved::Ok : Odpoved::Ano;
}

QString CliPrompt::vstup(const QString&, const QString&, const QString& vychozi)
{
    return vychozi;
}

QString CliPrompt::soubor(bool, const QString&, const QString&, const QString&, const QString&)
{
    throw Error(Chyba::Zruseno, QStringLiteral("Na příkazové řádce se soubor nevybírá."));
}

Uloziste& uloziste()
{
    if (!g_uloziste)
        g_uloziste = std::make_unique<Uloziste>(false);
    return *g_uloziste;
}

QByteArray nactiSoubor(const QString& cesta)
{
    return Soubory::nacti(cesta);
}

QString vezmiVolbu(QStringList& argumenty, const QString& nazev)
{
    const int i = argumenty.indexOf(nazev);
    if (i < 0)
        return QString();
    if (i + 1 >= argumenty.size())
        throw ChybaPouziti(QStringLiteral("Volba %1 potřebuje hodnotu.").arg(nazev));
    const QString hodnota = argumenty.at(i + 1);
    argumenty.remove(i, 2);
    return hodnota;
}

bool vezmiPrepinac(QStringList& argumenty, const QString& nazev)
{
    return argumenty.removeAll(nazev) > 0;
}

int spust(QStringList argumenty)
{
    int kod = Hotovo;
    bool podrobne = false; // what SQLite or the system said, after the Czech line
    try {
        // --home belongs before the command, so an order name or a setting may read "--home"
        for (bool dalsi = true; dalsi && !argumenty.isEmpty();) {
            dalsi = argumenty.first() == QLatin1String("--verbose") || argumenty.first() == QLatin1String("--home");
            if (argumenty.first() == QLatin1String("--verbose")) {
                podrobne = true;
                argumenty.removeFirst();
            } else if (argumenty.first() == QLatin1String("--home")) {
                if (argumenty.size() < 2)
                    throw ChybaPouziti(QStringLiteral("Volba --home potřebuje složku."));
                Aplikace::nastavDomov(argumenty.at(1));
                argumenty.remove(0, 2);
            }
        }
        if (argumenty.isEmpty())
            throw ChybaPouziti(QStringLiteral("Chybí příkaz."));
        const QString nazev = argumenty.takeFirst();
        const auto prikaz = std::find_if(std::begin(prikazy), std::end(prikazy),
                                         [&](const Prikaz& p) { return nazev == QLatin1String(p.nazev); });
        if (prikaz == std::end(prikazy))
            throw ChybaPouziti(QStringLiteral("Neznámý příkaz: %1").arg(nazev));
        if (Nastaveni::jeZmenaVerze())
            Nastaveni::ZapisVychoziNastaveni(1000, 1000, 6500, 6500);
        kod = prikaz->funkce(argumenty);
    } catch (const ChybaPouziti& e) {
        err() << e.text() << '\n' << QString::fromUtf8(TextPouziti);
        kod = Kod::Pouziti;
    } catch (const Error& e) {
        err() << QString(e.text()).replace(QLatin1Char('\r'), QLatin1Char('\n')) << Qt::endl;
        if (podrobne && !e.podrobnosti().isEmpty())
            err() << e.podrobnosti() << Qt::endl;
        kod = e.cislo() == Chyba::NeplatnyVstup ? Odmitnuto : ChybaUloziste;
    }
    out().flush();
    err().flush();
    g_uloziste.reset();
    return kod;
}

}
