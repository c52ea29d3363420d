#include "studies/questions/lock_off.hpp"

#include <algorithm>
#include <boost/math/tools/toms748_solve.hpp>
#include <cassert>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <utility>

#include "analysis/anchors_in_place.hpp"
#include "equilibrium/staged_equilibrium.hpp"
#include "live/wall.hpp"
#include "project/field_table.hpp"
#include "project/typed_field.hpp"
#include "safety/words.hpp"

namespace korven::studies {

namespace {

using equilibrium::EsitoFase;
using project::DatiProgetto;

// The force is found within this of the wanted one, in t; the file keeps prestresses to 1e-7.
constexpr double tolleranza = 1e-8;
constexpr std::uintmax_t massimiPassi = 200;

struct Punto {
    double pretensione, forza;
};

class Ricerca {
 public:
    Ricerca(DatiProgetto dati, int nSeg, int tirante)
        : dati_(std::move(dati)), nSeg_(nSeg), tirante_(tirante) {}

    [[nodiscard]] int primaFase() const {
        for (int k = 1; k <= dati_.nFasi; ++k)
            if (analysis::tirantiInOpera(dati_, k) >= tirante_) return k;
        return 0;
    }

    // The first of the stages before `fase` that is no equilibrium; 0 if all are.
    [[nodiscard]] int caduta(int fase) const {
        equilibrium::EquilibrioParete parete(dati_, nSeg_);
        for (int k = 1; k < fase; ++k)
            if (parete.calcola(k).esito != EsitoFase::equilibrio) return k;
        return 0;
    }

    // Nothing where the stage is no equilibrium.
    [[nodiscard]] std::optional<double> forza(double pretensione, int fase) {
        dati_.pretTirante[tirante_] = pretensione;
        equilibrium::EquilibrioParete parete(dati_, nSeg_);
        for (int k = 1; k <= fase; ++k) {
            const auto& calcolata = parete.calcola(k);
            if (calcolata.esito != EsitoFase::equilibrio) return {};
            if (k == fase) return calcolata.tiri.at(static_cast<std::size_t>(tirante_) - 1);
        }
        return {};
    }

    // Closes in on the end of the prestresses that the stage bears, from one that it does.
    [[nodiscard]] Punto confine(Punto dentro, double fuori, int fase) {
        for (std::uintmax_t i = 0; i < massimiPassi; ++i) {
            const double mezzo = (dentro.pretensione + fuori) / 2;
            if (mezzo == dentro.pretensione || mezzo == fuori) break;
            if (const auto T = forza(mezzo, fase))
                dentro = {mezzo, *T};
            else
                fuori = mezzo;
        }
        return dentro;
    }

    void segui(Bloccaggio& esito) {
        dati_.pretTirante[tirante_] = esito.pretensione;
        const live::PareteViva parete = live::calcola(dati_, nSeg_);
        for (int k = esito.fase; k <= parete.fasiInEquilibrio(); ++k)
            esito.forze.push_back(parete.fase(k)->tiri.at(static_cast<std::size_t>(tirante_) - 1));
        if (parete.perche) esito.perche = safety::inBreve(*parete.perche);
        if (!parete.rifiuto.empty()) esito.perche = parete.rifiuto;
    }

 private:
    DatiProgetto dati_;
    int nSeg_, tirante_;
};

// From none to the largest that may be typed, closest around the wanted force, which is the
// prestress of an anchor that does not give.
std::vector<double> tentativi(double forza) {
    const project::Campo& campo = project::campo(&DatiProgetto::pretTirante);
    const double massima = conservato(campo, campo.limiti->massimo);
    std::vector<double> tutti{0};
    for (const double quota : {0.125, 0.25, 0.5, 0.75, 0.9, 1.0, 1.1, 1.5, 2.0, 4.0, 8.0, 16.0})
        if (quota * forza < massima) tutti.push_back(quota * forza);
    tutti.push_back(massima);
    return tutti;
}

// The prestresses that the stage bears, ends included, as far as the attempts show them.
std::vector<Punto> campo(Ricerca& ricerca, double forza, int fase) {
    const std::vector<double> pretensioni = tentativi(forza);
    std::vector<Punto> stanno;
    std::optional<double> prima;  // the attempt before, if the stage does not bear it
    for (const double p : pretensioni) {
        const auto T = ricerca.forza(p, fase);
        if (!T && !stanno.empty()) {
            stanno.push_back(ricerca.confine(stanno.back(), p, fase));
            return stanno;
        }
        if (T && stanno.empty() && prima) stanno.push_back(ricerca.confine({p, *T}, *prima, fase));
        if (T) stanno.push_back({p, *T});
        prima = p;
    }
    return stanno;
}

double radice(Ricerca& ricerca, const Punto& sotto, const Punto& sopra, double forza, int fase) {
    if (sotto.forza == forza) return sotto.pretensione;
    std::uintmax_t passi = massimiPassi;
    // Between two prestresses that the stage bears it bears all; a lost number ends the search.
    const auto scarto = [&](double p) { return ricerca.forza(p, fase).value_or(forza) - forza; };
    const auto vicini = [](double a, double b) { return std::abs(b - a) < tolleranza; };
    const auto [a, b] =
        boost::math::tools::toms748_solve(scarto, sotto.pretensione, sopra.pretensione,
                                          sotto.forza - forza, sopra.forza - forza, vicini, passi);
    return (a + b) / 2;
}

}  // namespace

Bloccaggio cercaBloccaggio(const DatiProgetto& dati, int nSeg, int tirante, double forza) {
    assert(tirante >= 1 && tirante <= dati.nTiranti && forza > 0);
    Ricerca ricerca(dati, nSeg, tirante);
    Bloccaggio esito;
    esito.fase = ricerca.primaFase();
    if (esito.fase == 0) return {EsitoBloccaggio::maiInOpera};
    if (const int caduta = ricerca.caduta(esito.fase)) return {EsitoBloccaggio::primaCade, caduta};
    const std::vector<Punto> punti = campo(ricerca, forza, esito.fase);
    if (punti.empty()) return {EsitoBloccaggio::maiInPiedi, esito.fase};
    esito.pretMinima = punti.front().pretensione;
    esito.pretMassima = punti.back().pretensione;
    esito.forzaMinima = punti.front().forza;
    esito.forzaMassima = punti.back().forza;
    const auto sopra = std::find_if(punti.begin(), punti.end(),
                                    [forza](const Punto& p) { return p.forza >= forza; });
    if (sopra == punti.end()) {
        esito.esito = EsitoBloccaggio::sopra;
        return esito;
    }
    if (sopra == punti.begin() && sopra->forza > forza) {
        esito.esito = EsitoBloccaggio::sotto;
        return esito;
    }
    const Punto& sotto = sopra == punti.begin() ? *sopra : *std::prev(sopra);
    esito.pretensione = project::comeNelFile(radice(ricerca, sotto, *sopra, forza, esito.fase));
    const auto ottenuta = ricerca.forza(esito.pretensione, esito.fase);
    if (!ottenuta) return {EsitoBloccaggio::maiInPiedi, esito.fase};
    esito.forza = *ottenuta;
    ricerca.segui(esito);
    return esito;
}

}  // namespace korven::studies
