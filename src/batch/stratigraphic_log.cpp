#include "drawings/log/stratigraphic_log.hpp"

#include "batch/command_table.hpp"
#include "batch/options/common_options.hpp"
#include "batch/options/paper.hpp"
#include "batch/run/command_ports.hpp"
#include "batch/run/console.hpp"
#include "batch/run/console_run.hpp"
#include "batch/run/drawing_formats.hpp"
#include "batch/run/reviewed_run.hpp"
#include "project/project_data.hpp"

namespace korven::batch {

namespace {

int esegui(const Opzioni& opzioni, const PorteComando& porte, Esito& esito) {
    preparaProgetto(opzioni, esito);
    return disegna(opzioni.disegno, porte.disco, esito, [&] {
        if (stratigrafiaTroppoAlta(esito)) return false;
        AvanzamentoConsole vista(false);
        DialogoConsole dialogo(opzioni.ricalcolaEJ, vista);
        const bool disegnata =
            drawings::disegnaStratigrafia(dialogo, opzioni.disegno.foglio.altezza);
        if (!disegnata) esito.messaggi = dialogo.messaggi();
        return disegnata;
    });
}

RigaOpzione foglio() {
    RigaOpzione riga = {
        {"--foglio", "--paper"},
        "foglio della stampante, dalla cui altezza dipende la colonna",
        [](Opzioni& o, std::size_t quale) { o.disegno.foglio = fogli()[quale].foglio; }};
    for (const auto& [nome, misure] : fogli()) riga.valori.push_back(nome);
    riga.coda = " [A4]";
    return riga;
}

}  // namespace

RigaComando comandoStratigrafia() {
    RigaComando riga = {{"stratigrafia", "log"},
                        "disegna la colonna stratigrafica",
                        insieme({opzioniProgetto(), opzioniDisegno(), {foglio()}}),
                        esegui};
    riga.disegna = true;
    return riga;
}

}  // namespace korven::batch
