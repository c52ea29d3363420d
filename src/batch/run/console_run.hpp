#pragma once

#include "analysis/calcolo_paratia.hpp"
#include "batch/options/choices.hpp"
#include "batch/run/command_ports.hpp"
#include "batch/run/console.hpp"
#include "batch/run/interruption.hpp"
#include "batch/run/outcome.hpp"

namespace korven::batch {

/// Says lines on standard error and keeps them among the messages of the outcome.
void racconta(const std::vector<std::string>& righe, Esito& esito);

/// Names the result file among those written, unless it was up to date already.
void annotaRisultati(Esito& esito);

/// The analysis with the console for its ports. While one of these lives an interrupt stops the run
/// or, after it, is kept in mind.
class CorsaConsole {
 public:
    /// @param porte  their guard keeps the result file beyond this object's life, for as long as
    ///               outputs are made of it
    CorsaConsole(const Opzioni& opzioni, const PorteComando& porte, Esito& esito);

    /// Brings the results up to date and hands over to the output.
    /// @param modoUscita  the report or a diagram
    /// @return false when the run was refused, found singular or stopped, which has then been told
    [[nodiscard]] bool esegui(analysis::ModoUscita modoUscita, analysis::UscitaCalcolo& uscita);

    [[nodiscard]] base::Dialogo& dialogo() { return dialogo_; }
    [[nodiscard]] const base::Disco& disco() const { return porte_.disco; }

    /// Reads what the run has left into the outcome, unless it was interrupted
    /// after its calculation.
    /// @return the exit code
    [[nodiscard]] int concludi();

    /// True after an interrupt that found the calculation finished; tells what that means.
    [[nodiscard]] bool interrotta();

 private:
    const Opzioni& opzioni_;
    const PorteComando& porte_;
    Esito& esito_;
    AvanzamentoConsole vista_;
    DialogoConsole dialogo_;
    const Interruzioni interruzioni_;
};

}  // namespace korven::batch
