#include "factors/combinations.hpp"

#include <iostream>
#include <memory>

#include "base/files.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "batch/command_table.hpp"
#include "batch/options/common_options.hpp"
#include "batch/run/combinations_outcome.hpp"
#include "batch/run/command_ports.hpp"
#include "batch/run/failure.hpp"
#include "batch/run/output_names.hpp"
#include "batch/run/reviewed_run.hpp"
#include "factors/catalogue.hpp"
#include "factors/words.hpp"
#include "project/project_data.hpp"

namespace korven::batch {

namespace {

using base::traduttore;
using project::Progetto;

std::string elencoNorme(const factors::Catalogo& catalogo) {
    std::string nomi;
    for (const factors::Norma& norma : catalogo.norme)
        nomi.append(nomi.empty() ? "" : ", ").append(norma.nome);
    return nomi;
}

// The code that was asked for; nullptr once it is told why there is none, with the exit code.
const factors::Norma* normaChiesta(const Opzioni& opzioni, const factors::Catalogo& catalogo,
                                   Esito& esito) {
    for (const factors::RigaGuasta& guasta : catalogo.guaste)
        fallisci(ingressoRotto, guasta.frase(), esito);
    if (!catalogo.guaste.empty()) return nullptr;
    const factors::Norma* norma = catalogo.norma(opzioni.norma);
    if (norma == nullptr)
        fallisci(usoErrato,
                 base::riempito(traduttore("nessuna norma ha il nome «%1»; ci sono: %2"),
                                {opzioni.norma, elencoNorme(catalogo)}),
                 esito);
    return norma;
}

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

int calcola(const Opzioni& opzioni, const PorteComando& porte, const factors::Norma& norma,
            int nSeg, Esito& esito) {
    controllaTabella(opzioni.csv);
    const auto tutte = std::make_shared<const factors::Combinazioni>(
        factors::combinazioni(Progetto, nSeg, norma, opzioni.natura));
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
    const factors::Catalogo catalogo = factors::leggiCombinazioni();
    const factors::Norma* norma = normaChiesta(opzioni, catalogo, esito);
    if (norma == nullptr) return esito.codice;
    return calcolaInMemoria(opzioni, esito, [&](const analysis::Avvio& avvio, base::Dialogo&) {
        return calcola(opzioni, porte, *norma, avvio.nSeg, esito);
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
