#pragma once

#include <memory>
#include <string>

#include "desk/live_codes.hpp"
#include "shell/live/background_work.hpp"

namespace korven::shell {

struct RispostaNorma {
    std::shared_ptr<const factors::Combinazioni> combinazioni;
    std::string guasto;  ///< why there are none, a sentence
};

/// Computes combinations beside the forms.
using NormeInDisparte = LavoroInDisparte<desk::DomandaNorma, RispostaNorma>;

/// What they compute with.
[[nodiscard]] NormeInDisparte::Calcola calcoloNorme();

}  // namespace korven::shell
