#include "drawings/diagram_rows.hpp"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <iterator>

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

// Extremes of one result, times `fattore`, over all nodes of all stages.
Estremi estremi(const results::DatiRelazione& dati, FaseDisegnata::Valori valori,
                double fattore = 1) {
    Estremi e;
    for (const auto& fase : dati.fasi)
        for (int i = 1; i <= dati.nNodi; ++i) {
            const double valore = fattore * (fase.*valori)[i];
            e = {std::min(e.min, valore), std::max(e.max, valore)};
        }
    return e;
}

double pressioneAlPiede(const results::DatiRelazione& dati) {
    const results::Resistenza terreno =
        results::resistenzaNodo(dati.progetto, (dati.nNodi - 1) * dati.passo);
    return results::pressioniNodo(dati.fasi.back(), dati.nNodi, dati.progetto.metodoSpinte, terreno)
        .limitiM.passiva;
}

double spostamentoEstremo(const results::DatiRelazione& dati) {
    const auto [min, max] = estremi(dati, &Fase::yNodo, unita::spostamento.fattore);
    return std::fabs(min) > max ? min : max;
}

double momentoMassimo(const results::DatiRelazione& dati) {
    const auto [min, max] = estremi(dati, &Fase::momentoNodo);
    return std::max(std::fabs(max), std::fabs(min));
}

double taglioMassimo(const results::DatiRelazione& dati) { return dati.Vmax; }

// The axis of the displacements is divided in the unit that is shown, all others in the stored one.
constexpr project::Unita centimetri{unita::spostamento.mostrata, unita::spostamento.mostrata};

constexpr RigaDiagramma righe[] = {
    {Diagramma::pressioni,
     {"pressioni", "pressures"},
     unita::pressione,
     "DIAGRAMMA DELLE PRESSIONI",
     -1,
     pressioneAlPiede,
     [](const FaseDisegnata& fase) { fase.pressioni(); }},
    {Diagramma::spostamenti,
     {"spostamenti", "displacements"},
     centimetri,
     "DIAGRAMMA DEGLI SPOSTAMENTI",
     1,
     spostamentoEstremo,
     [](const FaseDisegnata& fase) { fase.nodi(&Fase::yNodo, unita::spostamento.fattore); }},
    {Diagramma::momenti,
     {"momenti", "moments"},
     unita::momento,
     "DIAGRAMMA DEI MOMENTI",
     1,
     momentoMassimo,
     [](const FaseDisegnata& fase) { fase.nodi(&Fase::momentoNodo); }},
    {Diagramma::taglio,
     {"taglio", "shear"},
     unita::forza,
     "DIAGRAMMA DEL TAGLIO",
     1,
     taglioMassimo,
     [](const FaseDisegnata& fase) { fase.taglio(); }},
};

}  // namespace

std::span<const RigaDiagramma> diagrammi() { return righe; }

const RigaDiagramma& rigaDiagramma(Diagramma diagramma) {
    const auto* riga = std::find_if(std::begin(righe), std::end(righe),
                                    [=](const auto& r) { return r.diagramma == diagramma; });
    assert(riga != std::end(righe));
    return *riga;
}

}  // namespace korven::drawings
