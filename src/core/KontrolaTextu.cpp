#include "core/KontrolaTextu.h"

#include "core/Error.h"
#include "core/Prompt.h"

namespace KontrolaTextu {

QString chyba(const QString& text, const QString& pole, int nejvys, Radky radky)
{
    int znaku = 0;
    for (qsizetype i = 0; i < text.size(); ++i, ++znaku) {
        const QChar c = text[i];
        if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            ++i;
            continue;
        }
        if (c.isSurrogate() || c.isNonCharacter())
            return QStringLiteral("Údaj „%1“ obsahuje neplatný znak (poškozený text).").arg(pole);
        const bool zalomeni = c == QLatin1Char('\n') || c == QLatin1Char('\r') || c == QLatin1Char('\t');
        if (c.category() == QChar::Other_Control && !(zalomeni && radky == Radky::Ano))
            return QStringLiteral("Údaj „%1“ obsahuje nepovolený řídicí znak (kód %2).").arg(pole).arg(c.unicode());
    }
    if (znaku > nejvys)
        return QStringLiteral("Údaj „%1“ smí obsahovat nejvýše %2 znaků.").arg(pole).arg(nejvys);
    return QString();
}

bool prijmi(Prompt& p, std::initializer_list<Pole> pole)
{
    for (const Pole& f : pole)
        if (const QString c = chyba(f.text, f.nazev, f.nejvys, f.radky); !c.isEmpty()) {
            p.zprava(c, QStringLiteral("Chybné zadání"), Prompt::Ikona::Kriticka);
            return false;
        }
    return true;
}

void zkontroluj(const QString& text, const QString& pole, int nejvys, Radky radky)
{
    const QString c = chyba(text, pole, nejvys, radky);
    if (!c.isEmpty())
        throw Error(Chyba::NeplatnyVstup, c);
}

}
