#pragma once

#include <string>
#include <string_view>

#include "studies/questions/length_search.hpp"
#include "studies/questions/lock_off.hpp"

// The answers to the questions of designers in words, translated: forces in kN/m, displacements in
// mm.

namespace korven::studies {

/// The stable word for it, in every language the same: "equilibrio", "riduzione", "spostamento",
/// "flessione", "taglio".
[[nodiscard]] std::string_view parola(Criterio criterio);

/// What a length does not meet, shortly: "spostamento, taglio"; of one that meets all "soddisfa".
[[nodiscard]] std::string inBreve(const LunghezzaProvata& provata);

/// The same with the numbers and what is asked: "spostamento 35.0 mm nella fase 3, ammessi 30.0
/// mm"; of a wall that does not stand also why.
[[nodiscard]] std::string parole(const LunghezzaProvata& provata, const Criteri& chiesti);

/// What is asked of a length, with units: "equilibrio in ogni fase, spostamento al più 30 mm".
[[nodiscard]] std::string parole(const Criteri& chiesti);

/// Why a displacement can't be a criterion, translated: one of a metre and more is one that was
/// meant in millimetres; empty for one that can.
/// @param metri  as it is asked for
[[nodiscard]] std::string spostamentoSbagliato(double metri);

/// The answer in a sentence, and the criteria in another; of none why the longest wall tried is
/// none.
[[nodiscard]] std::string risposta(const RicercaLunghezza& ricerca, const Criteri& chiesti,
                                   const Scala& scala);

/// The stable word for it: "trovato", "mai_in_opera", "prima_cade", "mai_in_piedi", "sotto",
/// "sopra".
[[nodiscard]] std::string_view parola(EsitoBloccaggio esito);

/// The answer in a sentence; where there is none why, and which forces can be had.
/// @param forza  the one that was wanted [t]
[[nodiscard]] std::string risposta(const Bloccaggio& bloccaggio, int tirante, double forza);

}  // namespace korven::studies
