#include "batch/run/computed_dossier.hpp"

#include <memory>
#include <utility>

#include "base/translated_texts.hpp"
#include "batch/run/console.hpp"
#include "batch/run/console_run.hpp"
#include "batch/run/failure.hpp"
#include "batch/run/interruption.hpp"
#include "batch/run/reviewed_run.hpp"
#include "project/project_data.hpp"
#include "safety/words.hpp"

namespace korven::batch {

dossier::AlPostoDelProgetto alPostoDelProgetto(const Opzioni& opzioni) {
    return {.metodoSpinte = opzioni.metodoSpinte,
            .ricalcolaEJ = opzioni.ricalcolaEJ,
            .nSeg = opzioni.nseg};
}

dossier::Fascicolo fascicoloCalcolato(const Opzioni& opzioni, const project::DatiProgetto& usati,
                                      int nSeg, const Accanto& accanto, const Esito& esito) {
    dossier::Identita identita;
    identita.file = opzioni.progetto;
    identita.data = dossier::data(dossier::fontiDiSistema(opzioni.data));
    identita.opzioni = dossier::opzioniDette(alPostoDelProgetto(opzioni), nSeg);
    if (accanto.comando) identita.comando = accanto.comando(nSeg, identita.data);
    FinoAllInterruzione osservatore;
    return dossier::fascicolo({.scritti = esito.scritti,
                               .usati = usati,
                               .nSeg = nSeg,
                               .identita = std::move(identita),
                               .sulProgetto = esito.osservazioni,
                               .norma = accanto.norma},
                              osservatore);
}

bool raccontaVerdetto(const safety::Margine* margine, base::Dialogo& dialogo, Esito& esito) {
    const safety::MargineFase* caduta = margine != nullptr ? margine->caduta() : nullptr;
    if (caduta != nullptr && caduta->rifiuto) {
        analysis::avvisa(dialogo, caduta->fase, *caduta->rifiuto);
        annota({safety::Causa::rifiutato, {}}, esito);
        return false;
    }
    annota(caduta != nullptr ? safety::CausaCorsa{caduta->perche->causa, frase(*caduta->perche)}
                             : safety::CausaCorsa{},
           esito);
    return true;
}

int conFascicolo(const Opzioni& opzioni, Esito& esito, const std::function<void()>& controlla,
                 const Accanto& accanto, const std::function<void(dossier::Fascicolo)>& scrivi) {
    esito.inMemoria = true;
    return calcolaInMemoria(
        opzioni, esito, [&](const analysis::Avvio& avvio, base::Dialogo& dialogo) -> int {
            controlla();
            dossier::Fascicolo fascicolo =
                fascicoloCalcolato(opzioni, project::Progetto, avvio.nSeg, accanto, esito);
            if (Interruzioni::chiesta() != 0) {
                racconta({base::traduttore("Calcolo interrotto dall'utente.")}, esito);
                annota({safety::Causa::fermato, {}}, esito);
                return nonEseguito;
            }
            esito.margine = fascicolo.margine;
            if (fascicolo.norma)
                esito.sullaNorma = std::make_shared<const factors::Combinazioni>(*fascicolo.norma);
            const bool sta = fascicolo.parete.sta();
            scrivi(std::move(fascicolo));
            const bool noto =
                raccontaVerdetto(esito.margine ? &*esito.margine : nullptr, dialogo, esito);
            return noto && sta ? fatto : nonEseguito;
        });
}

}  // namespace korven::batch
