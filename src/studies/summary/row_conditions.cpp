#include "studies/summary/row_conditions.hpp"

#include <variant>

#include "base/number_text.hpp"

namespace korven::studies {

CondizioniLette leggiCondizioni(std::span<const std::string> testi, const RigheStudio& righe) {
    CondizioniLette lette;
    for (const std::string& testo : testi) {
        const auto letta = leggiCondizione(testo, righe.nomi());
        if (const auto* difetto = std::get_if<DifettoCondizione>(&letta))
            return {.difetto = {{testo, *difetto}}};
        const auto& condizione = std::get<Condizione>(letta);
        if (righe.parole(condizione.posto) != nullptr)
            return {
                .difetto = {
                    {testo, {DifettoCondizione::Motivo::parola, righe.nomi()[condizione.posto]}}}};
        lette.condizioni.push_back(condizione);
    }
    return lette;
}

std::string detta(const Condizione& condizione, std::span<const ValoreMostrato> valori) {
    const ValoreMostrato& valore = valori[condizione.posto];
    return valore.confronto(segno(condizione.confronto),
                            base::testoNumero(valore.mostrato(condizione.limite)));
}

}  // namespace korven::studies
