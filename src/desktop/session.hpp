#pragma once

#include <functional>
#include <string>

#include "base/dialogo.hpp"
#include "commands/desktop_program.hpp"
#include "commands/document_ports.hpp"
#include "masks/values.hpp"
#include "shell/live/live_view.hpp"
#include "shell/main/menu1.hpp"
#include "shell/rescue/rescue_watch.hpp"
#include "shell/run/progress_qt.hpp"

class QPrinter;

namespace korven::desktop {

/// What is behind the session that is not a window of its own. All outlive it.
struct PorteSessione {
    base::Dialogo& dialogo;
    commands::DialogoFile& nomi;                  ///< of projects
    std::function<QPrinter&()> stampante;         ///< the printer of the program, when it is needed
    std::string outdoc;                           ///< path of the converter
    std::function<void()> riavvia;                ///< as `FormeProgramma::riavvia`
    int alSicuroOgni = shell::minutoDiSicurezza;  ///< between two looks at unsaved work [ms]
};

/// The desktop program after the choice of the language: the main form, all that its menu opens,
/// the windows beside it, and the live project that they follow. One at a time.
class Sessione {
 public:
    /// Wires everything and shows nothing yet.
    explicit Sessione(const PorteSessione& porte);
    Sessione(const Sessione&) = delete;
    Sessione& operator=(const Sessione&) = delete;

    /// The rest of the start (commands/start/startup.hpp), with the main form on screen.
    /// @param argomento  the project that the command line names; empty: none
    /// @throws base::ErroreFile as `commands::avvia`
    void comincia(const std::string& argomento);

    [[nodiscard]] shell::Menu1& finestra() { return finestra_; }
    [[nodiscard]] const shell::VitaProgetto& vita() const { return vita_; }
    [[nodiscard]] const masks::Maschere& maschere() const { return maschere_; }

 private:
    [[nodiscard]] commands::FormeProgramma forme(const PorteSessione& porte);

    shell::VitaProgetto vita_;
    shell::Menu1 finestra_;
    shell::AvanzamentoQt avanzamento_;
    masks::Maschere maschere_;
    commands::Programma programma_;
};

}  // namespace korven::desktop
