#pragma once

#include <memory>
#include <string>

#include "comparison/computed_comparison.hpp"
#include "shell/live/background_work.hpp"

namespace korven::shell {

struct RispostaConfronto {
    std::shared_ptr<const comparison::Confronto> confronto;
    std::string guasto;  ///< why there is none, a sentence
};

/// Computes comparisons beside the forms.
using ConfrontiInDisparte = LavoroInDisparte<comparison::DomandaConfronto, RispostaConfronto>;

/// What they compute with (`comparison::CalcoloConfronti`); a run that nobody waits for any more is
/// stopped.
[[nodiscard]] ConfrontiInDisparte::Calcola calcoloConfronti();

}  // namespace korven::shell
