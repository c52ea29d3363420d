#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "base/files.hpp"
#include "base/folders/file_names.hpp"
#include "base/translated_texts.hpp"
#include "batch/command_table.hpp"
#include "batch/options/common_options.hpp"
#include "batch/run/annex_output.hpp"
#include "batch/run/command_ports.hpp"
#include "batch/run/console_run.hpp"
#include "batch/run/drawing_formats.hpp"
#include "batch/run/failure.hpp"
#include "batch/run/interruption.hpp"
#include "batch/run/output_names.hpp"
#include "batch/run/reviewed_run.hpp"
#include "dossier/identity.hpp"
#include "project/project_data.hpp"
#include "safety/words.hpp"

namespace korven::batch {

namespace {

// Without a name the document goes beside the project, as the one that is handed in.
FormatiAllegato formati(const Opzioni& opzioni) {
    FormatiAllegato chiesti = opzioni.allegato;
    if (chiesti.nessuno()) chiesti.pdf = nomeProprio(base::parolaAllegato, "pdf");
    return chiesti;
}

void controllaFile(const std::vector<std::string>& uscite) {
    for (const auto& uscita : uscite) controllaTabella(uscita);
    controllaNomi(uscite, {});
}

int esegui(const Opzioni& opzioni, const PorteComando& porte, Esito& esito) {
    esito.inMemoria = true;
    return calcolaInMemoria(
        opzioni, esito, [&](const analysis::Avvio&, base::Dialogo& dialogo) -> int {
            if (!opzioni.uscita.empty()) base::creaCartella(opzioni.uscita);
            const FormatiAllegato chiesti = formati(opzioni);
            controllaFile(chiesti.file());
            const AmbienteDisegno ambiente(!chiesti.pdf.empty());
            dossier::Fascicolo fascicolo =
                fascicoloAllegato(opzioni, project::Progetto, chiesti, esito);
            if (Interruzioni::chiesta() != 0) {
                racconta({base::traduttore("Calcolo interrotto dall'utente.")}, esito);
                annota({safety::Causa::fermato, {}}, esito);
                return nonEseguito;
            }
            esito.margine = fascicolo.margine;
            const bool sta = fascicolo.parete.sta();
            scriviAllegato(std::move(fascicolo), chiesti, porte.disco, esito);
            const safety::MargineFase* caduta = esito.margine ? esito.margine->caduta() : nullptr;
            if (caduta != nullptr && caduta->rifiuto) {
                analysis::avvisa(dialogo, caduta->fase, *caduta->rifiuto);
                annota({safety::Causa::rifiutato, {}}, esito);
                return nonEseguito;
            }
            annota(caduta != nullptr
                       ? safety::CausaCorsa{caduta->perche->causa, frase(*caduta->perche)}
                       : safety::CausaCorsa{},
                   esito);
            return sta ? fatto : nonEseguito;
        });
}

template <std::string FormatiAllegato::*file>
bool leggiFile(Opzioni& o, const std::string& valore) {
    o.allegato.*file = valore;
    return percorsoAmmesso(valore);
}

std::vector<RigaOpzione> opzioniAllegato() {
    using base::uguali;
    return {
        {uguali("--pdf"), "scrive l'allegato in formato PDF", leggiFile<&FormatiAllegato::pdf>,
         uguali("FILE")},
        {uguali("--doc"), "scrive l'allegato come documento per elaboratori di testi (DOC)",
         leggiFile<&FormatiAllegato::documento>, uguali("FILE")},
        {uguali("--txt"), "scrive l'allegato come testo semplice",
         leggiFile<&FormatiAllegato::testo>, uguali("FILE")},
        {nomeOpzioneRighe,
         "righe della tabella dei nodi di ogni fase, al massimo",
         Conta{2, std::numeric_limits<int>::max(),
               [](Opzioni& o) -> int& { return o.allegato.righe; }},
         uguali("N"),
         {},
         std::to_string(FormatiAllegato().righe)},
        {nomeOpzioneData,
         "data del documento (altrimenti SOURCE_DATE_EPOCH, poi oggi)",
         [](Opzioni& o, const std::string& valore) {
             o.allegato.data = valore;
             return dossier::dataValida(valore);
         },
         {"AAAA-MM-GG", "YYYY-MM-DD"}},
    };
}

}  // namespace

RigaComando comandoAllegato() {
    RigaComando riga = {
        base::parolaAllegato,
        "scrive l'allegato di calcolo: ipotesi, dati, fasi, verifiche e margine",
        insieme({opzioniModello(), {opzioneSevero(), opzioneEJ()}, opzioniAllegato()}), esegui};
    riga.calcola = true;
    return riga;
}

}  // namespace korven::batch
