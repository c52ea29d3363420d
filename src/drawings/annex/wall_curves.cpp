#include "drawings/annex/wall_curves.hpp"

#include <iterator>
#include <utility>

#include "base/translated_texts.hpp"
#include "live/view.hpp"
#include "scene/curve_data.hpp"

namespace korven::drawings {

namespace {

using base::traduttore;
using live::Curva;
using live::PareteViva;
using scene::Ruolo;
using scene::Tratteggio;

constexpr double spessoreSottile = 0.7, spessoreSecondo = 1.5, spessoreValle = 1.2;  // [px]

constexpr Curva curveInviluppo[] = {Curva::momento, Curva::taglio, Curva::spostamento};

DatiPannello pannello(const scene::DatiCurva& dati) {
    DatiPannello p;
    p.titolo = traduttore(dati.titolo);
    p.unita = dati.unita;
    return p;
}

CurvaPannello curva(const scene::Serie& serie) {
    CurvaPannello c;
    c.valori = serie.valori;
    c.z = serie.z;
    return c;
}

// The two sides of an envelope, each with one peak; nothing where no stage stands.
struct Bordi {
    CurvaPannello minimo, massimo;
};
std::vector<Bordi> bordi(const scene::DatiCurva& dati) {
    if (dati.serie.size() != 2) return {};
    Bordi b{curva(dati.serie[0]), curva(dati.serie[1])};
    b.minimo.massimo = false;
    b.massimo.minimo = false;
    return {std::move(b)};
}

// Which stage has each value of an envelope: the points of both are those of one wall.
std::vector<int> fasiDi(const PareteViva& parete, Curva quale, const std::vector<double>& bordo) {
    std::vector<int> fasi(bordo.size(), 0);
    for (int k = parete.fasiInEquilibrio(); k >= 1; --k) {
        const auto dati = scene::datiCurva(parete, k, quale);
        if (dati.serie.size() != 1) continue;
        for (std::size_t i = 0; i < bordo.size(); ++i)
            if (dati.serie[0].valori[i] == bordo[i]) fasi[i] = k;
    }
    return fasi;
}

}  // namespace

std::vector<DatiPannello> pannelliFase(const PareteViva& parete, int fase) {
    std::vector<DatiPannello> tutti;
    for (const Curva quale :
         {Curva::pressioni, Curva::spostamento, Curva::momento, Curva::taglio}) {
        const auto dati = scene::datiCurva(parete, fase, quale);
        DatiPannello& p = tutti.emplace_back(pannello(dati));
        p.versoScavo = quale == Curva::spostamento;
        for (const scene::Serie& serie : dati.serie) {
            CurvaPannello& c = p.curve.emplace_back(curva(serie));
            c.linea = serie.linea;
            if (serie.riempita) c.fondo = serie.fondo;
            if (serie.linea == Ruolo::acqua) c.tratteggio = Tratteggio::punti;
            if (serie.linea == Ruolo::curvaValle) {
                c.tratteggio = Tratteggio::linee;
                c.spessore = spessoreValle;
            }
            if (!serie.nome.empty()) c.nome = traduttore(serie.nome);
        }
    }
    return tutti;
}

std::vector<DatiPannello> pannelliInviluppo(const PareteViva& parete) {
    std::vector<DatiPannello> tutti;
    for (const Curva quale : curveInviluppo) {
        const auto dati = scene::datiCurva(parete, 0, quale);
        DatiPannello& p = tutti.emplace_back(pannello(dati));
        p.versoScavo = quale == Curva::spostamento;
        for (Bordi& b : bordi(dati)) {
            for (int k = 1; k <= parete.fasiInEquilibrio(); ++k)
                for (const scene::Serie& serie : scene::datiCurva(parete, k, quale).serie) {
                    CurvaPannello& c = p.curve.emplace_back(curva(serie));
                    c.linea = Ruolo::quota;
                    c.spessore = spessoreSottile;
                    c.massimo = c.minimo = false;
                }
            b.minimo.fasi = fasiDi(parete, quale, b.minimo.valori);
            b.massimo.fasi = fasiDi(parete, quale, b.massimo.valori);
            p.fasciaDa = static_cast<int>(p.curve.size());
            p.fasciaA = p.fasciaDa + 1;
            p.curve.push_back(std::move(b.minimo));
            p.curve.push_back(std::move(b.massimo));
        }
    }
    return tutti;
}

std::vector<DatiPannello> pannelliConfronto(const PareteViva& a, const PareteViva& b,
                                            const std::array<std::string, 2>& nomi) {
    std::vector<DatiPannello> tutti;
    for (const Curva quale : curveInviluppo) {
        DatiPannello& p = tutti.emplace_back(pannello(scene::datiCurva(a, 0, quale)));
        p.versoScavo = quale == Curva::spostamento;
        for (const PareteViva* parete : {&a, &b}) {
            const bool prima = parete == &a;
            for (Bordi& uno : bordi(scene::datiCurva(*parete, 0, quale)))
                for (CurvaPannello* c : {&uno.minimo, &uno.massimo}) {
                    c->prima = prima ? "A " : "B ";
                    if (!prima) c->tratteggio = Tratteggio::linee;
                    if (!prima) c->spessore = spessoreSecondo;
                    if (c == &uno.massimo && quale == Curva::momento) c->nome = nomi[prima ? 0 : 1];
                    p.curve.push_back(std::move(*c));
                }
        }
    }
    return tutti;
}

}  // namespace korven::drawings
