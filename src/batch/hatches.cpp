#include "batch/command_table.hpp"
#include "batch/options/common_options.hpp"
#include "batch/run/command_ports.hpp"
#include "batch/run/drawing_formats.hpp"
#include "drawings/hatch_samples.hpp"

namespace korven::batch {

namespace {

// The one command without a project.
int esegui(const Opzioni& opzioni, const PorteComando& porte, Esito& esito) {
    return disegna(opzioni.disegno, porte.disco, esito, [] {
        drawings::disegnaCampionario();
        return true;
    });
}

}  // namespace

RigaComando comandoCampiture() {
    RigaComando riga = {{"campiture", "hatches"},
                        "disegna i campioni di tutte le campiture",
                        insieme({opzioniComuni(), opzioniDisegno()}),
                        esegui};
    riga.disegna = true;
    return riga;
}

}  // namespace korven::batch
