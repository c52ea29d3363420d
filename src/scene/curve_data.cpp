#include "scene/curve_data.hpp"

#include <algorithm>
#include <array>
#include <cmath>

#include "live/envelope.hpp"

namespace korven::scene {

namespace {

using equilibrium::FaseEquilibrio;
using live::Curva;
using live::Inviluppo;

struct Voce {
    Curva curva;
    project::Unita unita;
    std::vector<double> FaseEquilibrio::*fase;
    live::Fascia Inviluppo::*inviluppo;
    std::string_view titolo;
};
const std::array<Voce, 4> voci{{
    {Curva::pressioni, project::unita::pressione, &FaseEquilibrio::monte, &Inviluppo::pressione,
     "Pressioni"},
    {Curva::spostamento, project::unita::spostamentoFine, &FaseEquilibrio::y, &Inviluppo::y,
     "Spostamento"},
    {Curva::momento, project::unita::momentoAlMetro, &FaseEquilibrio::momento, &Inviluppo::momento,
     "Momento"},
    {Curva::taglio, project::unita::forzaAlMetro, &FaseEquilibrio::taglio, &Inviluppo::taglio,
     "Taglio"},
}};

bool numeri(const Serie& serie) {
    return serie.valori.size() > 1 &&
           std::all_of(serie.valori.begin(), serie.valori.end(),
                       [](double v) { return std::isfinite(v) && std::fabs(v) < 1e12; });
}

std::vector<Serie> pressioni(const FaseEquilibrio& fase) {
    return {{fase.monte, Ruolo::curvaMonte, Ruolo::fondoMonte, true, "monte"},
            {fase.valle, Ruolo::curvaValle, Ruolo::fondoValle, true, "valle"},
            {fase.acqua, Ruolo::acqua, Ruolo::fondoAcqua, false, "acqua"}};
}

std::vector<Serie> serie(const live::PareteViva& parete, int fase, const Voce& voce) {
    if (fase == 0) {
        live::Inviluppo tutte = live::inviluppo(parete);
        live::Fascia& fascia = tutte.*voce.inviluppo;
        return {{std::move(fascia.minimo)}, {std::move(fascia.massimo)}};
    }
    const FaseEquilibrio* stato = parete.fase(fase);
    if (stato == nullptr) return {};
    if (voce.curva == Curva::pressioni) return pressioni(*stato);
    return {{stato->*voce.fase}};
}

}  // namespace

DatiCurva datiCurva(const live::PareteViva& parete, int fase, live::Curva curva) {
    const auto& voce = *std::find_if(voci.begin(), voci.end(),
                                     [&](const Voce& una) { return una.curva == curva; });
    const bool pressione = curva == Curva::pressioni;
    DatiCurva dati{voce.unita, voce.titolo, pressione || curva == Curva::spostamento,
                   serie(parete, fase, voce), fase == 0};
    if (pressione && fase == 0) dati.titolo = "Pressione netta";
    // Water that presses nowhere needs no line.
    std::erase_if(dati.serie, [&](const Serie& una) {
        return una.linea == Ruolo::acqua &&
               std::all_of(una.valori.begin(), una.valori.end(), [](double v) { return v == 0; });
    });
    if (!std::all_of(dati.serie.begin(), dati.serie.end(), numeri)) dati.serie.clear();
    return dati;
}

}  // namespace korven::scene
