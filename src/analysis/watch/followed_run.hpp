#pragma once

#include <string>
#include <string_view>

#include "analysis/progress.hpp"
#include "analysis/watch/iteration_trace.hpp"
#include "analysis/watch/run_end.hpp"

namespace korven::analysis {

/// Follows a run that its user may stop, to tell afterwards where it was. What is shown goes on to
/// another progress display.
class CorsaSeguita : public analysis::Avanzamento {
 public:
    explicit CorsaSeguita(analysis::Avanzamento& vista) : vista_(vista) {}

    void apri() override;
    void iterazione(const analysis::StatoIterazione& stato) override;
    [[nodiscard]] bool fermata() override { return vista_.fermata(); }
    void caduta(const FaseCalcolata& fase) override;
    void chiudi() override { vista_.chiudi(); }
    void attendi(std::string_view detto) override { vista_.attendi(detto); }
    void fineAttesa() override { vista_.fineAttesa(); }

    /// One line about the stop: stage, iterations, and what still flipped; empty for a run that
    /// came to its end, was refused or was not needed.
    [[nodiscard]] std::string arresto() const;
    /// The same without what still flipped, for a line that has no room for more.
    [[nodiscard]] std::string doveFerma() const;
    /// How it ended, as far as its stages tell.
    [[nodiscard]] const FineCorsa& comeFinita() const { return fine_; }

 private:
    analysis::Avanzamento& vista_;
    TracciaIterazioni traccia_;
    FineCorsa fine_;
    bool ferma_ = false;  // the last iteration found the stop asked for
};

}  // namespace korven::analysis
