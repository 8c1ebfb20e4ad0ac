#pragma once
// Drives a window's modal dialogs from a test: the steps run on a timer while the window's own
// exec() loops wait.
#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <deque>
#include <functional>

// Works through the modal windows in turn: each step acts on the window it waits for and says
// so; message boxes are read and answered with their default button between the steps. With
// no step left, any window is closed, so an unexpected one fails the test instead of hanging it.
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
        if (auto* b = qobject_cast<QMessageBox*>(w)) {
            zpravy << b->text();
            b->defaultButton()->click(); // "OK", or "Ano" to a question
        } else if (w && m_kroky.empty()) {
            if (auto* d = qobject_cast<QDialog*>(w))
                d->reject();
        } else if (w && m_kroky.front()(w))
            m_kroky.pop_front();
    }
    std::deque<Krok> m_kroky;
    QTimer m_casovac;
};

// A click that may open a modal window: queued, so that the step returns first.
inline void klikni(QWidget* okno, const char* tlacitko)
{
    QMetaObject::invokeMethod(okno->findChild<QPushButton*>(QLatin1String(tlacitko)), "click", Qt::QueuedConnection);
}
