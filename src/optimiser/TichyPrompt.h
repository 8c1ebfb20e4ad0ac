#pragma once
// A Prompt that says nothing and answers with the default: for runs made only to be compared or
// built on, whose own warnings are not the joiner's business.
#include "core/Prompt.h"

class TichyPrompt : public Prompt {
public:
    Odpoved zprava(const QString&, const QString&, Ikona, Tlacitka) override { return Odpoved::Ok; }
    QString vstup(const QString&, const QString&, const QString&) override { return {}; }
    QString soubor(bool, const QString&, const QString&, const QString&, const QString&) override { return {}; }
};
