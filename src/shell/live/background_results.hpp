#pragma once

#include <functional>

#include "live/slow_results.hpp"
#include "shell/live/background_work.hpp"

namespace korven::shell {

/// Computes what takes longer than a key beside the forms: a fine mesh takes up to a second.
class RisultatiInDisparte : public LavoroInDisparte<live::DomandaLenta, live::RisultatiLenti> {
 public:
    using Domanda = live::DomandaLenta;

    /// @param risponde  told the answer to each question that is followed up, in the thread of this
    RisultatiInDisparte(std::function<void(int numero, live::RisultatiLenti)> risponde,
                        QObject* padre);
};

}  // namespace korven::shell
