#include "SkriptovanyPrompt.h"

#include "core/Error.h"

#include <gtest/gtest.h>

SkriptovanyPrompt::~SkriptovanyPrompt()
{
    EXPECT_TRUE(m_odpovedi.empty()) << m_odpovedi.size() << " odpovědí zůstalo nepoužito";
}

QVariant SkriptovanyPrompt::dalsi(const QString& otazka)
{
    if (m_odpovedi.empty()) {
        ADD_FAILURE() << "nečekaná otázka: " << otazka.toStdString();
        return {};
    }
    QVariant v = m_odpovedi.front();
    m_odpovedi.pop_front();
    return v;
}

Prompt::Odpoved SkriptovanyPrompt::zprava(const QString& text, const QString& titulek, Ikona,
                                          Tlacitka tlacitka)
{
    zpravy << text;
    titulky << titulek;
    if (tlacitka == Tlacitka::Ok)
        return Odpoved::Ok;
    return Odpoved(dalsi(text).toInt());
}

QString SkriptovanyPrompt::vstup(const QString& text, const QString& titulek, const QString&)
{
    zpravy << text;
    titulky << titulek;
    return dalsi(text).toString();
}

QString SkriptovanyPrompt::soubor(bool, const QString& titulek, const QString&, const QString&,
                                  const QString&)
{
    titulky << titulek;
    const QString s = dalsi(titulek).toString();
    if (s.isNull())
        throw Error(Chyba::Zruseno, QStringLiteral("Zrušeno"));
    return s;
}

quint32 SkriptovanyPrompt::barva(quint32 bgr, const QString& titulek)
{
    titulky << titulek;
    if (m_barvy.empty())
        return Prompt::barva(bgr, titulek);
    const quint32 b = m_barvy.front();
    m_barvy.pop_front();
    return b;
}

VolbaPisma SkriptovanyPrompt::pismo(const VolbaPisma& puvodni, const QString& titulek)
{
    titulky << titulek;
    if (m_pisma.empty())
        return Prompt::pismo(puvodni, titulek);
    const VolbaPisma p = m_pisma.front();
    m_pisma.pop_front();
    return p;
}
