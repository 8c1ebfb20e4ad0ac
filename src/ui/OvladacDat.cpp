#include "ui/OvladacDat.h"

#include "core/Error.h"
#include "core/Prompt.h"
#include "core/Razitko.h"
#include "core/Uloziste.h"
#include "exchange/Zaloha.h"
#include "ui/TabulkaPrikazu.h"

#include <QApplication>
#include <QDir>
#include <QFile>

OvladacDat::OvladacDat(Uloziste& uloziste, Prompt& prompt, std::function<void(Schema::Soubor)> poObnove)
    : m_uloziste(uloziste), m_prompt(prompt), m_poObnove(std::move(poObnove))
{
}

void OvladacDat::pridejPrikazy(TabulkaPrikazu& tabulka)
{
    tabulka.pridej({QStringLiteral("Vz")}, [this] { ZalohaDat(); });
    tabulka.pridej({QStringLiteral("OD")}, [this] { ObnovaDat(); });
}

void OvladacDat::zaloha(Schema::Soubor druh)
{
    try {
        QDir().mkpath(Zaloha::slozka());
        const QString soubor = m_prompt.soubor(true, QStringLiteral("Vytvoření zálohy..."), Zaloha::slozka(),
                                               Zaloha::navrh(druh, Razitko::ted().date()), Zaloha::filtr(druh));
        const QString pripona = Zaloha::pripona(druh);
        const QString cil = soubor.endsWith(pripona, Qt::CaseInsensitive) ? soubor : soubor + pripona;
        if (QFile::exists(cil) && m_prompt.zprava(QStringLiteral("Soubor pod tímto názvem již existuje, chcete ho přepsat ?"),
                                                  QStringLiteral("Upozornění !!!"), Prompt::Ikona::Vykricnik,
                                                  Prompt::Tlacitka::AnoNe) != Prompt::Odpoved::Ano)
            return;
        Zaloha::zalohuj(m_uloziste, druh, cil);
        m_prompt.zprava(QStringLiteral("Zálohování bylo úspěšně dokončeno"), QStringLiteral("Uloženo.."),
                        Prompt::Ikona::Informace);
    } catch (const Error& e) {
        const Zaloha::Zprava z = Zaloha::zpravaZalohy(e);
        if (!z.text.isEmpty())
            m_prompt.zprava(z.text, z.titulek, Prompt::Ikona::Kriticka);
    }
}

void OvladacDat::obnova(Schema::Soubor druh)
{
    try {
        QDir().mkpath(Zaloha::slozka());
        const QString soubor = m_prompt.soubor(false, QStringLiteral("Vložení zálohovaných dat..."), Zaloha::slozka(), QString(),
                                               Zaloha::filtr(druh));
        if (Zaloha::obnov(m_uloziste, druh, soubor, m_prompt))
            m_poObnove(druh);
    } catch (const Error& e) {
        const Zaloha::Zprava z = Zaloha::zpravaObnovy(e, druh);
        if (!z.text.isEmpty())
            m_prompt.zprava(z.text, z.titulek, Prompt::Ikona::Kriticka);
        if (z.konec)
            QApplication::exit(1);
    }
}
