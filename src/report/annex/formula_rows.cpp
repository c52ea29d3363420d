#include "report/annex/formula_rows.hpp"

#include <utility>

#include "base/code_page.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "project/shown_number.hpp"
#include "report/annex/columns.hpp"
#include "report/annex/table_pieces.hpp"

namespace korven::report {

using base::riempito;
using base::traduttore;
using tables::Prospetto;

Termine termine(std::string simbolo, double valore, int decimali) {
    std::string testo = project::numeroMostrato(valore, decimali);
    if (testo.size() > 1 && testo.front() == '-') testo = '(' + testo + ')';
    return {std::move(simbolo), std::move(testo)};
}

Prospetto prospettoFormule(const char* titolo) {
    return {.titolo = traduttore(titolo),
            .colonne = {colonna("Che cos'è"), colonna("Formula"), colonna("Con i valori"),
                        numeri("Valore"), colonna("Unità")}};
}

void aggiungi(const RigaFormula& r, Prospetto& p) {
    std::vector<std::string> simboli, valori;
    for (const Termine& t : r.termini) {
        simboli.push_back(t.simbolo);
        valori.push_back(t.valore);
    }
    const std::string uguale = r.formula.empty() ? "" : " = ";
    p.righe.push_back({tables::parola(base::conMaiuscola(traduttore(r.cosa))),
                       tables::parola(r.simbolo + uguale + riempito(r.formula, simboli)),
                       tables::parola(riempito(r.formula, valori)),
                       tables::cella(r.valore, r.decimali, project::unita::nessuna),
                       tables::parola(r.unita)});
}

}  // namespace korven::report
