#pragma once
// A fixture with its own application folder and settings file, thrown away afterwards, and a
// fixed clock for stamps. domov() is the folder; uloziste() opens (and creates) the store.
#include "core/Error.h"
#include "core/Uloziste.h"

#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

class DomovTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    QString domov() const;
    Uloziste& uloziste(); // opened on first use
    void zavri() { m_uloziste.reset(); }

private:
    QTemporaryDir m_dir;
    std::unique_ptr<Uloziste> m_uloziste;
};

// DomovTest after the first run's settings were written, as most of the program meets them.
class NastavenyDomov : public DomovTest {
protected:
    void SetUp() override;
};

// The demo kitchen order (share/demo/kuchyne.json) as exchange JSON.
QByteArray demoJson();

// The costing without the cutting (ZCR 0; the first-run settings have it on), for figures worked
// out from the order's materials alone. Writes the settings file that XDG_CONFIG_HOME names.
void bezRezani();

// A file's bytes, empty when it cannot be read; a file written whole with the given bytes.
QByteArray obsahSouboru(const QString& cesta);
void zapisSoubor(const QString& cesta, const QByteArray& obsah);

// The store's error that f throws (number 0 when it throws none), and its number.
Error chybaZ(const std::function<void()>& f);
int cisloChyby(const std::function<void()>& f);
// The text of the store's error that f throws, which must be a refused input; empty when none.
QString textChyby(const std::function<void()>& f);
