#include "batch/command_table.hpp"
#include "batch/options/common_options.hpp"
#include "batch/run/command_ports.hpp"
#include "batch/run/drawing_formats.hpp"
#include "batch/run/reviewed_run.hpp"
#include "drawings/section_drawing.hpp"
#include "project/project_data.hpp"

namespace korven::batch {

namespace {

int esegui(const Opzioni& opzioni, const PorteComando& porte, Esito& esito) {
    preparaProgetto(opzioni, esito);
    return disegna(opzioni.disegno, porte.disco, esito, [] {
        drawings::disegnaSezione(project::Progetto);
        return true;
    });
}

}  // namespace

RigaComando comandoSezione() {
    RigaComando riga = {{"sezione", "section"},
                        "disegna la sezione strutturale",
                        insieme({opzioniProgetto(), opzioniDisegno()}),
                        esegui};
    riga.disegna = true;
    return riga;
}

}  // namespace korven::batch
