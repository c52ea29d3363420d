#pragma once

#include <optional>
#include <string>

#include "live/slow_results.hpp"
#include "live/view.hpp"
#include "live/wall.hpp"
#include "live/working_values.hpp"

namespace korven::live {

/// The open project as its user sees it at this moment: as confirmed, or with the values of the
/// form that is open. Whoever holds it tells it what happens and shows what it knows.
class ProgettoVivo {
 public:
    /// Looks at the project after each command, and whenever it may be another; a form that was
    /// open is closed by then.
    /// @param confermato  the open project; nullptr: none is open
    /// @param apertura    which of the projects that were opened it is: one that follows another is
    ///                    shown in all its stages, by the same curve
    void guarda(const project::DatiProgetto* confermato, int apertura = 0);

    /// Takes what stands in an open form. Values that could not be confirmed leave the wall as it
    /// was shown last.
    /// @param maschera  of the form
    void digita(const masks::Maschera& maschera, const ValoriForma& valori);
    /// The same of the section's form.
    void digita(const project::Sezione& sezione);

    [[nodiscard]] bool aperto() const { return aperto_; }
    /// As `guarda` was told last of an open project.
    [[nodiscard]] int apertura() const { return apertura_; }
    /// The wall that is shown. @pre a project is open: asserted
    [[nodiscard]] const PareteViva& parete() const;
    /// The same data, as they stand in project and form: without the stiffness of the section.
    [[nodiscard]] const project::DatiProgetto& dati() const { return mostrati_; }
    /// Why the values of the open form are not shown, translated: "riga 3: dati incompleti".
    [[nodiscard]] const std::string& impedimento() const { return impedimento_; }

    [[nodiscard]] const Vista& vista() const { return vista_; }
    /// Shows another stage or curve; a stage that there is not is the nearest one.
    void mostra(Vista vista);

    /// What is to be computed for the wall that is shown; nothing where it is known already.
    [[nodiscard]] const std::optional<DomandaLenta>& domanda() const { return domanda_; }
    /// Takes an answer; it completes why the wall does not stand, or why one that stands has no
    /// report.
    /// @return false for one to an earlier question, which is dropped
    bool rispondi(int numero, RisultatiLenti risultati);
    /// The answer for the wall that is shown; nullptr while it is being computed.
    [[nodiscard]] const RisultatiLenti* lenti() const { return lenti_ ? &*lenti_ : nullptr; }

    /// Counts up with each change of `parete`, `vista` or `lenti`.
    [[nodiscard]] int versione() const { return versione_; }

 private:
    void prova(const ProgettoInCorso& inCorso);
    void completaParete();
    void mostraDati(const project::DatiProgetto& dati);

    bool aperto_ = false;
    int apertura_ = 0;
    project::DatiProgetto confermato_, mostrati_;
    PareteViva parete_;
    std::string impedimento_;
    Vista voluta_, vista_;  // the first has a stage that may come back while rows are typed
    int numero_ = 0;        // of the last question
    int versione_ = 0;
    std::optional<DomandaLenta> domanda_;
    std::optional<RisultatiLenti> lenti_;
};

}  // namespace korven::live
