#pragma once

#include <shared_mutex>
#include <string>

namespace korven::python {

/// Held, shared, by whoever makes sentences outside of the interpreter's lock; alone by whoever
/// changes what all of them rely on: the language, and what a review takes from the process.
[[nodiscard]] std::shared_mutex& parole();

/// Chooses the language of all sentences, with the texts of the program folder. Italian, the one at
/// the start, needs none.
/// @param sigla  "ita", "deu", "fra", "esp", "eng", "por"
/// @throws ErroreCampo for another, base::ErroreFile without the texts
/// @pre `parole` is held alone
void scegliLingua(const std::string& sigla);

/// The tag of the language in force.
[[nodiscard]] std::string linguaScelta();

}  // namespace korven::python
