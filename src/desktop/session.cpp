#include "desktop/session.hpp"

#include "base/colon.hpp"
#include "base/translated_texts.hpp"
#include "commands/start/startup.hpp"
#include "desktop/annex_of_project.hpp"
#include "shell/annex/annex_wiring.hpp"
#include "shell/comparison/comparison_wiring.hpp"
#include "shell/help/porta.hpp"
#include "shell/main/informazioni.hpp"
#include "shell/masks/form_opening.hpp"
#include "shell/norms/norms_wiring.hpp"
#include "shell/panels/section_panel.hpp"
#include "shell/panels/table_panels.hpp"
#include "shell/pens/printer_setup.hpp"
#include "shell/picture/live_picture.hpp"
#include "shell/remarks/live_remarks.hpp"
#include "shell/report/destinations.hpp"
#include "shell/rescue/rescue_form.hpp"
#include "shell/rescue/rescue_watch.hpp"
#include "shell/results/results_window.hpp"
#include "shell/safety/safety_window.hpp"
#include "shell/section/definej.hpp"
#include "shell/study/study_wiring.hpp"
#include "shell/tools/tool_forms.hpp"

namespace korven::desktop {

// What is behind the commands, plugged in form by form.
commands::FormeProgramma Sessione::forme(const PorteSessione& porte) {
    commands::FormeProgramma tutte;
    base::Dialogo& dialogo = porte.dialogo;
    shell::collegaGuida(tutte, finestra_);  // first: the forms plugged in later have help buttons
    tutte.informazioni = [this](const std::string& fileCorrente) {
        shell::Informazioni(fileCorrente, &finestra_).exec();
    };
    shell::collegaSezione(tutte, &finestra_, &vita_, shell::pannelloSezione(vita_, dialogo));
    shell::collegaMaschere(tutte, dialogo, &finestra_, &vita_,
                           shell::pannelliForme(dialogo, vita_));
    shell::collegaFigura(finestra_, vita_, dialogo, porte.stampante);
    const auto annuncia = [this](const std::string& percorso) {
        finestra_.stato(base::traduttore("File scritto") + base::duePunti() + percorso);
    };
    shell::collegaDisegni(tutte, finestra_, dialogo, porte.stampante, annuncia);
    shell::collegaRecupero(tutte, finestra_);
    shell::collegaRelazione(tutte, finestra_, dialogo, porte.stampante, porte.outdoc);
    shell::collegaOsservazioni(tutte, finestra_, vita_);
    shell::collegaRisultati(tutte, finestra_, vita_);
    shell::collegaSicurezza(tutte, finestra_, vita_);
    shell::collegaAllegato(tutte, finestra_, vita_, dialogo, porte.stampante, allegatoDelProgetto,
                           annuncia);
    shell::collegaConfronto(tutte, finestra_, vita_, dialogo, porte.stampante, annuncia);
    shell::collegaNorme(tutte, finestra_, vita_, dialogo, porte.stampante, annuncia);
    shell::collegaStudio(tutte, finestra_, vita_, dialogo, porte.stampante, annuncia);
    shell::collegaStrumenti(tutte, dialogo, finestra_);
    tutte.riavvia = porte.riavvia;
    return tutte;
}

Sessione::Sessione(const PorteSessione& porte)
    : programma_(porte.dialogo, porte.nomi, finestra_, avanzamento_, maschere_, forme(porte)) {
    avanzamento_.sopra(&finestra_);
    finestra_.collega(programma_);
    shell::sorvegliaLavoro(
        finestra_, [this] { programma_.tieniAlSicuro(); }, porte.alSicuroOgni);
    QObject::connect(&finestra_, &shell::Menu1::aggiornata, &vita_,
                     [this] { vita_.guarda(programma_.documento().aperture()); });
}

void Sessione::comincia(const std::string& argomento) {
    commands::avvia(argomento, programma_.documento(),
                    {.leggiMaschere = [this] { commands::leggiDatiProgramma(maschere_); },
                     .saluta = [this] { finestra_.esegui(commands::voceMenu("about")); }});
    finestra_.aggiorna();
}

}  // namespace korven::desktop
