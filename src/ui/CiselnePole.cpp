#include "ui/CiselnePole.h"

#include "core/Jednotky.h"
#include "core/Val.h"

#include <QKeyEvent>
#include <QTimer>

CiselnePole::CiselnePole(Druh druh, int mist, QWidget* rodic) : QLineEdit(rodic), m_druh(druh), m_mist(mist) {}

void CiselnePole::keyPressEvent(QKeyEvent* e)
{
    const QString t = e->text();
    if (t.size() != 1 || t.at(0).unicode() < 32) { // navigation, editing keys, shortcuts
        QLineEdit::keyPressEvent(e);
        return;
    }
    const int start = hasSelectedText() ? selectionStart() : cursorPosition();
    const int delka = int(selectedText().size());
    const QChar k = m_druh == Druh::Cele
                        ? Jednotky::FiltrCelehoCisla(text(), start, delka, t.at(0), m_mist)
                        : Jednotky::FiltrCisla(text(), start, delka, t.at(0),
                                               m_druh == Druh::Delka ? Jednotky::PocetDesetinnych() : m_mist);
    if (!k.isNull())
        QLineEdit::keyPressEvent(e);
}

CiselnePole::Tvar CiselnePole::sDesetinnymi(int mist)
{
    return [mist](const QString& t) {
        QString cislo = Jednotky::CisloZTextu(t.trimmed());
        if (cislo.isEmpty())
            return cislo;
        return QString::number(Val(cislo.replace(Jednotky::oddelovac(), QLatin1Char('.'))), 'f', mist)
            .replace(QLatin1Char('.'), Jednotky::oddelovac());
    };
}

void CiselnePole::nastavCislo(const QString& cislo)
{
    setText(m_tvar && !hasFocus() ? m_tvar(cislo) : cislo);
}

void CiselnePole::focusInEvent(QFocusEvent* e)
{
    QLineEdit::focusInEvent(e);
    QString cislo = Jednotky::CisloZTextu(text());
    if (m_tvar) // the price texts write a point whatever the locale: typing goes on in its form
        cislo.replace(QLatin1Char('.'), Jednotky::oddelovac());
    setText(cislo);
    QTimer::singleShot(0, this, &QLineEdit::selectAll);
}

void CiselnePole::focusOutEvent(QFocusEvent* e)
{
    QLineEdit::focusOutEvent(e);
    if (m_tvar) {
        setText(m_tvar(text()));
        return;
    }
    if (m_druh != Druh::Delka)
        return;
    const QString cislo = Jednotky::CisloZTextu(text().trimmed());
    const QString t = Jednotky::RozmerSJednotkou(text());
    setText(t.isEmpty() && m_nula && !cislo.isEmpty() ? cislo + Jednotky::pripona() : t);
}

double CiselnePole::mm() const
{
    return Jednotky::NaMilimetry(text());
}

double CiselnePole::hodnota() const
{
    QString t = Jednotky::CisloZTextu(text());
    return Val(t.replace(Jednotky::oddelovac(), QLatin1Char('.')));
}

void CiselnePole::nastavMm(double mm)
{
    setText(mm == 0 ? QString() : Jednotky::ZMilimetru(mm));
}
