#pragma once
// The entry dialog frmNovy: one modal window that shows one of its frames, chosen by its state.
// Here the frames of a plan run: fraVolbaNP (format, mode, further variants) and
// fraOptimalizace (progress, the trembling icon, Storno); the entry frames of orders,
// assemblies, materials and boards; fraKalkulace (the assemblies of a costing report).
#include "catalogues/Sklad.h"
#include "core/Prompt.h"
#include "optimiser/PlanRun.h"
#include "ui/TabulkaSrovnani.h"
#include "orders/Desky.h"
#include "orders/Materialy.h"
#include "orders/Prislusenstvi.h"
#include "orders/Zakazky.h"

#include <functional>
#include <optional>

#include <QDialog>

class Database;
class QComboBox;
class QImage;
class QLabel;
class QProgressBar;
class QPushButton;
class QSlider;
class QStackedWidget;
class QTimer;

class FrmNovy : public QDialog, public Prubeh {
    Q_OBJECT
public:
    explicit FrmNovy(QWidget* rodic = nullptr);
    // With the price list and the schema library behind the entry frames: the name combos list
    // the price list's group, a key opens frmCenik (VM, VF, VH, EP) or frmSchema. Without them
    // the frames offer neither.
    FrmNovy(QWidget* rodic, Database& cenik, Prompt& prompt);

    // What the dialog is doing: the frame shown and whether it adds or edits (the old window's
    // Tag). Najeti lasts while an edit frame fills its fields: filling is no edit, so the save
    // button stays off.
    enum class Stav {
        Zadny,
        Najeti,
        NovaZakazka,
        UpraveniZakazky,
        NovaSestava,
        UpraveniSestavy,
        NovyFormat,
        UpraveniFormatu,
        NovaHrana,
        UpraveniHrany,
        NovyPM,
        UpraveniPM,
        NovePrislusenstvi,
        UpraveniPrislusenstvi,
        NovyOdrezek,
        UpraveniOdrezku,
        Kalkulace
    };
    Stav stav() const { return m_stav; }

    // fraVolbaNP: the formats with boards and the variant counts; returns false on "Zpět".
    struct VolbaNP {
        double IDFormatuNP = 0;
        ZpusobNP zpusob = ZpusobNP::Kombinovane;
        int VolbaNPDeska = 0;
    };
    // srovnej, when given, makes each way's plan of the chosen format for tblSrovnani.
    bool zvolNP(const std::vector<FormatNP>& formaty, const std::vector<int>& pocetDesek, VolbaNP& volba,
                TabulkaSrovnani::Vypocet srovnej = {});

    // fraOptimalizace: shows the progress frame and, from a single-shot timer inside the modal
    // dialog, runs beh; the dialog closes when beh returns or Storno is pressed.
    void optimalizuj(ZpusobNP zpusob, const std::function<void()>& beh);
    bool storno() const { return m_storno; }

    // The entry frames. ulozit is called by the frame's save button with what was typed; its
    // answer says what the dialog does next. The dialog returns when it closes.
    enum class PoUlozeni { Odmitnuto, Dalsi, Zavrit };
    void zakazka(Stav stav, const QString& nazev, const QString& poznamka,
                 const std::function<PoUlozeni(const QString&, const QString&)>& ulozit);
    void sestava(Stav stav, const Zakazky::Sestava& s, const std::function<PoUlozeni(const Zakazky::Sestava&)>& ulozit);
    void material(Stav stav, const Materialy::Material& m, const std::function<PoUlozeni(const Materialy::Material&)>& ulozit);
    // formaty and hrany are the combos' texts; the save gets them back as typed.
    struct TextyDesky {
        QString format;
        QString hrany[4] = {};
    };
    void deska(Stav stav, const QStringList& formaty, const QStringList& hrany, const std::vector<Materialy::Material>& pasky,
               const Desky::Deska& d, const TextyDesky& texty,
               const std::function<PoUlozeni(const Desky::Deska&, const TextyDesky&)>& ulozit);

    // fraNSklad: a new offcut (NovyOdrezek, the fields emptied after each good save) or the edit
    // of one.
    void odrezek(Stav stav, const Sklad::Odrezek& o, const std::function<PoUlozeni(const Sklad::Odrezek&)>& ulozit);

    // fraPřís: an accessory (NovePrislusenstvi, kept open for a series; UpraveniPrislusenstvi). The name combo
    // lists the price list's names; choosing one asks zCeniku for its price and unit.
    void prislusenstvi(Stav stav, const QStringList& nazvy, const QStringList& jednotky, const Prislusenstvi::Polozka& p,
                       const std::function<std::optional<Prislusenstvi::Polozka>(const QString&)>& zCeniku,
                       const std::function<PoUlozeni(const Prislusenstvi::Zadani&)>& ulozit);

    // fraKalkulace: the order's assemblies as the tree shows them, all selected, for the report
    // named vypis; the rows chosen, or nothing when the dialog was left by Zpět.
    std::optional<QList<int>> kalkulace(const QString& vypis, const QStringList& sestavy);

    // Prubeh
    void popisek(const QString& text) override;
    void hodnota(double h) override;
    double maximum() const override;
    void zobraz() override;
    bool prerusit() override;

private:
    void vytvorOptimalizaci();
    void ukaz(QWidget* ramec, const QString& titulek, int navic);

    // The names of a price-list group ("PM", "H", "P") in the saved order; empty without one.
    QStringList nazvyCeniku(const QString& vyber) const;
    // A button that opens frmCenik with the caller's key and hands the chosen item to prevezmi.
    QPushButton* tlacitkoCeniku(const QString& klic,
                                const std::function<void(const QString& nazev, double cena, const QString& jednotka)>& prevezmi);
    // A name chosen from the combo's drop-down list hands the price-list item to prevezmi, as
    // the button does (a typed name brings nothing).
    void prevezmiZCeniku(QComboBox* nazev,
                         const std::function<void(const QString& nazev, double cena, const QString& jednotka)>& prevezmi);
    // A button that opens frmSchema on the schema in lblSchema and puts the choice there.
    QPushButton* tlacitkoSchematu(QLabel* lblSchema, QLabel* imgSchema);
    void ukazSchema(int ide, QLabel* imgSchema) const;

    Database* m_cenik = nullptr;
    Prompt* m_prompt = nullptr;
    QStackedWidget* m_ramce;
    QWidget* m_fraVolbaNP;
    QComboBox* m_cmbMaterialNP;
    QComboBox* m_cmbZpusobRezani;
    QSlider* m_slVolba;
    TabulkaSrovnani* m_tblSrovnani;
    QWidget* m_fraOptimalizace;
    QLabel* m_lblNP;
    QProgressBar* m_progressBar1;
    QLabel* m_imgIkona;
    QTimer* m_timIkona;
    QPoint m_ikonaPozice;
    bool m_storno = false;
    Stav m_stav = Stav::Zadny;
};
