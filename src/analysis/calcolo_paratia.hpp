#pragma once

#include <string>
#include <vector>

#include "analysis/diagrams.hpp"
#include "analysis/progress.hpp"
#include "analysis/result_guard.hpp"
#include "base/dialogo.hpp"
#include "base/disk.hpp"

namespace korven::analysis {

/// What comes after the analysis. While one of these runs, `fileCorrente` names the result file.
class UscitaCalcolo {
 public:
    virtual ~UscitaCalcolo() = default;
    /// The files that the output of `modoUscita` will write beside the result file `risultati`: a
    /// run is refused before its first byte if one of them is the project.
    [[nodiscard]] virtual std::vector<std::string> file(ModoUscita modoUscita,
                                                        const std::string& risultati) const = 0;
    /// Writes the calculation report.
    virtual void scriviRelazione() = 0;
    /// Draws a result diagram.
    virtual void disegnaDiagramma(Diagramma diagramma) = 0;
};

/// The outside of a run.
struct PorteCalcolo {
    base::Dialogo& dialogo;
    Avanzamento& avanzamento;
    UscitaCalcolo& uscita;
    /// Keeps the result file from other runs, for as long as it lives; none: nobody else is there.
    GuardiaRisultati* guardia = nullptr;
    /// The disk that the result file is written to.
    const base::Disco& disco = base::discoDiSistema();
};

/// The one entry of the analysis: refuses a project that can't be computed, brings the result file
/// up to date and goes on to the output. Works on `Progetto` and `fileCorrente`; `erroreCalcolo`
/// tells the outcome.
///
/// The stages are computed only when the result file does not already hold this very project.
/// `Progetto.faldaValle` is stored before the stages overwrite it: a run whose last stage changes
/// it is followed by one more when asked again in the same session.
///
/// A refused, singular or stopped run leaves no result file once it has begun one; a refusal by the
/// first checks leaves an older one alone. `fileCorrente` is restored at every exit but one: a run
/// without a stiffness EJ leaves it at the result file's name until another file is opened.
///
/// Before anything is written or removed a run is refused whose result file or output would take
/// the place of the project, whose name is too short for the rule that names the result file, in
/// which a stage asks for more anchors than their table holds, or whose section has more bars than
/// the calculations take.
///
/// With a guard among the ports the result file is taken before it is compared, and one that a
/// killed run has left unfinished is removed; without one it counts as finished until it is read.
/// Giving up the wait for another run ends like a stop.
///
/// @param modoUscita  the report or a diagram
/// @throws base::ErroreFile if a file can't be read or written, or another run does not let go of
/// the result file; nothing half-written stays
void CalcoloParatia(ModoUscita modoUscita, const PorteCalcolo& porte);

/// Why the outputs of a run can't be written under the names that follow from the project's,
/// translated; empty if they can. Writes nothing.
/// @param progetto    the name from which they follow, which need not be that of a file
/// @param modoUscita  as for `CalcoloParatia`
[[nodiscard]] std::string motivoUscite(const std::string& progetto, ModoUscita modoUscita,
                                       const UscitaCalcolo& uscita);

/// The message of a system without a solution, an Italian key.
inline constexpr const char* messaggioSingolare =
    "La geometria assegnata al diaframma non consente l'elaborazione. Verificare i dati di input. "
    "Esempi di cause possibili: lunghezza del diaframma inferiore alla profondità di scavo, "
    "profondità di infissione del diaframma insufficiente.";

}  // namespace korven::analysis
