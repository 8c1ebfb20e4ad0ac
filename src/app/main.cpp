// truhlar: the workbench.
#include "core/Aplikace.h"
#include "core/Error.h"
#include "core/Nastaveni.h"
#include "core/Uloziste.h"
#include "ui/FrmBorovak.h"
#include "ui/Ikony.h"
#include "ui/QtPrompt.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QSplashScreen>
#include <QThread>
#include <QTimer>
#include <cstdio>

namespace {

// The demo order an installed program offers a new application folder ("" when there is none).
QString ukazkovaZakazka()
{
    const QDir demo(Aplikace::sdilenaData() + QStringLiteral("/demo"));
    const QStringList soubory = demo.entryList({QStringLiteral("*.zakazka.json")}, QDir::Files, QDir::Name);
    return Aplikace::sdilenaData().isEmpty() || soubory.isEmpty() ? QString() : demo.filePath(soubory.first());
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("truhlar"));
    QApplication::setApplicationDisplayName(QStringLiteral("Truhlář"));
    QGuiApplication::setDesktopFileName(QStringLiteral("truhlar"));
    QCommandLineParser argumenty;
    argumenty.addOption({QStringLiteral("home"), QStringLiteral("Aplikační složka."), QStringLiteral("SLOŽKA")});
    argumenty.addPositionalArgument(QStringLiteral("zakazka.json"), QStringLiteral("Zakázka k otevření."));
    argumenty.process(app);
    Aplikace::nastavDomov(argumenty.value(QStringLiteral("home")));
    // A double click on an order file names it; the first start of an installed program brings
    // the demo order, so that a new joiner has something to try the manual's steps on.
    QString soubor = argumenty.positionalArguments().value(0);
    if (soubor.isEmpty() && !Aplikace::existuje())
        soubor = ukazkovaZakazka();

    QPixmap obrazek = Ikony::proKlic("NP").pixmap(96, 96);
    QSplashScreen splash(obrazek);
    splash.showMessage(QStringLiteral("Truhlář V ") + Nastaveni::verze(), Qt::AlignBottom | Qt::AlignHCenter);
    splash.show();
    QApplication::processEvents();

    QtPrompt prompt;
    std::unique_ptr<Uloziste> uloziste;
    try {
        uloziste = std::make_unique<Uloziste>(true);
    } catch (const Error& e) {
        splash.close();
        prompt.zprava(e.cislo() == Chyba::DatabazePouzivana
                          ? QStringLiteral("Databáze programu je používána jiným programem!\rUkončete toto používání!!!")
                          : e.text(),
                      QStringLiteral("Truhlář"), Prompt::Ikona::Kriticka);
        return 1;
    }
    if (Nastaveni::jeZmenaVerze())
        Nastaveni::ZapisVychoziNastaveni(1000, 1000, 13500, 9000);
    FrmBorovak okno(*uloziste, prompt);
    prompt.nastavRodice(&okno);
    QThread::msleep(qEnvironmentVariableIsSet("TRUHLAR_BEZ_PAUZY") ? 0 : 1000);
    okno.show();
    splash.finish(&okno);
    if (!soubor.isEmpty())
        QTimer::singleShot(0, &okno, [&okno, soubor] { okno.otevriSoubor(soubor); });
    // A developer's smoke check under a real X server: say the caption and end after a while.
    if (const int ms = qEnvironmentVariableIntValue("TRUHLAR_UKONCIT_PO"); ms > 0)
        QTimer::singleShot(ms, &okno, [&okno] {
            std::fputs(okno.windowTitle().toUtf8().constData(), stdout);
            std::fputs(okno.isVisible() ? " viditelne\n" : "\n", stdout);
            okno.close();
        });
    return app.exec();
}
