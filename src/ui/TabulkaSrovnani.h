#pragma once
// The four ways to cut side by side in the plan start frame (tblSrovnani): sheets, use, cuts and
// the largest remnant of each way's plan of the chosen format. The three described ways come
// first, "úsporně" fills its row when its budget ends. The window stays live meanwhile: a new
// format, or the frame closing, stops what is being computed and starts over or leaves it.
#include "core/Prompt.h"
#include "optimiser/SrovnaniNP.h"

#include <QTableWidget>
#include <functional>

class TabulkaSrovnani : public QTableWidget, private Prubeh {
public:
    using Vypocet = std::function<std::optional<SrovnaniNP>(double idFormatu, ZpusobNP zpusob, Prubeh& prubeh)>;
    explicit TabulkaSrovnani(QWidget* rodic);

    void vypocet(Vypocet v) { m_vypocet = std::move(v); } // none: the rows stay empty

    void spocitej(double idFormatu); // at the next turn of the event loop
    void zastav();                   // what is being computed ends at its next look

private:
    void beh();
    void radek(int r, const std::optional<SrovnaniNP>& s);
    void popisek(const QString& text) override;
    void hodnota(double) override {}
    bool prerusit() override;

    Vypocet m_vypocet;
    double m_idFormatu = 0;
    int m_zadani = 0;  // raised by each spocitej: a computation of an older one stops
    bool m_bezi = false;
    bool m_zastavit = false;
    int m_radek = 0;
};
