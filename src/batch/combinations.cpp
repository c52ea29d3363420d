#include "factors/combinations.hpp"

#include <iostream>
#include <memory>

#include "base/files.hpp"
#include "batch/command_table.hpp"
#include "batch/options/common_options.hpp"
#include "batch/run/combinations_outcome.hpp"
#include "batch/run/command_ports.hpp"
#include "batch/run/failure.hpp"
#include "batch/run/output_names.hpp"
#include "batch/run/requested_code.hpp"
#include "batch/run/reviewed_run.hpp"
#include "factors/words.hpp"
#include "project/project_data.hpp"

namespace korven::batch {

namespace {

using project::Progetto;

// The first combination that does not stand says what became of the command; the table tells all of
// them where it is shown.
void annotaCadute(const factors::Combinazioni& tutte, const Opzioni& opzioni, Esito& esito) {
    const factors::EsitoCombinazione* caduta = tutte.caduta();
    if (caduta == nullptr) {
        esito.causa = safety::Causa::eseguito;
        return;
    }
    const factors::FaseCombinazione& fase = caduta->fasi.back();
    esito.causa = fase.perche ? fase.perche->causa : safety::Causa::nonDefinito;
    esito.spiegazione = factors::caduta(*caduta);
    if (!opzioni.json && !opzioni.silenzioso) return;
    for (const auto& e : tutte.esiti)
        if (const std::string perche = factors::caduta(e); !perche.empty())
            std::cerr << perche << '\n';
}

int calcola(const Opzioni& opzioni, const PorteComando& porte, const factors::NormaChiesta& chiesta,
            int nSeg, Esito& esito) {
    controllaTabella(opzioni.csv);
    const auto tutte = std::make_shared<const factors::Combinazioni>(
        factors::combinazioni(Progetto, nSeg, chiesta.norma, chiesta.natura));
    annotaCadute(*tutte, opzioni, esito);
    esito.combinazioni = tutte;
    if (!opzioni.csv.empty()) {
        base::scriviFile(opzioni.csv, csvCombinazioni(*tutte), porte.disco);
        esito.fileScritti.push_back(opzioni.csv);
    }
    return tutte->verificate() ? fatto : nonEseguito;
}

int esegui(const Opzioni& opzioni, const PorteComando& porte, Esito& esito) {
    esito.inMemoria = true;
    const auto chiesta = normaChiesta(opzioni, esito);
    if (!chiesta) return esito.codice;
    return calcolaInMemoria(opzioni, esito, [&](const analysis::Avvio& avvio, base::Dialogo&) {
        return calcola(opzioni, porte, *chiesta, avvio.nSeg, esito);
    });
}

}  // namespace

RigaComando comandoCombinazioni() {
    RigaComando riga = {
        {"combinazioni", "combinations"},
        "calcola la paratia con i coefficienti parziali di una norma, in memoria",
        insieme(
            {opzioniModello(), opzioniNorma(true), {opzioneSevero(), opzioneEJ(), opzioneCsv()}}),
        esegui};
    riga.calcola = true;
    return riga;
}

}  // namespace korven::batch
