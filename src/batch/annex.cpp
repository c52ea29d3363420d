#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/files.hpp"
#include "base/folders/file_names.hpp"
#include "base/option_names.hpp"
#include "batch/command_table.hpp"
#include "batch/options/common_options.hpp"
#include "batch/options/wrong_usage.hpp"
#include "batch/run/annex_output.hpp"
#include "batch/run/command_ports.hpp"
#include "batch/run/drawing_formats.hpp"
#include "batch/run/failure.hpp"
#include "batch/run/output_names.hpp"
#include "batch/run/requested_code.hpp"

namespace korven::batch {

namespace {

// Without a name the document goes beside the project, as the one that is handed in.
FormatiAllegato formati(const Opzioni& opzioni) {
    FormatiAllegato chiesti = opzioni.allegato;
    if (chiesti.nessuno()) chiesti.pdf = nomeProprio(base::parolaAllegato, "pdf");
    return chiesti;
}

// What the loads are only matters to a code.
bool caricoSenzaNorma(const Opzioni& opzioni) {
    return opzioni.norma.empty() && opzioni.natura != factors::NaturaCarichi();
}

int esegui(const Opzioni& opzioni, const PorteComando& porte, Esito& esito) {
    if (caricoSenzaNorma(opzioni)) {
        esito.inMemoria = true;
        fallisci(usoErrato, mancaArgomento(base::nomeOpzioneNorma.mostrato()), esito);
        return esito.codice;
    }
    std::optional<factors::NormaChiesta> norma;
    if (!opzioni.norma.empty()) {
        esito.inMemoria = true;
        norma = normaChiesta(opzioni, esito);
        if (!norma) return esito.codice;
    }
    FormatiAllegato chiesti;
    return conFascicolo(
        opzioni, esito,
        [&] {
            if (!opzioni.uscita.empty()) base::creaCartella(opzioni.uscita);
            chiesti = formati(opzioni);
            controllaFile(chiesti.file(), porte.disco);
        },
        {.comando =
             [&](int nSeg, const std::string& data) {
                 return comandoAllegato(opzioni, chiesti, norma)(nSeg, data);
             },
         .norma = norma},
        [&](dossier::Fascicolo fascicolo) {
            const AmbienteDisegno ambiente(!chiesti.pdf.empty());
            scriviAllegato(std::move(fascicolo), chiesti, porte.disco, esito);
        });
}

template <std::string FormatiAllegato::*file>
bool leggiFile(Opzioni& o, const std::string& valore) {
    o.allegato.*file = valore;
    return percorsoAmmesso(valore);
}

std::vector<RigaOpzione> opzioniAllegato() {
    using base::uguali;
    return {{uguali("--pdf"), "scrive l'allegato in formato PDF", leggiFile<&FormatiAllegato::pdf>,
             uguali("FILE")},
            {uguali("--doc"), "scrive l'allegato come documento per elaboratori di testi (DOC)",
             leggiFile<&FormatiAllegato::documento>, uguali("FILE")},
            {uguali("--txt"), "scrive l'allegato come testo semplice",
             leggiFile<&FormatiAllegato::testo>, uguali("FILE")},
            opzioneRighe(),
            opzioneData()};
}

}  // namespace

RigaComando comandoAllegato() {
    RigaComando riga = {base::parolaAllegato,
                        "scrive l'allegato di calcolo: ipotesi, dati, fasi, verifiche e margine",
                        insieme({opzioniModello(),
                                 {opzioneSevero(), opzioneEJ()},
                                 opzioniNorma(false),
                                 opzioniAllegato()}),
                        esegui};
    riga.calcola = true;
    return riga;
}

}  // namespace korven::batch
