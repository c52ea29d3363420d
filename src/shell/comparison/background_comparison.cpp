#include "shell/comparison/background_comparison.hpp"

#include <exception>

namespace korven::shell {

namespace {

class FinoAllArresto : public analysis::OsservatoreCorsa {
 public:
    explicit FinoAllArresto(const std::atomic<bool>& fermato) : fermato_(fermato) {}
    [[nodiscard]] bool fermata() override { return fermato_; }

 private:
    const std::atomic<bool>& fermato_;
};

}  // namespace

// Nothing may escape in another thread: the program would end, and unsaved work with it.
ConfrontiInDisparte::Calcola calcoloConfronti() {
    return [calcolo = std::make_shared<comparison::CalcoloConfronti>()](
               const comparison::DomandaConfronto& domanda,
               const std::atomic<bool>& fermato) -> RispostaConfronto {
        FinoAllArresto osservatore(fermato);
        try {
            return {std::make_shared<const comparison::Confronto>(
                        calcolo->calcola(domanda, osservatore)),
                    {}};
        } catch (const std::exception& errore) {
            return {nullptr, errore.what()};
        }
    };
}

}  // namespace korven::shell
