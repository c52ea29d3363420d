#include "report/annex/table_pieces.hpp"

#include <charconv>
#include <cmath>
#include <utility>

#include "base/code_page.hpp"
#include "base/translated_texts.hpp"
#include "safety/words.hpp"
#include "tables/node_table.hpp"

namespace korven::report {

using base::traduttore;
using tables::Cella;
using tables::Colonna;

Colonna numeri(const char* titolo) { return numeri(project::unita::nessuna, titolo); }

Colonna numeri(const project::Unita& unita, const char* titolo) {
    return {.titolo = traduttore(titolo), .unita = std::string(unita.mostrata)};
}

Colonna simboli(const project::Unita& unita, const char* simbolo) {
    return {.titolo = simbolo, .unita = std::string(unita.mostrata)};
}

Cella conUnita(const project::Unita& unita, const char* titolo) {
    return tables::parola(traduttore(titolo) + " " + traParentesi(unita));
}

Cella ordineDiGrandezza(double mostrato) {
    if (!std::isfinite(mostrato)) return tables::senza(traduttore("nessun numero"));
    char testo[32] = "0";
    char* fine = testo + 1;
    if (mostrato != 0)
        fine =
            std::to_chars(testo, testo + sizeof testo, mostrato, std::chars_format::scientific, 1)
                .ptr;
    return {.testo = std::string(testo, fine), .numero = mostrato + 0.0};
}

bool stampataNulla(const Cella& cella) {
    return cella.numero && cella.testo.find_first_not_of("-0.") == std::string::npos;
}

Cella senzaPosto() {
    return tables::senza(
        traduttore("Il valore stampato è 0: la sua profondità non ha significato."));
}

void paragrafo(std::string testo, Blocchi& blocchi, document::Stile stile) {
    if (!testo.empty()) blocchi.emplace_back(document::Paragrafo{std::move(testo), stile});
}

void tavola(tables::Prospetto prospetto, Blocchi& blocchi) {
    blocchi.emplace_back(document::Tavola{std::move(prospetto)});
}

std::string inFrase(std::string testo) {
    if (testo.empty()) return testo;
    testo = base::conMaiuscola(testo);
    return testo.back() == '.' ? testo : testo + '.';
}

std::string percheInBreve(const live::PareteViva& parete, int fase) {
    const std::string tutto = tables::perche(parete, fase);
    const bool qui = parete.rifiuto.empty() && parete.perche && fase <= parete.perche->fase;
    const std::string breve = qui ? safety::inPocheParole(*parete.perche) : std::string();
    return inFrase(tutto.empty() || breve.empty() ? tutto : breve);
}

}  // namespace korven::report
