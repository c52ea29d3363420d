#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "review/remark_row.hpp"

namespace korven::review {

/// Something missing or odd about a project, in words.
struct Osservazione {
    std::string_view codice;  ///< of the table
    Peso peso = Peso::daVedere;
    std::string testo;               ///< translated, one line
    std::vector<std::string> campi;  ///< names of the fields in question: "phiStrato[2]"
    std::string_view guida;          ///< name of the page of the help

    [[nodiscard]] bool impedisce() const { return peso == Peso::impedisce; }
};

using Osservazioni = std::vector<Osservazione>;

/// The stable word for a weight, in every language the same: "impedisce", "pericolo", "da vedere".
[[nodiscard]] std::string_view parola(Peso peso);

/// The word for it that people read, an Italian key: "impedisce il calcolo", "pericolo", "da
/// vedere".
[[nodiscard]] std::string_view parolaMostrata(Peso peso);

/// How many of a weight there are.
[[nodiscard]] int quante(const Osservazioni& osservazioni, Peso peso);

/// Sorts by weight, the heaviest first, else in the order in which they were found.
void perPeso(Osservazioni& osservazioni);

/// True if nothing found prevents a run.
[[nodiscard]] bool calcolabile(const Osservazioni& osservazioni);

}  // namespace korven::review
