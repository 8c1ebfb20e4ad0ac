#include "printing/UlozeniPdf.h"

#include "core/Aplikace.h"
#include "core/Error.h"
#include "printing/Vykresleni.h"

#include <QDir>
#include <QFileInfo>

namespace UlozeniPdf {

Zpravy vypis()
{
    return {QStringLiteral("PDF"), QStringLiteral("Uložení..."), QString(), QStringLiteral("Výpis byl uložen do "),
            QStringLiteral("Nebylo možné soubor uložit..."), QStringLiteral("Chyba při zápisu")};
}

Zpravy plan(const QString& navrh)
{
    return {QStringLiteral("Nářezové plány"), QStringLiteral("Uložení nářezového plánu..."), navrh,
            QStringLiteral("Nářezový plán byl uložen do "),
            QStringLiteral("Nebylo možné data zálohovat! Ukončete užívání programu a zkuste to znovu."),
            QStringLiteral("Chyba při zápisu")};
}

std::pair<QString, QString> zpravaChyby(int cislo, const Zpravy& z)
{
    switch (cislo) {
    case Chyba::DiskPlny:
        return {QStringLiteral("Na disku není dostatek místa!!!"), QStringLiteral("Chyba zápisu")};
    case Chyba::JenProCteni:
        return {QStringLiteral("Disk je chráněn proti zápisu!!!"), QStringLiteral("Chyba zápisu")};
    case Chyba::DatabazePouzivana:
        return {QStringLiteral("Databáze programu je používána jiným programem!\rUkončete toto používání!!!"),
                QStringLiteral("Chyba zápisu")};
    case Chyba::Zruseno:
        return {};
    default:
        return {z.jinak, z.titulekJinak};
    }
}

QString uloz(const Dokument& dokument, Prompt& prompt, const Zpravy& z)
{
    try {
        const QString slozka = Aplikace::cesta(z.slozka);
        if (!QDir().mkpath(slozka))
            throw Error(Chyba::JenProCteni, slozka);
        QString cesta = prompt.soubor(true, z.titulek, slozka, z.navrh, QStringLiteral("Adobe PDF files (*.pdf)"));
        if (QFileInfo(cesta).suffix().isEmpty())
            cesta += QStringLiteral(".pdf");
        if (QFileInfo::exists(cesta) &&
            prompt.zprava(QStringLiteral("Soubor pod tímto názvem již existuje, chcete ho přepsat ?"),
                          QStringLiteral("Upozornění !!!"), Prompt::Ikona::Vykricnik,
                          Prompt::Tlacitka::AnoNe) != Prompt::Odpoved::Ano)
            return QString();
        Vykresleni::pdf(dokument, cesta, QFileInfo(cesta).completeBaseName());
        prompt.zprava(z.hotovo + cesta, QStringLiteral("Uloženo.."), Prompt::Ikona::Informace);
        return cesta;
    } catch (const Error& e) {
        const auto [text, titulek] = zpravaChyby(e.cislo(), z);
        if (!text.isEmpty())
            prompt.zprava(text, titulek, Prompt::Ikona::Kriticka);
        return QString();
    }
}

}
