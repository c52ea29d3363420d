#include <string>
#include <utility>

#include "base/files.hpp"
#include "base/translated_texts.hpp"
#include "batch/command_table.hpp"
#include "batch/options/common_options.hpp"
#include "batch/run/command_ports.hpp"
#include "batch/run/computed_dossier.hpp"
#include "batch/run/console_run.hpp"
#include "batch/run/drawing_formats.hpp"
#include "batch/run/failure.hpp"
#include "batch/run/interruption.hpp"
#include "batch/run/margin_outcome.hpp"
#include "batch/run/output_names.hpp"
#include "batch/run/reviewed_run.hpp"
#include "drawings/margin_drawing.hpp"
#include "project/project_data.hpp"
#include "review/limits.hpp"

namespace korven::batch {

namespace {

using project::Progetto;

void controllaFile(const Opzioni& opzioni) {
    controllaUscite(opzioni.disegno);
    controllaTabella(opzioni.csv, opzioni.disegno.file());
}

int scriviUscite(const Opzioni& opzioni, const PorteComando& porte, Esito& esito) {
    if (!opzioni.csv.empty()) {
        base::scriviFile(opzioni.csv, csvMargine(*esito.margine), porte.disco);
        esito.fileScritti.push_back(opzioni.csv);
    }
    if (opzioni.disegno.nessuna()) return fatto;
    return disegna(opzioni.disegno, porte.disco, esito, [&] {
        drawings::disegnaSicurezza(Progetto, *esito.margine,
                                   {.riduzioneModesta = review::riduzioneDaVedere,
                                    .riduzioneScarsa = review::riduzionePericolosa,
                                    .passivaAlta = review::passivaDaVedere,
                                    .passivaMoltoAlta = review::passivaPericolosa});
        return true;
    });
}

int esegui(const Opzioni& opzioni, const PorteComando& porte, Esito& esito) {
    esito.inMemoria = true;
    return calcolaInMemoria(
        opzioni, esito, [&](const analysis::Avvio& avvio, base::Dialogo& dialogo) -> int {
            controllaFile(opzioni);
            FinoAllInterruzione osservatore;
            safety::Margine margine = safety::margine(Progetto, avvio.nSeg, osservatore);
            if (osservatore.fermata()) {
                racconta({base::traduttore("Calcolo interrotto dall'utente.")}, esito);
                annota({safety::Causa::fermato, {}}, esito);
                return nonEseguito;
            }
            if (!raccontaVerdetto(&margine, dialogo, esito)) return nonEseguito;
            esito.margine = std::move(margine);
            const int codice = scriviUscite(opzioni, porte, esito);
            return esito.margine->sta() ? codice : nonEseguito;
        });
}

}  // namespace

RigaComando comandoSicurezza() {
    RigaComando riga = {
        {"sicurezza", "safety"},
        "dice quanto la paratia è sicura, in memoria e senza scrivere risultati",
        insieme({opzioniModello(), {opzioneSevero(), opzioneEJ(), opzioneCsv()}, opzioniDisegno()}),
        esegui};
    riga.calcola = true;
    return riga;
}

}  // namespace korven::batch
