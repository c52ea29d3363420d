#pragma once

#include <string>
#include <vector>

#include "live/live_project.hpp"

namespace korven::tables {

/// What is said of the safety of the open project at this moment.
struct Riassunto {
    enum class Stato {
        nulla,    ///< there is nothing to compute, `verdetto` says why
        inCorso,  ///< it is being computed: what was known before is of another wall
        noto,
    };
    Stato stato = Stato::nulla;
    std::string verdetto{};                    ///< one sentence
    std::vector<std::string> frasi{};          ///< what else is said, a sentence each
    const safety::Margine* margine = nullptr;  ///< of `noto`
};

[[nodiscard]] Riassunto riassunto(const live::ProgettoVivo& vivo);

}  // namespace korven::tables
