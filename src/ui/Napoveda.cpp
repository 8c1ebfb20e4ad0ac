#include "ui/Napoveda.h"

#include "ui/FrmNapoveda.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace Napoveda {
namespace {

// Windows and frmNovy's frames by object name, and their pages.
const std::vector<std::pair<const char*, const char*>> g_strankyOken = {
    {"frmBorovak", "index.html"},
    {"frmNapoveda", "index.html"},
    {"fraZakázka", "zakazka.html"},
    {"fraTyp", "zakazka.html#sestava"},
    {"fraMaterial", "zakazka.html#formaty"},
    {"fraHrana", "zakazka.html#formaty"},
    {"fraPlMat", "zakazka.html#desky"},
    {"fraPřís", "zakazka.html#prislusenstvi"},
    {"frmImport", "zakazka.html#import"},
    {"fraVolbaNP", "plan.html"},
    {"fraOptimalizace", "plan.html#vypocet"},
    {"frmNP", "plan.html#prohlizec"},
    {"frmVSP", "tisk.html"},
    {"fraKalkulace", "kalkulace.html"},
    {"frmSklad", "sklad.html"},
    {"fraNSklad", "sklad.html"},
    {"frmCenik", "cenik.html"},
    {"frmPolozka", "cenik.html#polozka"},
    {"fraNCenik", "cenik.html"},
    {"frmObr", "cenik.html#obrazky"},
    {"frmSchema", "cenik.html#obrazky"},
    {"frmNahled", "cenik.html#obrazky"},
    {"frmOptions", "moznosti.html"},
};

class KlavesaNapovedy : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* o, QEvent* e) override
    {
        if (e->type() != QEvent::KeyPress || !o->isWidgetType())
            return false;
        const int klavesa = static_cast<QKeyEvent*>(e)->key();
        if (klavesa != Qt::Key_F1 && klavesa != Qt::Key_Help)
            return false;
        QWidget* okno = static_cast<QWidget*>(o)->window();
        otevri(okno, stranka(okno));
        return true;
    }
};

} // namespace

QString slozka() { return QStringLiteral("qrc:/napoveda"); }

const std::vector<std::pair<const char*, const char*>>& strankyOken() { return g_strankyOken; }

QString stranka(const QWidget* okno)
{
    const QWidget* w = okno->window();
    for (const auto& [nazev, soubor] : g_strankyOken)
        if (w->objectName() == QString::fromUtf8(nazev))
            return QLatin1String(soubor);
    for (const auto& [nazev, soubor] : g_strankyOken) {
        const QWidget* ramec = w->findChild<QWidget*>(QString::fromUtf8(nazev));
        if (ramec && ramec->isVisibleTo(w))
            return QLatin1String(soubor);
    }
    return Obsah;
}

FrmNapoveda* otevri(QWidget* okno, const QString& stranka)
{
    QWidget* w = okno->window();
    auto* napoveda = qobject_cast<FrmNapoveda*>(w);
    if (!napoveda)
        napoveda = w->findChild<FrmNapoveda*>(QString(), Qt::FindDirectChildrenOnly);
    if (!napoveda)
        napoveda = new FrmNapoveda(w);
    napoveda->zobraz(stranka);
    napoveda->show();
    napoveda->raise();
    napoveda->activateWindow();
    return napoveda;
}

void zapniKlavesu(QObject* vlastnik) { qApp->installEventFilter(new KlavesaNapovedy(vlastnik)); }

} // namespace Napoveda
