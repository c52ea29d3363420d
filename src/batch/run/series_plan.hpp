#pragma once

#include <memory>
#include <string>

#include "batch/options/choices.hpp"
#include "studies/variants.hpp"

namespace korven::batch {

/// The variants that the command line asks for, or why there are none.
struct VariantiScelte {
    std::unique_ptr<studies::Varianti> varianti;
    int codice = 0;             ///< exit code without them
    std::string perche;         ///< the reason, translated
    bool campioni = false;      ///< they are random
    bool indipendenti = false;  ///< and have no part in each other
};

/// Of `Progetto`.
/// @throws base::ErroreFile for a plan that can't be read
[[nodiscard]] VariantiScelte variantiScelte(const OpzioniSerie& serie);

}  // namespace korven::batch
