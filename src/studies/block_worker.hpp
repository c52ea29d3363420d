#pragma once

#include <atomic>
#include <vector>

#include "studies/runner.hpp"

namespace korven::studies {

/// Computes blocks of rows, for one thread.
class LavoroBlocchi {
 public:
    /// @param ferma  true from the moment on when the study is to end
    LavoroBlocchi(const Studio& studio, const std::atomic<bool>& ferma);

    /// The rows of these variants; fewer once the study is to end.
    [[nodiscard]] Righe calcola(Tratto tratto);

 private:
    class Osservatore : public analysis::OsservatoreCorsa {
     public:
        explicit Osservatore(const std::atomic<bool>& ferma) : ferma_(ferma) {}
        [[nodiscard]] bool fermata() override { return ferma_; }

     private:
        const std::atomic<bool>& ferma_;
    };

    [[nodiscard]] bool aggiungi(std::uint64_t i, Righe& righe);
    void controllaSeTocca(std::uint64_t i, Righe& righe);

    const Studio& studio_;
    const std::atomic<bool>& ferma_;
    Osservatore osservatore_;
    CalcoloVariante calcolo_;
    std::vector<double> valori_, riga_;
};

}  // namespace korven::studies
