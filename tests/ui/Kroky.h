#pragma once
// Drives a window's modal dialogs from a test: the steps run on a timer while the window's own
// exec() loops wait.
#include "ui/FrmNovy.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <deque>
#include <functional>

// Works through the modal windows in turn: each step acts on the window it waits for and says
// so. A message box is read, offered to the step, and answered with its default button ("OK",
// or "Ano" to a question) when the step leaves it. With no step left, any other window is
// closed, so an unexpected one fails the test instead of hanging it.
class Kroky {
public:
    using Krok = std::function<bool(QWidget*)>;
    explicit Kroky(std::deque<Krok> kroky) : m_kroky(std::move(kroky))
    {
        QObject::connect(&m_casovac, &QTimer::timeout, [this] { dalsi(); });
        m_casovac.start(5);
    }
    QStringList zpravy;
    bool hotovo() const { return m_kroky.empty(); }

private:
    void dalsi()
    {
        QWidget* w = QApplication::activeModalWidget();
        if (!w)
            return;
        auto* b = qobject_cast<QMessageBox*>(w);
        if (b)
            zpravy << b->text();
        if (!m_kroky.empty() && m_kroky.front()(w))
            m_kroky.pop_front();
        else if (b)
            b->defaultButton()->click();
        else if (auto* d = qobject_cast<QDialog*>(w); d && m_kroky.empty())
            d->reject();
    }
    std::deque<Krok> m_kroky;
    QTimer m_casovac;
};

// A step on a window of the given kind.
template <class Okno>
Kroky::Krok vOkne(std::function<void(Okno*)> akce)
{
    return [akce](QWidget* w) {
        auto* o = qobject_cast<Okno*>(w);
        if (o)
            akce(o);
        return o != nullptr;
    };
}

// A step on the entry dialog when it shows the named frame.
inline Kroky::Krok vRamci(const char* ramec, std::function<void(FrmNovy*)> akce)
{
    return [ramec, akce](QWidget* w) {
        auto* d = qobject_cast<FrmNovy*>(w);
        if (!d || !d->findChild<QWidget*>(QString::fromUtf8(ramec)))
            return false;
        akce(d);
        return true;
    };
}

// A step that answers an input box with a text, or a message box with the button of that caption.
inline Kroky::Krok odpovez(const QString& odpoved)
{
    return [odpoved](QWidget* w) {
        if (auto* d = qobject_cast<QInputDialog*>(w)) {
            d->setTextValue(odpoved);
            d->accept();
            return true;
        }
        if (auto* b = qobject_cast<QMessageBox*>(w))
            for (QAbstractButton* t : b->buttons())
                if (t->text() == odpoved) {
                    t->click();
                    return true;
                }
        return false;
    };
}

// A click that may open a modal window: queued, so that the step returns first.
inline void klikni(QWidget* okno, const char* tlacitko)
{
    QMetaObject::invokeMethod(okno->findChild<QPushButton*>(QLatin1String(tlacitko)), "click", Qt::QueuedConnection);
}
