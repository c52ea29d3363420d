#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "factors/combinations.hpp"

// What a wall under combinations comes to, in words, translated, for every output that tells it.

namespace korven::factors {

/// The stable word for what is checked, in every language the same: "momento_positivo", "terra".
[[nodiscard]] std::string_view parola(Oggetto oggetto);
/// "Flessione, momento positivo".
[[nodiscard]] std::string parole(Oggetto oggetto);

/// The stable word: "permanente", "variabile".
[[nodiscard]] std::string_view parola(Natura natura);

/// What the loads were taken for, in a sentence.
[[nodiscard]] std::string parole(const NaturaCarichi& natura);

/// "verificata", "NON verificata", "nessun equilibrio"; "in equilibrio" where nothing is checked.
[[nodiscard]] std::string esito(const EsitoCombinazione& combinazione);

/// Why it does not stand, in one line with its name; empty for one that does.
[[nodiscard]] std::string caduta(const EsitoCombinazione& combinazione);

/// The largest factored shear, of a section whose shear no check looks at: "Da verificare a parte
/// con la norma: taglio di progetto 387.83 kN/m (A2+M2+R1, fase 5, z = 9.00 m)."; empty without a
/// combination that stands.
[[nodiscard]] std::string taglioDaVerificare(const Combinazioni& combinazioni);

/// What becomes of all of them: "All stand and all checks are met.", or the
/// names of those that are not.
[[nodiscard]] std::string verdetto(const Combinazioni& combinazioni);

/// Each with what becomes of it, in a line: "EN ..., DA1: DA1-1 NON verificata; DA1-2 verificata".
[[nodiscard]] std::string esiti(const Combinazioni& combinazioni);

/// What whoever uses the numbers has to know of them, a sentence each.
/// @param dati  the project
[[nodiscard]] std::vector<std::string> note(const Combinazioni& combinazioni,
                                            const project::DatiProgetto& dati);

}  // namespace korven::factors
