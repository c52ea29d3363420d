#include "tables/quantities.hpp"

#include "base/code_page.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"

namespace korven::tables {

Cella profondita(double z, equilibrium::Lato lato) {
    using equilibrium::Lato;
    Cella cella = profondita(z);
    if (lato == Lato::unico) return cella;
    const std::string parole = base::traduttore(lato == Lato::sopra ? "%1 sopra" : "%1 sotto");
    cella.testo = base::riempito(parole, {cella.testo});
    cella.lato = base::senzaSpaziEsterni(base::riempito(parole, {""}));
    return cella;
}

Cella dove(int fase, double z, equilibrium::Lato lato) {
    return fase > 0 ? profondita(z, lato)
                    : senza(base::traduttore("Il valore è 0 lungo tutta la paratia."));
}

std::string titoloFase(int fase) {
    if (fase == 0) return base::traduttore("Inviluppo delle fasi");
    return base::riempito(base::traduttore("Fase %1"), {std::to_string(fase)});
}

}  // namespace korven::tables
