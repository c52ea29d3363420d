#include "tables/quantities.hpp"

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"

namespace korven::tables {

Cella dove(int fase, double z) {
    return fase > 0 ? profondita(z)
                    : senza(base::traduttore("Il valore è 0 lungo tutta la paratia."));
}

std::string titoloFase(int fase) {
    if (fase == 0) return base::traduttore("Inviluppo delle fasi");
    return base::riempito(base::traduttore("Fase %1"), {std::to_string(fase)});
}

}  // namespace korven::tables
