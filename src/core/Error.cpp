#include "core/Error.h"

#include <cerrno>

Error::Error(int cislo, const QString& text) : std::runtime_error(text.toStdString()), m_cislo(cislo), m_text(text) {}

namespace Chyba {

int cisloProErrno(int chyba)
{
    switch (chyba) {
    case ENOSPC:
#ifdef EDQUOT
    case EDQUOT:
#endif
        return DiskPlny;
    case EROFS:
    case EACCES:
    case EPERM: return JenProCteni;
    case EWOULDBLOCK: return DatabazePouzivana;
    default: return PristupKSouboru;
    }
}

} // namespace Chyba

Error::Error(int cislo, const QString& text, const QString& podrobnosti)
    : std::runtime_error(text.toStdString()), m_cislo(cislo), m_text(text), m_podrobnosti(podrobnosti)
{
}
