#include "core/Prompt.h"

#include "core/Error.h"

quint32 Prompt::barva(quint32, const QString&)
{
    throw Error(Chyba::Zruseno, QStringLiteral("Volba barvy zrušena."));
}

VolbaPisma Prompt::pismo(const VolbaPisma&, const QString&)
{
    throw Error(Chyba::Zruseno, QStringLiteral("Volba písma zrušena."));
}
