#include "batch/run/computed_dossier.hpp"

#include "base/translated_texts.hpp"
#include "batch/options/common_options.hpp"
#include "batch/run/console.hpp"
#include "batch/run/console_run.hpp"
#include "batch/run/failure.hpp"
#include "batch/run/interruption.hpp"
#include "batch/run/reviewed_run.hpp"
#include "project/project_data.hpp"
#include "safety/words.hpp"

namespace korven::batch {

namespace {

dossier::Fascicolo calcola(const Opzioni& opzioni, const std::string& data, int nSeg,
                           const Esito& esito) {
    dossier::Identita identita;
    identita.file = opzioni.progetto;
    identita.data = dossier::data(dossier::fontiDiSistema(data));
    identita.opzioni = opzioniSulProgetto(opzioni);
    FinoAllInterruzione osservatore;
    return dossier::fascicolo({.scritti = esito.scritti,
                               .usati = project::Progetto,
                               .nSeg = nSeg,
                               .identita = identita,
                               .sulProgetto = esito.osservazioni},
                              osservatore);
}

// Why the wall does not stand, if it does not.
int conclusione(const dossier::Fascicolo& fascicolo, base::Dialogo& dialogo, Esito& esito) {
    const safety::MargineFase* caduta = fascicolo.margine ? fascicolo.margine->caduta() : nullptr;
    if (caduta != nullptr && caduta->rifiuto) {
        analysis::avvisa(dialogo, caduta->fase, *caduta->rifiuto);
        annota({safety::Causa::rifiutato, {}}, esito);
        return nonEseguito;
    }
    annota(caduta != nullptr ? safety::CausaCorsa{caduta->perche->causa, frase(*caduta->perche)}
                             : safety::CausaCorsa{},
           esito);
    return fascicolo.parete.sta() ? fatto : nonEseguito;
}

}  // namespace

std::vector<std::string> opzioniSulProgetto(const Opzioni& opzioni) {
    std::vector<std::string> tutte;
    if (opzioni.metodoSpinte)
        tutte.push_back(nomeOpzioneMetodo.mostrato() + " " + nomeMetodo(*opzioni.metodoSpinte));
    if (opzioni.ricalcolaEJ)
        tutte.push_back(opzioneEJ().nome.mostrato() + " " + opzioneEJ().valori[1].mostrato());
    if (opzioni.nseg) tutte.push_back(nomeOpzioneNseg.mostrato() + " " + *opzioni.nseg);
    return tutte;
}

int conFascicolo(const Opzioni& opzioni, const std::string& data, Esito& esito,
                 const std::function<void()>& controlla,
                 const std::function<void(const dossier::Fascicolo&)>& scrivi) {
    esito.inMemoria = true;
    return calcolaInMemoria(
        opzioni, esito, [&](const analysis::Avvio& avvio, base::Dialogo& dialogo) -> int {
            controlla();
            const dossier::Fascicolo fascicolo = calcola(opzioni, data, avvio.nSeg, esito);
            if (Interruzioni::chiesta() != 0) {
                racconta({base::traduttore("Calcolo interrotto dall'utente.")}, esito);
                annota({safety::Causa::fermato, {}}, esito);
                return nonEseguito;
            }
            esito.margine = fascicolo.margine;
            scrivi(fascicolo);
            return conclusione(fascicolo, dialogo, esito);
        });
}

}  // namespace korven::batch
