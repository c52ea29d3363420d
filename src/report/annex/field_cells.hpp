#pragma once

#include <string>
#include <vector>

#include "dossier/dossier.hpp"
#include "project/field_table.hpp"
#include "tables/result_table.hpp"

// The fields of a project as cells: as they were typed and as the calculation takes them.

namespace korven::report {

/// A value of the project in the shown unit with seven digits, codes and flags in words, a layer's
/// description without its graphic code. The bars of a pile are as typed.
/// @param riga  of a column, from 1
[[nodiscard]] tables::Cella scritto(const project::DatiProgetto& dati, const project::Campo& campo,
                                    int riga = 1);

/// What a field is called in a document that has struts too, which people do not call anchors; a
/// flag by its caption, which tells more than "0 or -1".
[[nodiscard]] std::string nomeDetto(const project::Campo& campo);

/// Of the coefficient m of the modulus, which reads tonnes-force: no other unit is a root.
inline constexpr const char* unitaCoefficienteM = "√t/m²";

/// The unit that a value is shown in, with "/m" for what acts on a metre of wall.
[[nodiscard]] std::string unitaDetta(const project::Campo& campo);

/// What the calculation does with a field, beside its value.
struct Uso {
    bool letto = true;      ///< false: nothing that is computed reads it
    std::string nota = {};  ///< translated; empty where nothing is to be said
};
[[nodiscard]] Uso uso(const dossier::Fascicolo& fascicolo, const project::Campo& campo);

/// The value that the calculation takes, "-" for one that nothing reads.
[[nodiscard]] tables::Cella usato(const dossier::Fascicolo& fascicolo, const project::Campo& campo,
                                  int riga = 1);

}  // namespace korven::report
