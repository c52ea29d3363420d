#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "project/field_table.hpp"
#include "review/project_review.hpp"

// The parts of a project's review: the list that its checks fill, and the checks by subject. A
// field is called as editor and report call it and its value shown in their unit.

namespace korven::review {

class ElencoRilievi {
 public:
    void impedimento(std::string testo) { rilievi_.push_back({true, std::move(testo)}); }
    void avviso(std::string testo) { rilievi_.push_back({false, std::move(testo)}); }
    /// What prevents a run first, else in the order in which it was found; empties the list.
    [[nodiscard]] std::vector<Rilievo> ordinato();

 private:
    std::vector<Rilievo> rilievi_;
};

/// "strato 3: ...", both texts being Italian keys.
[[nodiscard]] std::string rigaNumerata(std::string_view nome, int numero, std::string_view testo);

/// A text followed by the value in question, in brackets.
[[nodiscard]] std::string conValoreTraParentesi(std::string testo, double valore);

/// What a remark calls a field: its caption and unit or, where a caption says too little or too
/// much outside its form, what it is; translated.
[[nodiscard]] std::string nomeCampo(const project::Campo& campo);

/// "Gamma [kN/m³] = 18" for a stored 1.8.
[[nodiscard]] std::string campoEValore(const project::Membro& membro, double conservato);

/// "strato 3: Gamma [kN/m³] = 18: ...": a row of a column, by its stored number.
/// @param testo  Italian key
[[nodiscard]] std::string rigaCampo(const project::DatiProgetto& dati,
                                    const project::Membro& colonna, int numero,
                                    std::string_view testo);

/// "strato 3" for a column of the layers.
[[nodiscard]] std::string nomeRiga(const project::Campo& colonna, int numero);

[[nodiscard]] bool intero(double valore);

/// Weights above this can't be t/m3 [t/m3]: they were meant as kN/m3.
inline constexpr double massimoPeso = 5;

/// The layers, the ground and the water.
void controlloTerreno(const project::DatiProgetto& dati, ElencoRilievi& elenco);

/// The soil values of all stages, as a run would compute them.
/// @pre no input check fails: asserted
void controlloSuolo(const project::DatiProgetto& scritti, int nSeg, ElencoRilievi& elenco);

/// The fields whose shown value is larger than the stored one and no number any more.
void controlloMostrati(const project::DatiProgetto& dati, ElencoRilievi& elenco);

void controlloTiranti(const project::DatiProgetto& dati, ElencoRilievi& elenco);
void controlloFasi(const project::DatiProgetto& dati, ElencoRilievi& elenco);

/// The heading lines, of which report and drawings make something else than is typed.
void controlloTitoli(const project::DatiProgetto& dati, ElencoRilievi& elenco);

/// The descriptions of the layers, where the log has no room for them.
void controlloDescrizioni(const project::DatiProgetto& dati, ElencoRilievi& elenco);

/// The stiffness and the structural section.
void controlloSezione(const project::DatiProgetto& dati, ElencoRilievi& elenco);

}  // namespace korven::review
