#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <ostream>
#include <string>

namespace korven::batch {

/// A moment of a study, as it is told.
struct MomentoSerie {
    std::uint64_t fatte = 0;      ///< rows that there are, also those of an interrupted study
    std::uint64_t quante = 0;     ///< of how many
    std::uint64_t calcolate = 0;  ///< of them those of this run
    double secondi = 0;           ///< since it began
};

/// "40000 di 100000 varianti, 9870 al secondo, ancora 0:06"; without a rate while nothing is known.
[[nodiscard]] std::string raccontaMomento(const MomentoSerie& momento);

/// How far a study is: a bar in one line on a terminal, drawn ten times a second at most; a line
/// every ten seconds elsewhere.
class AvanzamentoSerie {
 public:
    using Orologio = std::chrono::steady_clock;

    /// @param mostra     false: silent
    /// @param terminale  the output is one
    AvanzamentoSerie(std::ostream& uscita, bool mostra, bool terminale, std::uint64_t quante,
                     std::uint64_t gia, std::function<Orologio::time_point()> ora = Orologio::now);

    /// @param calcolate  rows of this run so far
    void aggiorna(std::uint64_t calcolate);
    /// Ends the bar, which is then whole or where the study was interrupted.
    void chiudi();

 private:
    void scrivi(std::uint64_t calcolate);

    std::ostream& uscita_;
    const bool mostra_, terminale_;
    const std::uint64_t quante_, gia_;
    const std::function<Orologio::time_point()> ora_;
    const Orologio::time_point inizio_;
    Orologio::time_point ultima_;
    std::uint64_t calcolate_ = 0;
    bool aperta_ = false;
};

}  // namespace korven::batch
