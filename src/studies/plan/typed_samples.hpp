#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "project/project_data.hpp"
#include "studies/plan/fault.hpp"
#include "studies/plan/samples.hpp"

// Laws and correlations as they are typed. Blanks count nowhere.

namespace korven::studies {

/// "phiStrato[1]=normale(32,2)": the name of a law in either language with its parameters
/// (`nomiLeggi`).
[[nodiscard]] Letto<CampoCasuale> leggiLegge(const project::DatiProgetto& dati,
                                             std::string_view testo);

/// The correlation of the normal scores of two fields.
struct RhoScritto {
    project::CampoNominato prima, seconda;
    double rho;
};

/// "phiStrato[1],coesione[1]=-0.5".
[[nodiscard]] Letto<RhoScritto> leggiRho(const project::DatiProgetto& dati, std::string_view testo);

/// Samples as they are typed.
struct CampioniScritti {
    std::vector<std::string> leggi;  ///< one at least: asserted
    std::vector<std::string> rho;
    std::uint64_t numero = 0;
    std::uint64_t seme = 1;
    Disegno disegno = Disegno::casuale;
};

[[nodiscard]] Letto<Campioni> leggiCampioni(const project::DatiProgetto& dati,
                                            const CampioniScritti& scritti);

}  // namespace korven::studies
