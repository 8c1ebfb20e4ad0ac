#include "ui/RamecNovy.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace RamecNovy {

Ramec novy(QStackedWidget* ramce, const char* nazev, const char* tlacitko, const QString& tip)
{
    auto* w = new QWidget;
    w->setObjectName(QString::fromUtf8(nazev));
    auto* formular = new QFormLayout;
    auto* ulozit = new QPushButton(QStringLiteral("Uložit"), w);
    ulozit->setObjectName(QLatin1String(tlacitko));
    ulozit->setToolTip(tip);
    ulozit->setDefault(true);
    ulozit->setEnabled(false);
    auto* zavrit = new QPushButton(QStringLiteral("Zavřít"), w);
    zavrit->setObjectName(QStringLiteral("cmdZavrit"));
    auto* tlacitka = new QHBoxLayout;
    tlacitka->addStretch();
    tlacitka->addWidget(ulozit);
    tlacitka->addWidget(zavrit);
    auto* l = new QVBoxLayout(w);
    l->addLayout(formular);
    l->addLayout(tlacitka);
    QObject::connect(zavrit, &QPushButton::clicked, w->window(), [w] { w->window()->close(); });
    ramce->addWidget(w);
    ramce->setCurrentWidget(w);
    return {w, formular, ulozit};
}

QLineEdit* text(const char* nazev, int max)
{
    auto* e = new QLineEdit;
    e->setObjectName(QLatin1String(nazev));
    if (max > 0) // cut while typing, the caret at the end
        QObject::connect(e, &QLineEdit::textEdited, e, [e, max](const QString& t) {
            if (t.size() > max) {
                e->setText(t.left(max));
                e->setCursorPosition(max);
            }
        });
    return e;
}

CiselnePole* pole(const char* nazev, CiselnePole::Druh druh, int mist)
{
    auto* p = new CiselnePole(druh, mist);
    p->setObjectName(QLatin1String(nazev));
    return p;
}

QComboBox* seznam(const char* nazev, const QStringList& polozky)
{
    auto* c = new QComboBox;
    c->setObjectName(QLatin1String(nazev));
    c->setEditable(true);
    c->addItems(polozky);
    return c;
}

} // namespace RamecNovy
