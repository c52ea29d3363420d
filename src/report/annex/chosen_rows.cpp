#include "report/annex/chosen_rows.hpp"

#include <cassert>
#include <set>
#include <utility>

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"

namespace korven::report {

RigheScelte righeScelte(std::size_t quante, int massime, const std::vector<std::size_t>& picchi) {
    assert(massime >= 2);
    RigheScelte scelte;
    if (quante == 0) return scelte;
    std::set<std::size_t> sempre{0, quante - 1};
    for (const std::size_t i : picchi)
        if (i < quante) sempre.insert(i);
    std::set<std::size_t> tutte;
    for (std::size_t passo = 1;; ++passo) {
        tutte = sempre;
        for (std::size_t i = 0; i < quante; i += passo) tutte.insert(i);
        scelte.passo = static_cast<int>(passo);
        if (tutte.size() <= static_cast<std::size_t>(massime) || passo >= quante) break;
    }
    scelte.quali.assign(tutte.begin(), tutte.end());
    return scelte;
}

void sfoltisci(tables::Prospetto& prospetto, int massime, const std::vector<std::size_t>& picchi) {
    const std::size_t quante = prospetto.righe.size();
    const RigheScelte scelte = righeScelte(quante, massime, picchi);
    if (scelte.quali.size() == quante) return;
    std::vector<std::vector<tables::Cella>> righe;
    for (const std::size_t i : scelte.quali) righe.push_back(std::move(prospetto.righe[i]));
    prospetto.righe = std::move(righe);
    prospetto.note.push_back(base::riempito(
        base::traduttore("Un nodo ogni %1, con il primo, l'ultimo e quelli dei valori massimi e "
                         "minimi: %2 di %3."),
        {std::to_string(scelte.passo), std::to_string(prospetto.righe.size()),
         std::to_string(quante)}));
}

}  // namespace korven::report
