#include <algorithm>
#include <vector>

#include "batch/command_table.hpp"
#include "batch/options/common_options.hpp"
#include "batch/run/command_ports.hpp"
#include "batch/run/console_run.hpp"
#include "batch/run/drawing_formats.hpp"
#include "batch/run/reviewed_run.hpp"
#include "commands/diagram_output.hpp"
#include "drawings/diagram_rows.hpp"
#include "project/project_data.hpp"

namespace korven::batch {

namespace {

int esegui(const Opzioni& opzioni, const PorteComando& porte, Esito& esito) {
    return calcolaConRilievi(opzioni, esito, [&]() -> int {
        return disegna(opzioni.disegno, porte.disco, esito, [&] {
            CorsaConsole corsa(opzioni, porte, esito);
            commands::UscitaDiagramma uscita;
            if (!corsa.esegui(opzioni.tipo, uscita)) return false;
            annotaRisultati(esito);
            return !corsa.interrotta();
        });
    });
}

// By their Italian names, as the help has them.
const std::vector<drawings::RigaDiagramma>& inOrdine() {
    static const auto ordinati = [] {
        const auto tutte = drawings::diagrammi();
        std::vector righe(tutte.begin(), tutte.end());
        std::sort(righe.begin(), righe.end(), [](const auto& una, const auto& altra) {
            return una.nome.italiano < altra.nome.italiano;
        });
        return righe;
    }();
    return ordinati;
}

RigaOpzione tipo() {
    RigaOpzione riga = {
        {"--tipo", "--type"}, "grandezza del diagramma", [](Opzioni& o, std::size_t quale) {
            o.tipo = inOrdine()[quale].diagramma;
        }};
    for (const auto& diagramma : inOrdine()) riga.valori.push_back(diagramma.nome);
    riga.obbligatoria = true;
    return riga;
}

}  // namespace

RigaComando comandoDiagramma() {
    const RigaOpzione fase = {
        {"--fase", "--stage"},
        "fase da disegnare; 0 per tutte",
        Conta{0, project::massimoFasi, [](Opzioni& o) -> int& { return o.fase; }},
        base::uguali("N")};
    RigaComando riga = {{"diagramma", "diagram"},
                        "esegue il calcolo e disegna un diagramma",
                        insieme({opzioniCalcolo(), {tipo(), fase}, opzioniDisegno()}),
                        esegui};
    riga.calcola = true;
    riga.disegna = true;
    return riga;
}

}  // namespace korven::batch
