#include "commands/output_commands.hpp"

#include <algorithm>
#include <cassert>
#include <iterator>

#include "analysis/calcolo_paratia.hpp"
#include "analysis/run_flags.hpp"
#include "base/file_error.hpp"
#include "base/file_names.hpp"
#include "base/files.hpp"
#include "base/table.hpp"
#include "base/translated_texts.hpp"
#include "base/value_error.hpp"
#include "commands/diagram_output.hpp"
#include "commands/log_limit.hpp"
#include "commands/project_commands.hpp"
#include "drawings/section_drawing.hpp"
#include "drawings/stratigraphic_log.hpp"
#include "plot/drawing_stop.hpp"
#include "plot/drawing_watch.hpp"
#include "plot/plot_engine.hpp"
#include "project/project_data.hpp"

namespace korven::commands {

namespace {

using project::fileCorrente;
using Relazione = std::function<void(const std::string&)> FormeProgramma::*;

struct ComandoCalcolo {
    Comando comando;
    analysis::ModoUscita modoUscita;
    Relazione relazione;  // nullptr: a diagram
};

constexpr ComandoCalcolo comandiCalcolo[] = {
    {Comando::stampaVideo, analysis::relazione, &FormeProgramma::anteprima},
    {Comando::stampaTabulati, analysis::relazione, &FormeProgramma::stampa},
    {Comando::esportaDoc, analysis::relazione, &FormeProgramma::esportaDoc},
    {Comando::esportaTxt, analysis::relazione, &FormeProgramma::esportaTxt},
    {Comando::graficaPressioni, analysis::Diagramma::pressioni, nullptr},
    {Comando::graficaSpostamenti, analysis::Diagramma::spostamenti, nullptr},
    {Comando::graficaMomenti, analysis::Diagramma::momenti, nullptr},
    {Comando::graficaTaglio, analysis::Diagramma::taglio, nullptr},
};

std::string attenzione() { return base::traduttore("ATTENZIONE") + "!"; }

class Clessidra {
 public:
    explicit Clessidra(base::Dialogo& dialogo) : dialogo_(dialogo) { mostra(); }
    Clessidra(const Clessidra&) = delete;
    Clessidra& operator=(const Clessidra&) = delete;
    ~Clessidra() { dialogo_.puntatore(base::Puntatore::normale); }
    void mostra() { dialogo_.puntatore(base::Puntatore::clessidra); }

 private:
    base::Dialogo& dialogo_;
};

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
bool calcola(analysis::ModoUscita modoUscita, base::Dialogo& dialogo,
             analysis::Avanzamento& avanzamento, analysis::UscitaCalcolo& uscita,
             analysis::GuardiaRisultati& guardia) {
    try {
        const bool scritto = seSiPuoScrivere(dialogo, [&] {
            analysis::CalcoloParatia(modoUscita, {dialogo, avanzamento, uscita, &guardia});
            return true;
        });
        if (!scritto) analysis::erroreCalcolo = true;
    } catch (const base::ErroreValore& errore) {
        analysis::erroreCalcolo = true;
        // As after a singular system: what can't be shown must not be taken for up to date.
        guardia.togliNonMostrabili(base::nomeRisultati(fileCorrente));
        dialogo.messaggio(errore.what(), attenzione(), base::Icona::stop);
    }
    return !analysis::erroreCalcolo;
}

void produciRelazione(Relazione destinazione, base::Dialogo& dialogo,
                      analysis::Avanzamento& avanzamento, const FormeProgramma& forme) {
    Clessidra clessidra(dialogo);
    UscitaRelazione uscita(true);
    // Until the report has been read: another run would write its own in its place.
    analysis::GuardiaRisultati guardia;
    if (!calcola(analysis::relazione, dialogo, avanzamento, uscita, guardia)) return;
    clessidra.mostra();  // the run gives the pointer back at its end
    (forme.*destinazione)(uscita.relazione());
}

void produciDiagramma(analysis::ModoUscita modoUscita, base::Dialogo& dialogo,
                      analysis::Avanzamento& avanzamento, const FormeProgramma& forme) {
    UscitaDiagramma uscita;
    bool disegnato = false;
    {
        analysis::GuardiaRisultati guardia;
        disegnato = calcola(modoUscita, dialogo, avanzamento, uscita, guardia);
    }
    if (disegnato) forme.grafica();  // which needs no file any more
}

void produciCalcolo(const ComandoCalcolo& comando, base::Dialogo& dialogo,
                    analysis::Avanzamento& avanzamento, const FormeProgramma& forme) {
    if (comando.relazione != nullptr)
        produciRelazione(comando.relazione, dialogo, avanzamento, forme);
    else
        produciDiagramma(comando.modoUscita, dialogo, avanzamento, forme);
}

// Layers far apart take minutes to be hatched, which their user may cut short.
void produciStratigrafia(base::Dialogo& dialogo, const FormeProgramma& forme) {
    const auto disegna = [&] {
        const plot::LavoroDisegno lavoro;
        return drawings::disegnaStratigrafia(
            dialogo, forme.altezzaPagina ? forme.altezzaPagina() : drawings::altezzaPaginaA4);
    };
    try {
        if (seSiPuoScrivere(dialogo, disegna)) forme.grafica();
    } catch (const plot::DisegnoInterrotto&) {
        plot::statoPlot.archivio.svuota();
        if (forme.chiudiGrafica) forme.chiudiGrafica();
    } catch (const base::ErroreIndice& errore) {  // more numbers on its scale than a drawing holds
        const std::string perche = rifiutoStratigrafia(project::Progetto);
        if (perche.empty()) throw;
        throw base::ErroreIndice(perche + " (" + errore.what() + ")");
    }
}

}  // namespace

void produci(Comando comando, base::Dialogo& dialogo, analysis::Avanzamento& avanzamento,
             const FormeProgramma& forme) {
    // The log refuses in words of its own.
    if (comando == Comando::graficaStratigrafia) return produciStratigrafia(dialogo, forme);
    if (fileCorrente.empty()) {
        dialogo.messaggio(base::traduttore("Non e' possibile produrre un output prima di aver "
                                           "aperto un file."),
                          attenzione(), base::Icona::nessuna);
        return;
    }
    if (comando == Comando::graficaStruttura) {
        drawings::disegnaSezione(project::Progetto);
        return forme.grafica();
    }
    const auto* trovato = std::find_if(std::begin(comandiCalcolo), std::end(comandiCalcolo),
                                       [comando](const auto& c) { return c.comando == comando; });
    assert(trovato != std::end(comandiCalcolo));
    produciCalcolo(*trovato, dialogo, avanzamento, forme);
}

}  // namespace korven::commands
