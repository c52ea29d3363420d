#include "drawings/diagram_rows.hpp"

#include <algorithm>
#include <cmath>

#include "drawings/diagram_stage.hpp"
#include "results/working_pressures.hpp"

namespace korven::drawings {

namespace {

using analysis::Diagramma;
using Fase = analysis::RisultatiFase;
namespace unita = project::unita;

struct Estremi {
    double min = 1e30, max = -1e30;
};

// Extremes of one result over all nodes of all stages.
Estremi estremi(const results::DatiRelazione& dati,
                analysis::VettoreNodi analysis::RisultatiFase::*colonna, double fattore) {
    Estremi e;
    for (const auto& fase : dati.fasi)
        for (int i = 1; i <= dati.nNodi; ++i) {
            const double valore = fattore * (fase.*colonna)[i];
            e = {std::min(e.min, valore), std::max(e.max, valore)};
        }
    return e;
}

double pressioneAlPiede(const results::DatiRelazione& dati, double) {
    const results::Resistenza terreno =
        results::resistenzaNodo(dati.progetto, (dati.nNodi - 1) * dati.passo);
    return results::pressioniNodo(dati.fasi.back(), dati.nNodi, dati.progetto.metodoSpinte, terreno)
        .limitiM.passiva;
}

double spostamentoEstremo(const results::DatiRelazione& dati, double fattore) {
    const auto [min, max] = estremi(dati, &Fase::yNodo, fattore);
    return std::fabs(min) > max ? min : max;
}

double momentoMassimo(const results::DatiRelazione& dati, double fattore) {
    const auto [min, max] = estremi(dati, &Fase::momentoNodo, fattore);
    return std::max(std::fabs(max), std::fabs(min));
}

double taglioMassimo(const results::DatiRelazione& dati, double) { return dati.Vmax; }

// In the order of their numbers.
constexpr RigaDiagramma righe[] = {
    {Diagramma::pressioni, unita::pressione, "DIAGRAMMA DELLE PRESSIONI", false, -1,
     pressioneAlPiede, [](const FaseDisegnata& fase, double) { fase.pressioni(); }},
    {Diagramma::spostamenti, unita::spostamento, "DIAGRAMMA DEGLI SPOSTAMENTI", true, 1,
     spostamentoEstremo,
     [](const FaseDisegnata& fase, double fattore) { fase.nodi(&Fase::yNodo, fattore); }},
    {Diagramma::momenti, unita::momento, "DIAGRAMMA DEI MOMENTI", false, 1, momentoMassimo,
     [](const FaseDisegnata& fase, double fattore) { fase.nodi(&Fase::momentoNodo, fattore); }},
    {Diagramma::taglio, unita::forza, "DIAGRAMMA DEL TAGLIO", false, 1, taglioMassimo,
     [](const FaseDisegnata& fase, double) { fase.taglio(); }},
};

}  // namespace

const RigaDiagramma& rigaDiagramma(Diagramma diagramma) {
    return righe[static_cast<std::size_t>(diagramma) - 1];
}

}  // namespace korven::drawings
