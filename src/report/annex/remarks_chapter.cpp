#include <string>
#include <utility>

#include "base/code_page.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "report/annex/chapters.hpp"
#include "report/annex/columns.hpp"
#include "review/remark.hpp"
#include "tables/result_table.hpp"

namespace korven::report {

using base::traduttore;

namespace {

// One table a weight: what stops a run is not to be looked for among hints.
document::Tavola tavola(const review::Osservazioni& tutte, review::Peso peso) {
    using tables::parola;
    tables::Prospetto p{
        .titolo = base::conMaiuscola(traduttore(std::string(review::parolaMostrata(peso)))),
        .colonne = {colonnaNumero(), colonna("Osservazione"), colonna("Codice")}};
    int numero = 0;
    for (const review::Osservazione& o : tutte) {
        ++numero;
        if (o.peso == peso)
            p.righe.push_back(
                {tables::cella(numero), parola(o.testo), parola(std::string(o.codice))});
    }
    return {std::move(p)};
}

}  // namespace

void capitoloOsservazioni(const Contesto& contesto, Blocchi& blocchi) {
    using document::Paragrafo;
    const review::Osservazioni& tutte = contesto.fascicolo->osservazioni;
    if (tutte.empty()) {
        blocchi.emplace_back(Paragrafo{
            traduttore("Il programma non ha nulla da osservare sul progetto e sui suoi risultati."),
            {}});
        return;
    }
    blocchi.emplace_back(Paragrafo{
        base::riempito(
            traduttore(
                "Che cosa il programma osserva sul progetto e sui suoi risultati, dalle "
                "osservazioni più pesanti alle più leggere; in tutto %1. Nessuna è taciuta. "
                "Il codice è il nome dell'osservazione nel programma, uguale in ogni lingua."),
            {std::to_string(tutte.size())}),
        {}});
    for (const review::Peso peso :
         {review::Peso::impedisce, review::Peso::pericolo, review::Peso::daVedere})
        if (review::quante(tutte, peso) > 0) blocchi.emplace_back(tavola(tutte, peso));
}

}  // namespace korven::report
