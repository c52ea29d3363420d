#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "drawings/hatch_code.hpp"

namespace korven::drawings {

/// The graphic code at the head of a layer's description, as `leggiDescrizione` reads it, taken
/// apart so that it can be changed and written again.
struct CodiceGrafico {
    std::vector<GruppoCampitura> gruppi;  ///< from the lowest to the one on top; empty: no hatch
    int colore = 1;                       ///< 1 to 21
    bool lineaAlPiede = true;
    std::string altro;  ///< what stands behind an "A", which nothing reads, with its letter
    bool operator==(const CodiceGrafico&) const = default;
};

/// Size step that a pattern is made for.
inline constexpr int passoNormale = 1;
inline constexpr int massimoPasso = 9;
inline constexpr int massimoColoreStrato = 21;

/// True when the first word of a description is a code: a number, or the letter of the colour with
/// one. The log takes any first word for a code; one that is none is a word of the text that the
/// user forgot to put a code before.
[[nodiscard]] bool haCodice(std::string_view descrStrato);

/// The code of a description; one without a code has no hatch.
[[nodiscard]] CodiceGrafico leggiCodice(std::string_view descrStrato);

/// The word of a code: "12005C3". Leading patterns that draw nothing are left out.
[[nodiscard]] std::string parolaCodice(const CodiceGrafico& codice);

/// The description with another code: the word of the old code is replaced, or the new one is put
/// in front where there was none; the text stays to the letter. A description that has this code
/// already, in whatever letters, is given back as it is.
[[nodiscard]] std::string conCodice(std::string_view descrStrato, const CodiceGrafico& codice);

}  // namespace korven::drawings
