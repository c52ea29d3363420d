#include <string>
#include <utility>

#include "base/code_page.hpp"
#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "report/annex/chapters.hpp"
#include "report/annex/columns.hpp"
#include "review/equilibrium_remarks.hpp"
#include "review/remark.hpp"
#include "safety/words.hpp"
#include "tables/result_table.hpp"

namespace korven::report {

using base::traduttore;

namespace {

// What is stopped is the run of the report: the stages of this document are not of it.
std::string titolo(review::Peso peso) {
    return base::conMaiuscola(traduttore(peso == review::Peso::impedisce
                                             ? "impedisce il calcolo per fasi"
                                             : std::string(review::parolaMostrata(peso))));
}

// Elsewhere a remark names the command that computes what stands here.
std::string testo(const dossier::Fascicolo& f, const review::Osservazione& o) {
    if (o.codice != review::codiceOscilla || !f.margine) return o.testo;
    const auto diagnosi = review::oscillazione(f.parete.dati, *f.margine);
    if (!diagnosi) return o.testo;
    return safety::inBreve(*diagnosi) + base::puntoEVirgola() +
           traduttore("la relazione non ha numeri, il suo equilibrio è nel capitolo Fasi");
}

// One table a weight: what stops a run is not to be looked for among hints.
document::Tavola tavola(const dossier::Fascicolo& f, review::Peso peso) {
    using tables::parola;
    tables::Prospetto p{.titolo = titolo(peso),
                        .colonne = {colonnaNumero(), colonna("Osservazione"), colonna("Codice")}};
    int numero = 0;
    for (const review::Osservazione& o : f.osservazioni) {
        ++numero;
        if (o.peso == peso)
            p.righe.push_back({tables::cella(numero), parola(base::conMaiuscola(testo(f, o))),
                               parola(std::string(o.codice))});
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
    if (contesto.fascicolo->conRelazione())
        blocchi.emplace_back(Paragrafo{
            traduttore("Le azioni e gli sfruttamenti delle osservazioni sulle verifiche della "
                       "sezione sono numeri della relazione. F, resistenza passiva, errore di "
                       "maglia e movimenti sono della soluzione di equilibrio; dove "
                       "un'osservazione mette i due a confronto, li nomina."),
            document::Stile::nota});
    for (const review::Peso peso :
         {review::Peso::impedisce, review::Peso::pericolo, review::Peso::daVedere})
        if (review::quante(tutte, peso) > 0)
            blocchi.emplace_back(tavola(*contesto.fascicolo, peso));
}

}  // namespace korven::report
