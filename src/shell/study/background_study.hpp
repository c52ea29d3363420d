#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>

#include "desk/study_result.hpp"
#include "shell/live/background_work.hpp"

namespace korven::shell {

/// A study that is to be computed, with what both threads look at meanwhile.
struct DomandaStudio {
    std::shared_ptr<const desk::StudioPronto> studio;
    std::shared_ptr<std::atomic<bool>> basta;           ///< its user has stopped it
    std::shared_ptr<std::atomic<std::uint64_t>> fatte;  ///< variants that are done
};

struct RispostaStudio {
    std::shared_ptr<const desk::StudioFatto> fatto;
    std::string guasto;  ///< why there is none, a sentence
};

/// Computes studies beside the forms.
using StudiInDisparte = LavoroInDisparte<DomandaStudio, RispostaStudio>;

/// What they compute with: all processors. A study that is stopped answers with what is done.
[[nodiscard]] StudiInDisparte::Calcola calcoloStudi();

}  // namespace korven::shell
