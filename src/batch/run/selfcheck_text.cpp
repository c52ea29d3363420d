#include "base/translated_texts.hpp"
#include "batch/run/selfcheck_outcome.hpp"
#include "batch/run/text_table.hpp"
#include "verification/table.hpp"
#include "verification/words.hpp"

namespace korven::batch {

namespace {

std::string testo(const tables::Prospetto& prospetto) {
    std::vector<std::string> titoli;
    for (const auto& colonna : prospetto.colonne) titoli.push_back(colonna.testa());
    TabellaTesto tabella(std::move(titoli), true);
    for (const auto& riga : prospetto.righe) {
        std::vector<std::string> celle;
        for (const auto& cella : riga) celle.push_back(cella.testo);
        tabella.riga(std::move(celle));
    }
    std::string tutto = prospetto.titolo + '\n' + tabella.testo();
    for (const auto& nota : prospetto.note) tutto += nota + '\n';
    return tutto + '\n';
}

}  // namespace

std::string testoAutoverifica(const verification::EsitoVerifica& esito) {
    std::string tutto;
    for (const auto& gruppo : esito.gruppi) tutto += testo(verification::prospetto(gruppo));
    return tutto + verification::sommario(esito) + '\n';
}

}  // namespace korven::batch
