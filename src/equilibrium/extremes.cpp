#include "equilibrium/extremes.hpp"

#include <cmath>

namespace korven::equilibrium {

namespace {

void perGrandezza(const Estremo& nuovo, Estremo& estremo) {
    if (std::fabs(nuovo.valore) > std::fabs(estremo.valore)) estremo = nuovo;
}

}  // namespace

Lato lato(const FaseEquilibrio& fase, std::size_t nodo, double valore) {
    if (fase.taglioSopra[nodo] == fase.taglioSotto[nodo]) return Lato::unico;
    return valore == fase.taglioSopra[nodo] ? Lato::sopra : Lato::sotto;
}

void aggiungi(const FaseEquilibrio& fase, double h, Estremi& estremi) {
    if (fase.esito != EsitoFase::equilibrio) return;
    for (std::size_t i = 0; i < fase.y.size(); ++i) {
        const double z = static_cast<double>(i) * h;
        perGrandezza({fase.y[i], z, fase.fase}, estremi.spostamento);
        const double T = fase.taglio[i];  // the larger of both sides
        perGrandezza({T, z, fase.fase, lato(fase, i, T)}, estremi.taglio);
        const Estremo M{fase.momento[i], z, fase.fase};
        if (M.valore > estremi.momentoMassimo.valore) estremi.momentoMassimo = M;
        if (M.valore < estremi.momentoMinimo.valore) estremi.momentoMinimo = M;
    }
    for (const double tiro : fase.tiri)
        if (tiro > estremi.tiro.valore) estremi.tiro = {tiro, 0, fase.fase};
}

Estremi estremi(const FaseEquilibrio& fase, double h) {
    Estremi e;
    aggiungi(fase, h, e);
    return e;
}

Estremi estremi(const std::vector<FaseEquilibrio>& fasi, double h) {
    Estremi e;
    for (const FaseEquilibrio& fase : fasi) aggiungi(fase, h, e);
    return e;
}

}  // namespace korven::equilibrium
