#include "shell/study/background_study.hpp"

#include <algorithm>
#include <exception>
#include <thread>

namespace korven::shell {

// Nothing may escape in another thread: the program would end, and unsaved work with it.
StudiInDisparte::Calcola calcoloStudi() {
    return [](const DomandaStudio& domanda, const std::atomic<bool>& fermato) -> RispostaStudio {
        const int fili = std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
        try {
            return {desk::esegui(domanda.studio, fili,
                                 [&](std::uint64_t fatte) {
                                     *domanda.fatte = fatte;
                                     return !fermato && !*domanda.basta;
                                 }),
                    {}};
        } catch (const std::exception& errore) {
            return {nullptr, errore.what()};
        }
    };
}

}  // namespace korven::shell
