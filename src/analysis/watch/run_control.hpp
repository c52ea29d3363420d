#pragma once

#include <csignal>
#include <string>
#include <vector>

#include "analysis/progress.hpp"
#include "analysis/watch/iteration_trace.hpp"
#include "analysis/watch/run_end.hpp"

namespace korven::analysis {

/// Iterations after which a stage that `--traccia` follows is worth a record.
inline constexpr int iterazioniTracciate = 20;

/// Watches over a run without an engineer in front of it: stops a stage that does not come to rest,
/// stops the run on an interrupt, and keeps the record of slow stages. What is shown goes on to
/// another progress display.
class ControlloCorsa : public analysis::Avanzamento {
 public:
    /// What a stage took.
    struct Fase {
        int fase = 0;
        int iterazioni = 0;
        std::vector<std::string> traccia;  ///< empty for a stage of few iterations
    };

    /// @param vista           shows the progress
    /// @param maxIterazioni   per stage; 0 for no limit
    /// @param interruzione    set from a signal handler to ask for the end of the run
    ControlloCorsa(analysis::Avanzamento& vista, int maxIterazioni,
                   const volatile std::sig_atomic_t& interruzione)
        : vista_(vista), maxIterazioni_(maxIterazioni), interruzione_(interruzione) {}

    void apri() override;
    void iterazione(const analysis::StatoIterazione& stato) override;
    [[nodiscard]] bool fermata() override;
    void caduta(const FaseCalcolata& fase) override;
    void chiudi() override { vista_.chiudi(); }
    void attendi(std::string_view detto) override;
    void fineAttesa() override { vista_.fineAttesa(); }

    /// True when stages were computed: the result file was not up to date.
    [[nodiscard]] bool calcolato() const { return calcolato_; }
    /// The stages that came to rest, in order.
    [[nodiscard]] const std::vector<Fase>& fasi() const { return fasi_; }
    /// How it ended, as far as its stages tell: a refusal before the first is told by nobody here.
    [[nodiscard]] const FineCorsa& comeFinita() const { return fine_; }
    /// True when the limit of iterations stopped the run.
    [[nodiscard]] bool oltreLimite() const { return oltreLimite_; }
    /// Why the run was stopped, in words, a line a fact; empty if it was not, or by an interrupt.
    [[nodiscard]] const std::vector<std::string>& motivo() const { return motivo_; }

 private:
    analysis::Avanzamento& vista_;
    int maxIterazioni_;
    const volatile std::sig_atomic_t& interruzione_;
    TracciaIterazioni traccia_;
    std::vector<Fase> fasi_;
    bool calcolato_ = false;
    bool oltreLimite_ = false;
    FineCorsa fine_;
    std::vector<std::string> motivo_;
};

}  // namespace korven::analysis
