#include "ui/QtPrompt.h"

#include "core/Error.h"

#include <QApplication>
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
        pridej(QStringLiteral("&Ano"), QMessageBox::YesRole, Odpoved::Ano);
        pridej(QStringLiteral("&Ne"), QMessageBox::NoRole, Odpoved::Ne);
        break;
    case Tlacitka::AnoNeStorno:
        pridej(QStringLiteral("&Ano"), QMessageBox::YesRole, Odpoved::Ano);
        pridej(QStringLiteral("&Ne"), QMessageBox::NoRole, Odpoved::Ne);
        pridej(QStringLiteral("Storno"), QMessageBox::RejectRole, Odpoved::Storno);
        break;
    }
    box.setDefaultButton(qobject_cast<QPushButton*>(tlacitko.front().first));
    box.exec();
    for (const auto& [b, o] : tlacitko)
        if (box.clickedButton() == b)
            return o;
    return tlacitka == Tlacitka::AnoNe ? Odpoved::Ne : Odpoved::Storno;
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
    const QString start = navrh.isEmpty() ? slozka : QDir(slozka).filePath(navrh);
    const QString vybrany = ulozit ? QFileDialog::getSaveFileName(m_rodic, titulek, start, filtr, nullptr,
                                                                  QFileDialog::DontConfirmOverwrite)
                                   : QFileDialog::getOpenFileName(m_rodic, titulek, start, filtr);
    if (vybrany.isEmpty())
        throw Error(Chyba::Zruseno, QStringLiteral("Zrušeno"));
    return vybrany;
}
