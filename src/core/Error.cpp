#include "core/Error.h"

Error::Error(int cislo, const QString& text)
    : std::runtime_error(text.toStdString()), m_cislo(cislo), m_text(text)
{
}

Error::Error(int cislo, const QString& text, const QString& podrobnosti)
    : std::runtime_error(text.toStdString()), m_cislo(cislo), m_text(text), m_podrobnosti(podrobnosti)
{
}
