#include "shell/norms/background_codes.hpp"

#include <exception>

namespace korven::shell {

// Nothing may escape in another thread: the program would end, and unsaved work with it. Once begun
// it goes on to its end, which comes within a blink.
NormeInDisparte::Calcola calcoloNorme() {
    return [](const desk::DomandaNorma& domanda, const std::atomic<bool>&) -> RispostaNorma {
        try {
            return {std::make_shared<const factors::Combinazioni>(factors::combinazioni(
                        domanda.dati, domanda.nSeg, domanda.norma, domanda.natura)),
                    {}};
        } catch (const std::exception& errore) {
            return {nullptr, errore.what()};
        }
    };
}

}  // namespace korven::shell
