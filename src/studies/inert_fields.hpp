#pragma once

#include <cstddef>
#include <vector>

#include "project/project_data.hpp"
#include "studies/variant.hpp"
#include "studies/variants.hpp"

namespace korven::studies {

/// A field that varies and changes nothing.
struct CampoSenzaEffetto {
    std::size_t campo = 0;  ///< place among the fields of the variants
    double da = 0, a = 0;   ///< least and largest value that was tried, in the shown unit
};

/// Fields that change no result of some variants in which nothing but their value is changed, such
/// as a water level that every stage has of its own, or the stiffness factor of another section.
///
/// Eight variants at most are tried, evenly spread over all, each that stands with the values that
/// the field has in the others; of those that fall nothing can be told. A field that matters only
/// between the values that were tried is named too: it is a hint, no proof.
[[nodiscard]] std::vector<CampoSenzaEffetto> campiSenzaEffetto(const Varianti& varianti,
                                                               const project::DatiProgetto& dati,
                                                               const Domanda& domanda);

/// True where the bending stiffness stays as typed although that of the section varies among the
/// same eight variants: resistances vary then, displacements do not.
[[nodiscard]] bool rigidezzaScrittaResta(const Varianti& varianti,
                                         const project::DatiProgetto& dati, const Domanda& domanda);

}  // namespace korven::studies
