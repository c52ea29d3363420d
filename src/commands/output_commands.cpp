#include "commands/output_commands.hpp"

#include <cassert>

#include "analysis/calcolo_paratia.hpp"
#include "analysis/run_flags.hpp"
#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/folders/file_names.hpp"
#include "base/pointer_guard.hpp"
#include "base/table.hpp"
#include "base/translated_texts.hpp"
#include "base/value_error.hpp"
#include "commands/diagram_output.hpp"
#include "commands/report_files.hpp"
#include "drawings/log/stratigraphic_log.hpp"
#include "drawings/section_drawing.hpp"
#include "plot/drawing_stop.hpp"
#include "plot/drawing_watch.hpp"
#include "plot/plot_engine.hpp"
#include "project/project_data.hpp"
#include "review/log_limit.hpp"

namespace korven::commands {

namespace {

using project::fileCorrente;

std::string attenzione() { return base::traduttore("ATTENZIONE") + "!"; }

// What an output says, or false where a file of it can't be written: in the folder of a colleague,
// on a full disk. The user is told, and may save the project elsewhere or make room.
template <class Uscita>
bool seSiPuoScrivere(base::Dialogo& dialogo, Uscita uscita) {
    try {
        return uscita();
    } catch (const base::ErroreScrittura& errore) {
        dialogo.messaggio(errore.what(), attenzione(), base::Icona::stop);
        return false;
    }
}

// True when the run went through and its output is there.
bool calcola(analysis::ModoUscita modoUscita, const PorteUscita& porte,
             analysis::UscitaCalcolo& uscita, analysis::GuardiaRisultati& guardia) {
    try {
        const bool scritto = seSiPuoScrivere(porte.dialogo, [&] {
            analysis::CalcoloParatia(modoUscita,
                                     {porte.dialogo, porte.avanzamento, uscita, &guardia});
            return true;
        });
        if (!scritto) analysis::erroreCalcolo = true;
    } catch (const base::ErroreValore& errore) {
        analysis::erroreCalcolo = true;
        // As after a singular system: what can't be shown must not be taken for up to date.
        guardia.togliNonMostrabili(base::nomeRisultati(fileCorrente));
        porte.dialogo.messaggio(errore.what(), attenzione(), base::Icona::stop);
    }
    return !analysis::erroreCalcolo;
}

// True, and told, where no project is open.
bool senzaProgetto(base::Dialogo& dialogo) {
    if (!fileCorrente.empty()) return false;
    dialogo.messaggio(
        base::traduttore("Non e' possibile produrre un output prima di aver aperto un file."),
        attenzione(), base::Icona::nessuna);
    return true;
}

}  // namespace

void produciRelazione(Destinazione destinazione, const PorteUscita& porte) {
    assert(porte.forme.*destinazione);
    if (senzaProgetto(porte.dialogo)) return;
    base::GuardiaPuntatore clessidra(porte.dialogo);
    UscitaRelazione uscita(true);
    // Until the report has been read: another run would write its own in its place.
    analysis::GuardiaRisultati guardia;
    if (!calcola(analysis::relazione, porte, uscita, guardia)) return;
    clessidra.rimetti();  // the run gives the pointer back at its end
    porte.calcolato();
    (porte.forme.*destinazione)(uscita.relazione());
}

void produciDiagramma(analysis::Diagramma quale, const PorteUscita& porte) {
    assert(porte.forme.grafica);
    if (senzaProgetto(porte.dialogo)) return;
    UscitaDiagramma uscita;
    bool disegnato = false;
    {
        analysis::GuardiaRisultati guardia;
        disegnato = calcola(quale, porte, uscita, guardia);
    }
    if (!disegnato) return;
    porte.calcolato();
    porte.forme.grafica();  // which needs no file any more
}

void produciSezione(const PorteUscita& porte) {
    assert(porte.forme.grafica);
    if (senzaProgetto(porte.dialogo)) return;
    porte.calcolato();
    drawings::disegnaSezione(project::Progetto);
    porte.forme.grafica();
}

// Layers far apart take minutes to be hatched, which their user may cut short.
void produciStratigrafia(const PorteUscita& porte) {
    assert(porte.forme.grafica);
    porte.calcolato();
    const auto& forme = porte.forme;
    const auto disegna = [&] {
        const plot::LavoroDisegno lavoro;
        return drawings::disegnaStratigrafia(
            porte.dialogo, forme.altezzaPagina ? forme.altezzaPagina() : drawings::altezzaPaginaA4);
    };
    try {
        if (seSiPuoScrivere(porte.dialogo, disegna)) forme.grafica();
    } catch (const plot::DisegnoInterrotto&) {
        plot::statoPlot.archivio.svuota();
        if (forme.chiudiGrafica) forme.chiudiGrafica();
    } catch (const base::ErroreIndice& errore) {  // more numbers on its scale than a drawing holds
        const std::string perche = review::rifiutoStratigrafia(project::Progetto);
        if (perche.empty()) throw;
        throw base::ErroreIndice(perche + " (" + errore.what() + ")");
    }
}

}  // namespace korven::commands
