#include "base/files.hpp"
#include "batch/command_table.hpp"
#include "batch/options/common_options.hpp"
#include "batch/run/command_ports.hpp"
#include "batch/run/failure.hpp"
#include "batch/run/field_text.hpp"
#include "batch/run/output_names.hpp"
#include "batch/run/reviewed_run.hpp"

namespace korven::batch {

namespace {

int esegui(const Opzioni& opzioni, const PorteComando& porte, Esito& esito) {
    esito.inMemoria = true;
    preparaProgetto(opzioni, esito);
    controllaTabella(opzioni.csv);
    if (!opzioni.csv.empty()) {
        base::scriviFile(opzioni.csv, csvCampi(esito.scritti), porte.disco);
        esito.fileScritti.push_back(opzioni.csv);
    }
    esito.elencaCampi = true;
    return fatto;
}

}  // namespace

RigaComando comandoCampi() {
    return {base::nomeComandoCampi,
            "elenca i campi del progetto, con il nome che hanno per i programmi",
            insieme({opzioniProgetto(), {opzioneCsv()}}), esegui};
}

}  // namespace korven::batch
