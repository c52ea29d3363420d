#include "studies/summary/row_conditions.hpp"

#include <variant>

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

}  // namespace korven::studies
