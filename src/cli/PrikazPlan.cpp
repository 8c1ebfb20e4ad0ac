// plan: one plan run of one format of an order, with its summary or its working tables.
#include "Cli.h"
#include "Prikazy.h"

#include "core/Error.h"
#include "core/Nastaveni.h"
#include "core/Uloziste.h"
#include "optimiser/PlanRun.h"
#include "optimiser/StartNP.h"
#include "optimiser/VypisNP.h"
#include "orders/RadkyZakazky.h"
#include "planoutput/ExportCNC.h"
#include "planoutput/SeznamDilcu.h"
#include "planoutput/Stitky.h"
#include "planoutput/StrankyNP.h"
#include "planoutput/ZapisDoSkladu.h"
#include "printing/Vykresleni.h"

#include <QJsonDocument>

namespace {

ZpusobNP zpusob(const QString& text)
{
    if (text == QLatin1String("podelne"))
        return ZpusobNP::PodelneRezy;
    if (text == QLatin1String("pricne"))
        return ZpusobNP::PricneRezy;
    if (text == QLatin1String("kombinovane"))
        return ZpusobNP::Kombinovane;
    if (text == QLatin1String("usporne"))
        return ZpusobNP::Usporne;
    throw Cli::ChybaPouziti(QStringLiteral("Neznámý režim řezání: %1 (kombinovane, podelne, pricne, usporne)").arg(text));
}

double cislo(const QString& text, const char* volba)
{
    bool ok = false;
    const double d = text.toDouble(&ok);
    if (!ok)
        throw Cli::ChybaPouziti(QStringLiteral("Volba %1 potřebuje číslo.").arg(QLatin1String(volba)));
    return d;
}

// The plan pages in the layout of VykresleniTabule, and the labels, each written whole.
void ulozPdf(Uloziste& u, const PlanRun& run, const QString& pdf, const QString& stitky)
{
    if (!pdf.isNull()) {
        Dokument d;
        int rozvrzeni = int(Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("VykresleniTabule")));
        rozvrzeni = rozvrzeni == 0 ? 1 : rozvrzeni;
        if (rozvrzeni != 1 && rozvrzeni != 2 && rozvrzeni != 4)
            throw Error(Chyba::NeplatnyVstup, QStringLiteral("Nastavení VykresleniTabule musí být 1, 2 nebo 4."));
        if (!StrankyNP(d, u, PlanNaStrankach::z(run), rozvrzeni))
            throw Error(Chyba::NeplatnyVstup, QString::fromUtf8(RozmerovaChyba));
        Vykresleni::pdf(d, pdf, NavrhNazvuNP(run.AktualniZakazka(), run.zpusob()));
    }
    if (!stitky.isNull()) {
        Dokument d;
        TiskStitku(d, u, run.AktualniZakazka());
        Vykresleni::pdf(d, stitky, QString::fromUtf8(TitulekStitku));
    }
}

} // namespace

int prikazPlan(const QStringList& vstup)
{
    QStringList argumenty = vstup;
    const QString format = Cli::vezmiVolbu(argumenty, QStringLiteral("--format"));
    const QString rezim = Cli::vezmiVolbu(argumenty, QStringLiteral("--mode"));
    const QString volba = Cli::vezmiVolbu(argumenty, QStringLiteral("--volba"));
    const QString cas = Cli::vezmiVolbu(argumenty, QStringLiteral("--cas"));
    const bool dump = Cli::vezmiPrepinac(argumenty, QStringLiteral("--dump"));
    const QString pdf = Cli::vezmiVolbu(argumenty, QStringLiteral("--pdf"));
    const QString stitky = Cli::vezmiVolbu(argumenty, QStringLiteral("--labels-pdf"));
    const QString vpf = Cli::vezmiVolbu(argumenty, QStringLiteral("--vpf"));
    const bool odepsat = Cli::vezmiPrepinac(argumenty, QStringLiteral("--write-back"));
    const QString csv = Cli::vezmiVolbu(argumenty, QStringLiteral("--csv"));
    if (argumenty.size() != 1 || format.isNull() || rezim.isNull())
        throw Cli::ChybaPouziti(QStringLiteral("plan NÁZEV --format ID --mode kombinovane|podelne|pricne|usporne [--cas S]"));
    const QString zakazka = argumenty[0];
    const double idFormatu = cislo(format, "--format");
    const ZpusobNP z = zpusob(rezim);

    Uloziste& u = Cli::uloziste();
    if (!RadkyZakazky::existuje(u.dataS(), zakazka))
        throw Error(Chyba::NeplatnyVstup, QStringLiteral("Zakázka „%1“ neexistuje.").arg(zakazka));
    const auto formaty = PlanRun::formatySDeskami(u.dataS(), zakazka);
    if (std::none_of(formaty.begin(), formaty.end(), [&](const FormatNP& f) { return f.ID == idFormatu; }))
        throw Error(Chyba::NeplatnyVstup, QStringLiteral("V zakázce není co nařezat!!!!!"));
    const int varianty = StartNP::pocetVariant(u.dataS(), zakazka, idFormatu);
    const int v = volba.isNull() ? 0 : int(cislo(volba, "--volba"));
    if (v < 0 || v > varianty)
        throw Error(Chyba::NeplatnyVstup, QStringLiteral("Volba --volba může být 0 až %1.").arg(varianty));

    TichyPrubeh prubeh;
    PlanRun run(u, Cli::prompt(), prubeh);
    if (!cas.isNull()) {
        const double sekund = cislo(cas, "--cas");
        if (sekund < 0 || sekund > 3600)
            throw Error(Chyba::NeplatnyVstup, QStringLiteral("Volba --cas může být 0 až 3600 sekund."));
        run.casUsporne(sekund);
    }
    try {
        run.SpustNP(zakazka, idFormatu, z, v);
    } catch (const Error& e) {
        if (!u.maDataK())
            throw StartNP::chybaPracovniDatabaze(e);
        throw;
    }
    if (!pdf.isNull() || !stitky.isNull())
        ulozPdf(u, run, pdf, stitky);
    // the export numbers the part kinds and remnants, so it goes before the dump shows them
    const bool vpfZapsan = !vpf.isNull() && ExportCNC::zapis(u.dataS(), u.dataK(), PlanNaStrankach::z(run), vpf);
    if (!csv.isNull())
        SeznamDilcu::uloz(u.dataK(), zakazka, csv);
    if (odepsat)
        ZapisDoSkladu::zapis(u.dataS(), u.dataK(), Cli::prompt(), zakazka, idFormatu);
    if (dump)
        Cli::out() << QString::fromUtf8(QJsonDocument(VypisNP(u.dataK(), run)).toJson(QJsonDocument::Compact)) << '\n';
    else
        Cli::out() << SouhrnNP(u.dataK(), run);
    u.zavriDataK();
    if (!vpf.isNull() && !vpfZapsan)
        throw Error(Chyba::NeplatnyVstup, QStringLiteral("Soubor %1 nevznikl: plán nemá žádný zbytek větší než nastavené "
                                                         "rozměry odřezku (XZ, YZ), a pila bez něj soubor nepřijme.")
                                              .arg(vpf));
    if (!vpf.isNull())
        Cli::err() << QString::fromUtf8(ExportCNC::Ulozeno) << Qt::endl;
    return Cli::Hotovo;
}
