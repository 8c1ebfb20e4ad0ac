// options show / options apply, language-check: the settings of the options dialog and the
// language files, without a window.
#include "Cli.h"
#include "Prikazy.h"
#include "core/Jazyk.h"
#include "core/Moznosti.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

int zobrazMoznosti()
{
    QJsonObject o;
    const Moznosti::Hodnoty h = Moznosti::zobraz();
    for (auto it = h.begin(); it != h.end(); ++it)
        o.insert(it.key(), *it);
    Cli::out() << QString::fromUtf8(QJsonDocument(o).toJson(QJsonDocument::Indented));
    return Cli::Hotovo;
}

int pouzijMoznosti(const QStringList& prirazeni)
{
    if (prirazeni.isEmpty())
        throw Cli::ChybaPouziti(QStringLiteral("options apply potřebuje aspoň jedno KLÍČ=HODNOTA."));
    Moznosti::Hodnoty h;
    for (const QString& p : prirazeni) {
        const qsizetype rovnitko = p.indexOf(QLatin1Char('='));
        if (rovnitko <= 0)
            throw Cli::ChybaPouziti(QStringLiteral("Očekáváno KLÍČ=HODNOTA: %1").arg(p));
        h.insert(p.left(rovnitko), p.mid(rovnitko + 1));
    }
    Moznosti::uloz(h);
    return Cli::Hotovo;
}

} // namespace

int prikazOptions(const QStringList& argumenty)
{
    if (argumenty.size() == 1 && argumenty[0] == QLatin1String("show"))
        return zobrazMoznosti();
    if (!argumenty.isEmpty() && argumenty[0] == QLatin1String("apply"))
        return pouzijMoznosti(argumenty.mid(1));
    throw Cli::ChybaPouziti(QStringLiteral("options show nebo options apply KLÍČ=HODNOTA ..."));
}

int prikazLanguageCheck(const QStringList& argumenty)
{
    if (argumenty.size() != 1)
        throw Cli::ChybaPouziti(QStringLiteral("language-check czech|english|SOUBOR"));
    const QString& a = argumenty[0];
    const QString cesta = a == QLatin1String("czech")     ? Jazyk::cesta(Jazyk::Soubor::Cestina)
                          : a == QLatin1String("english") ? Jazyk::cesta(Jazyk::Soubor::Anglictina)
                                                          : QFileInfo(a).absoluteFilePath();
    const QStringList radky = Jazyk::nacti(cesta);
    for (const Jazyk::Cil& c : Jazyk::cile())
        Cli::out() << c.radek << '\t' << c.popis() << '\t' << radky[c.radek - 1] << '\n';
    return Cli::Hotovo;
}
