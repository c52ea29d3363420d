#pragma once

#include <optional>
#include <string>

#include "analysis/run_observer.hpp"
#include "comparison/comparison.hpp"

namespace korven::comparison {

/// A project and what it is called.
struct ProgettoDetto {
    std::string nome;  ///< as people are told: "muro.kvd (salvato)"
    std::string file;  ///< its path
    project::DatiProgetto dati;

    bool operator==(const ProgettoDetto&) const = default;
};

/// Two projects that are to be compared.
struct DomandaConfronto {
    int numero = 0;  ///< by which the answer is known
    ProgettoDetto prima, dopo;
    std::optional<int> nSeg;  ///< of both, from 3: asserted; nothing: those of the program
};

/// Computes comparisons one after the other, each in any thread. A wall that stays where the other
/// changes is not computed again.
class CalcoloConfronti {
 public:
    /// @param osservatore  follows the specified runs, and may stop them: of no use then is what
    ///                     is returned
    [[nodiscard]] Confronto calcola(const DomandaConfronto& domanda,
                                    analysis::OsservatoreCorsa& osservatore);

 private:
    struct Tenuto {
        ProgettoDetto progetto;
        std::optional<int> nSeg;
        Muro muro;
    };
    std::optional<Tenuto> prima_;
};

}  // namespace korven::comparison
