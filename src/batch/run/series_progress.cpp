#include "batch/run/series_progress.hpp"

#include <cmath>
#include <utility>

#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"

namespace korven::batch {

namespace {

using namespace std::chrono_literals;

constexpr const char* cancellaRiga = "\r\x1b[K";

std::string dueCifre(std::uint64_t n) { return (n < 10 ? "0" : "") + std::to_string(n); }

// "1:02:03", below an hour "2:03".
std::string durata(double secondi) {
    constexpr std::uint64_t minuto = 60;
    const auto s = static_cast<std::uint64_t>(std::llround(secondi));
    const std::uint64_t ore = s / (minuto * minuto), minuti = s / minuto % minuto;
    return (ore > 0 ? std::to_string(ore) + ':' + dueCifre(minuti) : std::to_string(minuti)) + ':' +
           dueCifre(s % minuto);
}

std::string barra(double quota) {
    constexpr std::size_t lunga = 20;
    const auto piene = static_cast<std::size_t>(quota * static_cast<double>(lunga));
    return '[' + std::string(piene, '#') + std::string(lunga - piene, '.') + "] ";
}

}  // namespace

std::string raccontaMomento(const MomentoSerie& m) {
    const std::string fatte = std::to_string(m.fatte), quante = std::to_string(m.quante);
    if (m.calcolate == 0 || !(m.secondi > 0))
        return base::riempito(base::traduttore("%1 di %2 varianti"), {fatte, quante});
    const double alSecondo = static_cast<double>(m.calcolate) / m.secondi;
    return base::riempito(base::traduttore("%1 di %2 varianti, %3 al secondo, ancora %4"),
                          {fatte, quante, base::testoDecimali(alSecondo, alSecondo < 10 ? 1 : 0),
                           durata(static_cast<double>(m.quante - m.fatte) / alSecondo)});
}

AvanzamentoSerie::AvanzamentoSerie(std::ostream& uscita, bool mostra, bool terminale,
                                   std::uint64_t quante, std::uint64_t gia,
                                   std::function<Orologio::time_point()> ora)
    : uscita_(uscita),
      mostra_(mostra),
      terminale_(terminale),
      quante_(quante),
      gia_(gia),
      ora_(std::move(ora)),
      inizio_(ora_()),
      ultima_(inizio_) {}

void AvanzamentoSerie::aggiorna(std::uint64_t calcolate) {
    calcolate_ = calcolate;
    if (!mostra_ || ora_() - ultima_ < (terminale_ ? 100ms : 10000ms)) return;
    scrivi(calcolate);
}

void AvanzamentoSerie::scrivi(std::uint64_t calcolate) {
    ultima_ = ora_();
    const MomentoSerie momento{gia_ + calcolate, quante_, calcolate,
                               std::chrono::duration<double>(ultima_ - inizio_).count()};
    if (terminale_) {
        const double quota =
            quante_ == 0 ? 1 : static_cast<double>(momento.fatte) / static_cast<double>(quante_);
        uscita_ << cancellaRiga << barra(quota);
    }
    uscita_ << raccontaMomento(momento) << (terminale_ ? "" : "\n") << std::flush;
    aperta_ = terminale_;
}

void AvanzamentoSerie::chiudi() {
    if (!mostra_ || !aperta_) return;
    scrivi(calcolate_);
    uscita_ << '\n';
    aperta_ = false;
}

}  // namespace korven::batch
