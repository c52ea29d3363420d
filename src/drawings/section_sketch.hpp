#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "masks/edited_section.hpp"
#include "plot/geometry.hpp"

// The sketch beside the fields of the section form: the section in plan, the wall running up the
// sheet with its uphill side to the left, and at each dimension the symbol of its field. Lines and
// texts on a sheet of 120 by 100 units, y upward, without a device.

namespace korven::drawings {

inline constexpr double larghezzaSchizzo = 120;
inline constexpr double altezzaSchizzo = 100;
inline constexpr double corpoSchizzo = 4.6;  ///< size of the texts

enum class Segno {
    calcestruzzo,  ///< an area of concrete
    acciaio,       ///< an area of steel
    assente,       ///< an outline of what the values do not contain
    asse,          ///< an axis
    tratto,        ///< a line
};

struct LineaSchizzo {
    std::vector<plot::Punto> punti;
    bool chiusa = false;
    Segno segno = Segno::tratto;
};

struct CerchioSchizzo {
    plot::Punto centro;
    double raggio = 0;
    Segno segno = Segno::tratto;
};

enum class Appoggio { inizio, centro, fine };  ///< which part of a text lies at its point

/// The dimension of one field.
struct QuotaSchizzo {
    std::size_t campo = 0;  ///< of `masks::campiSezione`
    std::vector<plot::Tratto> linee;
    std::vector<plot::Punto> estremi;  ///< where the dimension begins and ends, slanted strokes
    plot::Punto testo;                 ///< on the base line
    Appoggio appoggio = Appoggio::centro;
    std::string scritta;
};

struct Schizzo {
    std::vector<LineaSchizzo> linee;     ///< painted in this order,
    std::vector<CerchioSchizzo> cerchi;  ///< then these
    std::vector<QuotaSchizzo> quote;     ///< one for each field of the frame
    bool inScala = false;                ///< drawn after the values
};

/// The letter for a measure of the section.
using SimboloMisura = std::string_view (*)(double project::Sezione::*misura);
/// That of its field in the form: "c1" is uphill, "c2" downhill.
[[nodiscard]] std::string_view simboloScheda(double project::Sezione::*misura);

/// The sketch of a section of the type `tipo`, whatever flags the section has. Where a value is
/// 0 or less the sketch takes one in a usual proportion to the others; where the values do not fit
/// each other (bars that do not fit into the wall, a tube without wall, proportions in which
/// nothing could be told apart) it is drawn after an example and not after them.
/// @param simbolo  of the dimensions
/// @pre a type of section: asserted
[[nodiscard]] Schizzo schizzoSezione(project::Parte tipo, const project::Sezione& sezione,
                                     SimboloMisura simbolo = simboloScheda);

/// What is written at a dimension: "c1 = 50" with the typed number, "c1" where that is 0. The bar
/// count shows, as its tenth, the number that the calculations use: "n = 8/10 = 0.8".
/// @param simbolo  of the field
[[nodiscard]] std::string scrittaQuota(std::size_t campo, const project::Sezione& sezione,
                                       SimboloMisura simbolo = simboloScheda);

}  // namespace korven::drawings
