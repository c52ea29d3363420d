#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "exchange/delimited_reader.hpp"
#include "exchange/layer_rows.hpp"
#include "project/field_table.hpp"

namespace korven::exchange {

/// The field of the project that a column of the layers is.
[[nodiscard]] const project::Campo& campoColonna(Colonna colonna);

/// What a column is called for people, with its unit, in the language in force: "Phi [°]".
[[nodiscard]] std::string nomeColonna(Colonna colonna);

/// The same in a language, 1 to 6.
[[nodiscard]] std::string nomeColonna(Colonna colonna, int lingua);

/// What thicknesses are called in a language, without a unit.
[[nodiscard]] std::string nomeSpessore(int lingua);

/// Which cell of a row holds what.
struct PostiColonne {
    static constexpr std::size_t nessuno = static_cast<std::size_t>(-1);

    std::array<std::size_t, numeroColonne> cella;  ///< of each column; `nessuno`: it is missing
    std::size_t spessore = nessuno;                ///< thickness [m], instead of the depth
    std::size_t celle = 0;                         ///< of a row: cells beyond have no column
    /// The names are those that this program writes; false: descriptions may stand without their
    /// code.
    bool descrizioneConCodice = true;

    std::vector<std::string> difetti;     ///< as in StratiLetti
    std::vector<std::string> avvertenze;  ///< columns that nothing is taken from
};

/// The places without a row of names: the columns in the order of the editor.
[[nodiscard]] PostiColonne postiSenzaNomi();

/// The places that a row of names tells (known_columns.hpp); a unit in brackets behind a name must
/// be the one of the editor. "Spessore" or "Thickness" stands for the depth.
[[nodiscard]] PostiColonne postiDaNomi(const RigaLetta& nomi);

/// How many of the cells of a row are names of columns.
[[nodiscard]] int nomiNoti(const RigaLetta& riga);

}  // namespace korven::exchange
