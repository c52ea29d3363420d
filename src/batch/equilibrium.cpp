#include <iostream>
#include <utility>

#include "base/files.hpp"
#include "base/translated_texts.hpp"
#include "batch/command_table.hpp"
#include "batch/options/common_options.hpp"
#include "batch/run/command_ports.hpp"
#include "batch/run/equilibrium_outcome.hpp"
#include "batch/run/failure.hpp"
#include "batch/run/output_names.hpp"
#include "batch/run/reviewed_run.hpp"
#include "safety/words.hpp"

namespace korven::batch {

namespace {

void scriviCsv(const Opzioni& opzioni, const base::Disco& disco, Esito& esito) {
    if (opzioni.csv.empty()) return;
    base::scriviFile(opzioni.csv, csvEquilibrio(*esito.equilibrio), disco);
    esito.fileScritti.push_back(opzioni.csv);
}

// The table says it too, where it is shown.
void annotaCaduta(const safety::FaseRaccontata& caduta, const Opzioni& opzioni, Esito& esito) {
    esito.causa = caduta.perche->causa;
    esito.spiegazione = caduta.frase();
    if (opzioni.json || opzioni.silenzioso) std::cerr << esito.spiegazione << '\n';
}

int esegui(const Opzioni& opzioni, const PorteComando& porte, Esito& esito) {
    esito.inMemoria = true;
    return calcolaInMemoria(
        opzioni, esito, [&](const analysis::Avvio& avvio, base::Dialogo& dialogo) -> int {
            controllaTabella(opzioni.csv);
            safety::EquilibrioRaccontato equilibrio =
                safety::raccontaFasi(project::Progetto, avvio.nSeg);
            const safety::FaseRaccontata* caduta = equilibrio.caduta();
            if (caduta != nullptr && caduta->fase.rifiuto) {
                analysis::avvisa(dialogo, caduta->fase.fase, *caduta->fase.rifiuto);
                annota({safety::Causa::rifiutato, {}}, esito);
                return nonEseguito;
            }
            if (caduta == nullptr)
                esito.causa = safety::Causa::eseguito;
            else
                annotaCaduta(*caduta, opzioni, esito);
            const int codice = caduta == nullptr ? fatto : nonEseguito;
            esito.equilibrio = std::move(equilibrio);
            scriviCsv(opzioni, porte.disco, esito);
            return codice;
        });
}

}  // namespace

RigaComando comandoEquilibrio() {
    RigaComando riga = {
        safety::comandoEquilibrio,
        "calcola la soluzione di equilibrio di ogni fase, in memoria e senza scrivere risultati",
        insieme({opzioniModello(), {opzioneSevero(), opzioneEJ(), opzioneCsv()}}), esegui};
    riga.calcola = true;
    return riga;
}

}  // namespace korven::batch
