#include "ui/QtPrompt.h"

#include "core/CilZapisu.h"
#include "core/Error.h"
#include "printing/Operace.h"

#include <QApplication>
#include <QColorDialog>
#include <QFontDialog>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

Prompt::Odpoved QtPrompt::zprava(const QString& text, const QString& titulek, Ikona ikona, Tlacitka tlacitka)
{
    static const QMessageBox::Icon ikony[] = {QMessageBox::NoIcon, QMessageBox::Information, QMessageBox::Question,
                                              QMessageBox::Warning, QMessageBox::Critical};
    QMessageBox box(ikony[int(ikona)], titulek.isEmpty() ? QApplication::applicationDisplayName() : titulek,
                    QString(text).replace(QLatin1Char('\r'), QLatin1Char('\n')), QMessageBox::NoButton, m_rodic);
    std::vector<std::pair<QAbstractButton*, Odpoved>> tlacitko;
    auto pridej = [&](const QString& popis, QMessageBox::ButtonRole role, Odpoved odpoved) {
        tlacitko.push_back({box.addButton(popis, role), odpoved});
    };
    switch (tlacitka) {
    case Tlacitka::Ok:
        pridej(QStringLiteral("OK"), QMessageBox::AcceptRole, Odpoved::Ok);
        break;
    case Tlacitka::OkStorno:
        pridej(QStringLiteral("OK"), QMessageBox::AcceptRole, Odpoved::Ok);
        pridej(QStringLiteral("Storno"), QMessageBox::RejectRole, Odpoved::Storno);
        break;
    case Tlacitka::AnoNe:
    case Tlacitka::AnoNeVychoziNe:
        pridej(QStringLiteral("&Ano"), QMessageBox::YesRole, Odpoved::Ano);
        pridej(QStringLiteral("&Ne"), QMessageBox::NoRole, Odpoved::Ne);
        break;
    case Tlacitka::AnoNeStorno:
        pridej(QStringLiteral("&Ano"), QMessageBox::YesRole, Odpoved::Ano);
        pridej(QStringLiteral("&Ne"), QMessageBox::NoRole, Odpoved::Ne);
        pridej(QStringLiteral("Storno"), QMessageBox::RejectRole, Odpoved::Storno);
        break;
    }
    box.setDefaultButton(qobject_cast<QPushButton*>(
        (tlacitka == Tlacitka::AnoNeVychoziNe ? tlacitko.back() : tlacitko.front()).first));
    box.exec();
    for (const auto& [b, o] : tlacitko)
        if (box.clickedButton() == b)
            return o;
    return tlacitka == Tlacitka::AnoNe || tlacitka == Tlacitka::AnoNeVychoziNe ? Odpoved::Ne : Odpoved::Storno;
}

QString QtPrompt::vstup(const QString& text, const QString& titulek, const QString& vychozi)
{
    bool ok = false;
    const QString t = QInputDialog::getText(m_rodic, titulek, text, QLineEdit::Normal, vychozi, &ok);
    return ok ? t : QString();
}

QString QtPrompt::soubor(bool ulozit, const QString& titulek, const QString& slozka, const QString& navrh,
                         const QString& filtr)
{
    QString start = navrh.isEmpty() ? slozka : QDir(slozka).filePath(navrh);
    for (;;) {
        const QString vybrany = ulozit ? QFileDialog::getSaveFileName(m_rodic, titulek, start, filtr, nullptr,
                                                                      QFileDialog::DontConfirmOverwrite)
                                       : QFileDialog::getOpenFileName(m_rodic, titulek, start, filtr);
        if (vybrany.isEmpty())
            throw Error(Chyba::Zruseno, QStringLiteral("Zrušeno"));
        if (!ulozit || !CilZapisu::jeVDatech(vybrany))
            return vybrany;
        zprava(CilZapisu::zprava(vybrany), QStringLiteral("Chyba zápisu"), Ikona::Vykricnik, Tlacitka::Ok);
        start = QDir(slozka).filePath(navrh);
    }
}

quint32 QtPrompt::barva(quint32 bgr, const QString& titulek)
{
    const QColor c = QColorDialog::getColor(Barva::zVB(bgr), m_rodic, titulek);
    if (!c.isValid())
        throw Error(Chyba::Zruseno, QStringLiteral("Zrušeno"));
    return quint32(Barva::doVB(c));
}

// Qt's font dialog has no colour; the colour is asked right after, and a cancel there keeps
// the font's old colour.
VolbaPisma QtPrompt::pismo(const VolbaPisma& puvodni, const QString& titulek)
{
    QFont f(puvodni.nazev, puvodni.velikost);
    f.setBold(puvodni.tucne);
    f.setItalic(puvodni.kurziva);
    f.setUnderline(puvodni.podtrzene);
    f.setStrikeOut(puvodni.preskrtnute);
    bool ok = false;
    const QFont vybrany = QFontDialog::getFont(&ok, f, m_rodic, titulek);
    if (!ok)
        throw Error(Chyba::Zruseno, QStringLiteral("Zrušeno"));
    VolbaPisma p{vybrany.family(), qMax(1, vybrany.pointSize()), vybrany.bold(), vybrany.italic(),
                 vybrany.underline(), vybrany.strikeOut(), puvodni.barva};
    const QColor c = QColorDialog::getColor(Barva::zVB(puvodni.barva), m_rodic, titulek + QStringLiteral(" – barva"));
    if (c.isValid())
        p.barva = quint32(Barva::doVB(c));
    return p;
}
