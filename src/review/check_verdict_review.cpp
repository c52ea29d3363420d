#include "base/code_page.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "project/shown_number.hpp"
#include "review/result_checks.hpp"
#include "safety/mesh_words.hpp"

// The verdicts on the section that the report does not give: by the numbers of the equilibrium, and
// by what finer meshes make of a check.

namespace korven::review {

namespace {

using base::traduttore;
using safety::VerificaSezione;

std::string percento(const results::Uso& uso) {
    return project::numeroMostrato(uso.uso().value_or(0), 1, project::unita::percento);
}

// ", con quelli della relazione 98.0 %".
std::string dellaRelazione(const VerificaSezione& v) {
    if (!v.relazione) return {};
    return base::riempito(traduttore(", con quelli della relazione %1 %"),
                          {percento(*v.relazione)});
}

// One that fails in the report is told with the report's numbers.
void soloPerEquilibrio(const VerificaSezione& v, ElencoOsservazioni& elenco) {
    if (!v.equilibrio || !v.equilibrio->fallita || (v.relazione && v.relazione->fallita)) return;
    elenco.aggiungi("verifica-fallita-in-equilibrio", {},
                    {base::conMaiuscola(traduttore(safety::nome(v.cosa))), percento(*v.equilibrio),
                     dellaRelazione(v)});
}

}  // namespace

void controlloGiudizi(const safety::Margine& margine, ElencoOsservazioni& elenco) {
    for (const VerificaSezione& v : margine.verifiche) soloPerEquilibrio(v, elenco);
    for (const safety::AvvisoMaglia& avviso : safety::avvisiMaglia(margine))
        if (avviso.verdetto) elenco.conParole("verdetto-con-la-maglia", avviso.testo);
}

}  // namespace korven::review
