#include "batch/run/series_plan.hpp"

#include <utility>

#include "batch/run/failure.hpp"
#include "project/project_data.hpp"
#include "studies/plan/fault_words.hpp"
#include "studies/plan/long_plan.hpp"
#include "studies/plan/typed_grid.hpp"
#include "studies/plan/typed_samples.hpp"

namespace korven::batch {

namespace {

using project::Progetto;
using studies::DifettoPiano;

// A value that its field does not take is the same fault as in a plan; all else is typed wrong.
int codice(const DifettoPiano& difetto) {
    const bool valore =
        difetto.rifiuto && difetto.rifiuto->motivo >= project::MotivoRifiuto::nonNumero;
    return valore ? ingressoRotto : usoErrato;
}

template <class T>
VariantiScelte scelte(studies::Letto<T> letto) {
    if (const auto* difetto = std::get_if<DifettoPiano>(&letto))
        return {nullptr, codice(*difetto), studies::parole(*difetto)};
    return {std::make_unique<T>(std::get<T>(std::move(letto))), fatto, {}};
}

// All that is wrong with the file, a line a fault.
VariantiScelte delPiano(const std::string& file) {
    auto letto = studies::PianoLungo::leggi(Progetto, file);
    if (letto.piano) return {std::move(letto.piano), fatto, {}};
    std::string perche = file;
    for (const DifettoPiano& difetto : letto.difetti) perche += "\n  " + studies::parole(difetto);
    return {nullptr, ingressoRotto, perche};
}

}  // namespace

VariantiScelte variantiScelte(const OpzioniSerie& serie) {
    if (!serie.piano.empty()) return delPiano(serie.piano);
    if (!serie.griglie.empty()) return scelte(studies::leggiGriglia(Progetto, serie.griglie));
    VariantiScelte casuali = scelte(studies::leggiCampioni(
        Progetto,
        {.leggi = serie.leggi,
         .rho = serie.rho,
         .numero = serie.campioni,
         .seme = serie.seme,
         .disegno = serie.ipercubo ? studies::Disegno::ipercubo : studies::Disegno::casuale}));
    casuali.campioni = true;
    casuali.indipendenti = !serie.ipercubo;
    return casuali;
}

}  // namespace korven::batch
