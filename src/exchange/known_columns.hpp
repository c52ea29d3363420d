#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "exchange/layer_rows.hpp"

namespace korven::exchange {

/// What a cell at the head of a column says.
struct NomeColonna {
    std::optional<Colonna> colonna;  ///< none: a column of something else
    bool spessore = false;           ///< it holds thicknesses; its column is the depth
    bool delCampo = false;           ///< it is the name of the field
    std::string unita;               ///< that it gives in brackets, small letters; may be empty
    bool unitaGiusta = true;         ///< the one of the editor, or none
};

/// Reads the name of a column: that of the field ("phiStrato"), what the column is called in any of
/// the six languages ("Kohäs."), or an Italian or English word for it ("Friction angle"), whatever
/// its case, blanks and points, with or without its unit in brackets, "[kN/m²]" or "(kPa)".
[[nodiscard]] NomeColonna leggiNomeColonna(std::string_view cella);

}  // namespace korven::exchange
