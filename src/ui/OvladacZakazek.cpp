// The tree of orders and assemblies, the selection it writes, the refresh that follows the
// selection (notes, grids, schema, prices) and the state of the commands in each selection.
#include "ui/OvladacZakazek.h"

#include "core/Error.h"
#include "core/Prompt.h"
#include "core/Uloziste.h"
#include "costing/Kalkulace.h"
#include "orders/Kopirovani.h"
#include "orders/Strom.h"
#include "orders/Vyber.h"
#include "orders/Zakazky.h"
#include "ui/Ikony.h"
#include "ui/Nabidka.h"
#include "ui/TabulkaPrikazu.h"

#include <QDropEvent>
#include <QLabel>
#include <QTabWidget>
#include <QTableWidget>
#include <QTimer>
#include <QTreeWidget>

OvladacZakazek::OvladacZakazek(Uloziste& uloziste, Prompt& prompt, Vyber& vyber, QWidget* okno, const Prvky& prvky, Povol povol)
    : m_uloziste(uloziste), m_prompt(prompt), m_vyber(vyber), m_okno(okno), m_povol(std::move(povol)),
      m_tvzakazky(prvky.tvzakazky), m_stZakazky(prvky.stZakazky), m_GridFormaty(prvky.GridFormaty), m_GridHrany(prvky.GridHrany),
      m_GPM(prvky.GPM), m_GPR(prvky.GPR), m_img1(prvky.img1), m_panel{prvky.panel[0], prvky.panel[1], prvky.panel[2]}
{
    connect(m_tvzakazky, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* u) { klikNaUzel(u); });
    m_tvzakazky->viewport()->installEventFilter(this);
    connect(&m_vyber, &Vyber::zmenaZakazky, this, &OvladacZakazek::obnovZakazku);
    connect(&m_vyber, &Vyber::zmenaSestavy, this, &OvladacZakazek::obnovSestavu);
}

void OvladacZakazek::pridejPrikazy(TabulkaPrikazu& tabulka)
{
    const std::pair<QStringList, void (OvladacZakazek::*)()> prikazy[] = {
        {{"NZakazka"}, &OvladacZakazek::NovaZakazka},
        {{"UpraveniZakazky"}, &OvladacZakazek::UpravitZakazku},
        {{"UlozeniJakoZ"}, &OvladacZakazek::UlozitZakazkuJako},
        {{"SmazaniZakazky"}, &OvladacZakazek::SmazatZakazku},
        {{"NSestava"}, &OvladacZakazek::NovaSestava},
        {{"USestava"}, &OvladacZakazek::UpravitSestavu},
        {{"UlozeniSestavyJako"}, &OvladacZakazek::UlozitSestavuJako},
        {{"SmazaniSestavy"}, &OvladacZakazek::SmazatSestavu},
        {{"NovyPloM", "cmdNovyPM"}, &OvladacZakazek::NovyPM},
        {{"UpraveniPM", "cmdUpravitPM"}, &OvladacZakazek::UpravitPM},
        {{"SmazaniPM", "cmdSmazatPM"}, &OvladacZakazek::SmazatPM},
        {{"cmdImport"}, &OvladacZakazek::ImportDesek},
        {{"NoveP", "cmdNovePrislusenstvi"}, &OvladacZakazek::NovePrislusenstvi},
        {{"UpraveniP", "cmdUpravitPrislusenstvi"}, &OvladacZakazek::UpravitPrislusenstvi},
        {{"SmazaniP", "cmdSmazatPrislusenstvi"}, &OvladacZakazek::SmazatPrislusenstvi},
    };
    for (const auto& [nazvy, f] : prikazy)
        tabulka.pridej(nazvy, [this, f = f] { (this->*f)(); });
    // formats and bands share their routines; the table says which is which
    const std::pair<QStringList, void (OvladacZakazek::*)(bool)> materialy[] = {
        {{"NF", "cmdNovyFormat", "NH", "cmdNovaHrana"}, &OvladacZakazek::NovyMaterial},
        {{"UF", "cmdUpravitFormat", "UH", "cmdUpravitHrana"}, &OvladacZakazek::UpravitMaterial},
        {{"SF", "cmdSmazatFormat", "SH", "cmdSmazatHrana"}, &OvladacZakazek::SmazatMaterial},
    };
    for (const auto& [nazvy, f] : materialy) {
        tabulka.pridej(nazvy.mid(0, 2), [this, f = f] { (this->*f)(false); });
        tabulka.pridej(nazvy.mid(2, 2), [this, f = f] { (this->*f)(true); });
    }
}

void OvladacZakazek::ZakazEditaci()
{
    ZakazEditaciZakazky();
    ZakazEditaciSestavy();
}

void OvladacZakazek::ZakazEditaciZakazky()
{
    QStringList vse = {QStringLiteral("UpraveniZakazky"),
                       QStringLiteral("UlozeniJakoZ"),
                       QStringLiteral("SmazaniZakazky"),
                       QStringLiteral("Sestava"),
                       QStringLiteral("PlMaterial"),
                       QStringLiteral("Format"),
                       QStringLiteral("Hrana"),
                       QStringLiteral("Vypisy"),
                       QStringLiteral("Prislusenstvi"),
                       QStringLiteral("Vz"),
                       QStringLiteral("NP"),
                       QStringLiteral("NF"),
                       QStringLiteral("NH"),
                       QStringLiteral("cmdNovyFormat"),
                       QStringLiteral("cmdNovaHrana")};
    for (const Nabidka::Tlacitko& t : Nabidka::nastroje())
        if (!QStringList({"NZ", "CTM", "Moznosti", "Sklad"}).contains(QLatin1String(t.klic)))
            vse << QStringLiteral("tb") + QLatin1String(t.klic);
    povol(vse, false);
}

void OvladacZakazek::PovolEditaciZakazky()
{
    povol({QStringLiteral("UpraveniZakazky"), QStringLiteral("SmazaniZakazky"), QStringLiteral("UlozeniJakoZ"),
           QStringLiteral("Sestava"), QStringLiteral("Vypisy"), QStringLiteral("Format"), QStringLiteral("Hrana"),
           QStringLiteral("Vz"), QStringLiteral("NP"), QStringLiteral("cmdNovyFormat"), QStringLiteral("cmdNovaHrana"),
           QStringLiteral("NF"), QStringLiteral("NH"), QStringLiteral("tbOZ"), QStringLiteral("tbNPZ"), QStringLiteral("tbNP"),
           QStringLiteral("tbZD")},
          true);
}

void OvladacZakazek::ZakazEditaciSestavy()
{
    povol({QStringLiteral("USestava"), QStringLiteral("UlozeniSestavyJako"), QStringLiteral("SmazaniSestavy"),
           QStringLiteral("cmdImport"), QStringLiteral("PlMaterial"), QStringLiteral("Prislusenstvi"), QStringLiteral("tbUPZ"),
           QStringLiteral("tbOPZ"), QStringLiteral("tbNPM"), QStringLiteral("tbUPM"), QStringLiteral("tbOPM"),
           QStringLiteral("tbNPR"), QStringLiteral("tbUPR"), QStringLiteral("tbOPR")},
          false);
}

void OvladacZakazek::PovolEditaciSestavy()
{
    povol({QStringLiteral("UlozeniJakoZ"), QStringLiteral("SmazaniZakazky"), QStringLiteral("USestava"),
           QStringLiteral("UlozeniSestavyJako"), QStringLiteral("SmazaniSestavy"), QStringLiteral("PlMaterial"),
           QStringLiteral("NovyPloM"), QStringLiteral("Prislusenstvi"), QStringLiteral("NoveP"), QStringLiteral("tbUPZ"),
           QStringLiteral("cmdImport"), QStringLiteral("tbOPZ"), QStringLiteral("tbNPM"), QStringLiteral("tbNPR")},
          true);
}

void OvladacZakazek::NaplnitStrom()
{
    m_tvzakazky->clear();
    for (const UzelZakazky& z : ::NaplnitStrom(m_uloziste.dataS())) {
        auto* uzel = new QTreeWidgetItem(m_tvzakazky, {z.nazev});
        uzel->setIcon(0, Ikony::zakazka());
        uzel->setData(0, Qt::UserRole, z.nazev + QLatin1Char('a'));
        for (const UzelSestavy& s : z.sestavy) {
            auto* dite = new QTreeWidgetItem(uzel, {s.text()});
            dite->setIcon(0, Ikony::sestava());
            dite->setData(0, Qt::UserRole, z.nazev + QLatin1Char('a') + s.nazev);
            dite->setData(0, Qt::UserRole + 1, s.nazev); // the node's Tag
        }
    }
}

void OvladacZakazek::klikNaUzel(QTreeWidgetItem* uzel)
{
    if (!uzel)
        return;
    const QString tag = uzel->data(0, Qt::UserRole + 1).toString();
    if (tag.isEmpty()) {
        m_AktZakazka = uzel->text(0);
        m_AktSestava.clear();
        m_stZakazky->setCurrentIndex(0);
        m_vyber.setTxtzakazka(uzel->text(0));
        m_vyber.setTxtSestava(QString());
    } else {
        m_AktZakazka = uzel->parent()->text(0);
        m_AktSestava = tag;
        m_stZakazky->setCurrentIndex(1);
        m_vyber.setTxtzakazka(m_AktZakazka);
        m_vyber.setTxtSestava(tag);
    }
}

void OvladacZakazek::vyberUzel(QString zakazka, QString sestava)
{
    NaplnitStrom();
    for (int i = 0; i < m_tvzakazky->topLevelItemCount(); ++i) {
        QTreeWidgetItem* z = m_tvzakazky->topLevelItem(i);
        if (z->text(0) != zakazka)
            continue;
        QTreeWidgetItem* cil = z;
        for (int j = 0; j < z->childCount(); ++j)
            if (!sestava.isEmpty() && z->child(j)->data(0, Qt::UserRole + 1).toString() == sestava)
                cil = z->child(j);
        m_tvzakazky->setCurrentItem(cil);
        m_tvzakazky->scrollToItem(cil);
    }
    m_AktZakazka = zakazka;
    m_AktSestava = sestava;
    m_delkyRezu.zahod(zakazka); // called after the order or its assemblies changed
    m_vyber.obnov(zakazka, sestava);
}

void OvladacZakazek::obnovZakazku()
{
    m_panel[0]->setText(Zakazky::poznamka(m_uloziste.dataS(), m_vyber.txtzakazka()));
    m_panel[0]->setToolTip(QStringLiteral("Poznámka k zakázce"));
    NaplnitGridFormaty(QStringLiteral("Novy zaznam"));
    NaplnitGridHrany(QStringLiteral("Novy zaznam"));
    if (!m_vyber.txtzakazka().isEmpty())
        PovolEditaciZakazky();
    else
        ZakazEditaciZakazky();
    // when the assembly does not change with the order its handler stays silent, so the
    // prices are renewed here (otherwise they are, once, when the assembly's signal follows)
    if (m_vyber.txtSestava() == m_AktSestava)
        obnovCeny();
}

void OvladacZakazek::obnovSestavu()
{
    if (m_AktSestava.isEmpty()) {
        m_panel[0]->setText(Zakazky::poznamka(m_uloziste.dataS(), m_vyber.txtzakazka()));
        m_panel[0]->setToolTip(QStringLiteral("Poznámka k zakázce"));
        m_panel[2]->clear();
    } else {
        m_panel[0]->setText(Zakazky::nactiSestavu(m_uloziste.dataS(), m_vyber.txtzakazka(), m_vyber.txtSestava()).popis);
        m_panel[0]->setToolTip(QStringLiteral("Poznámka k sestavě"));
    }
    NaplnitGridPM(QStringLiteral("Novy zaznam"));
    NaplnitGridPR(QStringLiteral("Novy zaznam"));
    NactiSchema();
    if (!m_AktSestava.isEmpty())
        PovolEditaciSestavy();
    else
        ZakazEditaciSestavy();
    obnovCeny();
}

void OvladacZakazek::obnovStranky()
{
    obnovZakazku();
    obnovSestavu();
}

void OvladacZakazek::obnovCeny()
{
    m_panel[1]->clear();
    m_panel[2]->clear();
    if (m_vyber.txtzakazka().isEmpty())
        return;
    try {
        const Kalkulace::Ceny c = Kalkulace::ZobrazCeny(m_uloziste, m_vyber.txtzakazka(), m_AktSestava, &m_delkyRezu);
        m_panel[1]->setText(c.zakazka);
        m_panel[2]->setText(c.sestava);
    } catch (const Error& e) {
        m_panel[1]->setText(QStringLiteral("cena nelze spočítat"));
        m_panel[1]->setToolTip(e.text());
        return;
    }
    m_panel[1]->setToolTip(QStringLiteral("Cena zakázky s DPH"));
}

void OvladacZakazek::poZmeneZakazky()
{
    m_delkyRezu.zahod(m_vyber.txtzakazka());
    obnovCeny();
}

void OvladacZakazek::poObnoveDat()
{
    NaplnitStrom();
    m_AktZakazka.clear();
    m_AktSestava.clear();
    m_delkyRezu.zahod();
    m_vyber.obnov(QString(), QString()); // nothing selected, every page refreshed
}

void OvladacZakazek::UlozitZakazkuJako()
{
    const QString nova = Kopirovani::UlozitZakazkuJako(m_uloziste.dataS(), m_prompt, m_vyber.txtzakazka());
    if (!nova.isNull())
        vyberUzel(nova, QString());
}

void OvladacZakazek::UlozitSestavuJako()
{
    const QString zakazka = m_vyber.txtzakazka();
    const QString nova = Kopirovani::UlozitSestavuJako(m_uloziste.dataS(), m_prompt, zakazka, m_AktSestava);
    if (!nova.isNull())
        vyberUzel(zakazka, nova);
}

bool OvladacZakazek::eventFilter(QObject* o, QEvent* e)
{
    if (o == m_tvzakazky->viewport() && e->type() == QEvent::Drop) {
        auto* drop = static_cast<QDropEvent*>(e);
        drop->ignore();
        pretazeni(m_tvzakazky->currentItem(), m_tvzakazky->itemAt(drop->position().toPoint()));
        return true;
    }
    return QObject::eventFilter(o, e);
}

void OvladacZakazek::pretazeni(QTreeWidgetItem* zdroj, QTreeWidgetItem* cil)
{
    if (!cil || !zdroj || zdroj->data(0, Qt::UserRole + 1).toString().isEmpty())
        return;
    QTreeWidgetItem* cilovaZakazka = cil->parent() ? cil->parent() : cil;
    if (cilovaZakazka == zdroj->parent())
        return; // on its own order nothing happens
    // an assembly dropped on another order (or one of its assemblies) is copied there
    const QString sestava = zdroj->data(0, Qt::UserRole + 1).toString();
    const QString cilova = cilovaZakazka->text(0);
    if (m_prompt.zprava(QStringLiteral("Chcete zkopírovat sestavu - ") + sestava + QStringLiteral(" - do zakázky - ") + cilova +
                            QStringLiteral(" - ?"),
                        QString(), Prompt::Ikona::Otaznik, Prompt::Tlacitka::AnoNe) != Prompt::Odpoved::Ano)
        return;
    try {
        const QString nova = Kopirovani::KopirovaniSestavy(m_uloziste.dataS(), zdroj->parent()->text(0), sestava, cilova);
        m_vyber.setTxtSestava(QString());
        // the tree is filled again once the drag has ended, not under its feet
        QTimer::singleShot(0, this, [this, cilova, nova] { vyberUzel(cilova, nova); });
    } catch (const Error& e) {
        m_prompt.zprava(e.text(), QStringLiteral("Chyba"), Prompt::Ikona::Kriticka);
    }
}
