#include "costing/Vypisy.h"

#include "costing/Kalkulace.h"
#include "costing/KalkulaceZakazkyVypis.h"
#include "costing/SoupisProDilnuVypis.h"

VysledekVypisu SestavVypis(DruhVypisu druh, Dokument& d, Database& k, Database& cenik, const QString& zakazka,
                           const QStringList& nazvy, const QStringList& texty, const std::vector<Rezani::Format>& rezani)
{
    VysledekVypisu v;
    v.tabulky = {QStringLiteral("SoupisProKalkulaci"), QStringLiteral("SoupisProKalkulaciCelkem")};
    switch (druh) {
    case DruhVypisu::Zakazka:
        Kalkulace::NaplnKalkulaciZakazky(k, zakazka, nazvy, rezani);
        v.dan = KalkulaceZakazkyVypis(d, k, zakazka, texty);
        v.titulek = QString::fromUtf8(TitulekKalkulaceZakazky);
        v.tabulky.removeLast();
        break;
    case DruhVypisu::Sestavy:
    case DruhVypisu::Nabidka: {
        const bool nabidka = druh == DruhVypisu::Nabidka;
        Kalkulace::NaplnKalkulaciSestav(k, zakazka, nazvy, rezani);
        VysledekSestav r = KalkulaceSestavVypis(d, k, cenik, zakazka, texty, nabidka ? DruhSestav::Nabidka : DruhSestav::Kalkulace);
        v.dan = r.dan;
        v.sestavy = std::move(r.sestavy);
        v.titulek = QString::fromUtf8(nabidka ? TitulekCenoveNabidky : TitulekKalkulaceSestav);
        break;
    }
    case DruhVypisu::Nakup: {
        Kalkulace::NaplnKalkulaciMaterialu(k, zakazka, nazvy, rezani);
        VysledekNakupu r = NakupVypis(d, k, zakazka, texty);
        v.dan = r.dan;
        v.nakup = std::move(r.nakup);
        v.titulek = QString::fromUtf8(TitulekNakupu);
        break;
    }
    case DruhVypisu::Dilna:
    case DruhVypisu::DilnaSeSchematy:
        Kalkulace::NaplnSoupisProDilnu(k, zakazka, nazvy);
        SoupisProDilnuVypis(d, k, cenik, zakazka, druh == DruhVypisu::DilnaSeSchematy);
        v.titulek = QString::fromUtf8(TitulekSoupisuProDilnu);
        v.tabulky = {QStringLiteral("SoupisProDilnu")};
        break;
    }
    return v;
}
