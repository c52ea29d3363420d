#include "report/annex/chosen_rows.hpp"

#include <algorithm>
#include <cassert>
#include <set>
#include <utility>

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"

namespace korven::report {

namespace {

// So many of the rows, the first and the last among them, as evenly as whole numbers go.
std::set<std::size_t> distribuite(std::size_t quante, std::size_t massime) {
    std::set<std::size_t> righe;
    const std::size_t tratti = massime - 1;
    for (std::size_t i = 0; i <= tratti; ++i)
        righe.insert((i * (quante - 1) + tratti / 2) / tratti);
    return righe;
}

}  // namespace

std::vector<std::size_t> righeScelte(std::size_t quante, int massime,
                                     const std::vector<std::size_t>& picchi) {
    assert(massime >= 2);
    if (quante == 0) return {};
    std::set<std::size_t> sempre{0, quante - 1};
    for (const std::size_t i : picchi)
        if (i < quante) sempre.insert(i);
    const auto posti = static_cast<std::size_t>(massime);
    for (std::size_t n = std::min(posti, quante); n > 2; --n) {
        std::set<std::size_t> tutte = distribuite(quante, n);
        tutte.insert(sempre.begin(), sempre.end());
        if (tutte.size() <= posti) return {tutte.begin(), tutte.end()};
    }
    return {sempre.begin(), sempre.end()};
}

void sfoltisci(tables::Prospetto& prospetto, int massime, const std::vector<std::size_t>& picchi) {
    const std::size_t quante = prospetto.righe.size();
    const std::vector<std::size_t> scelte = righeScelte(quante, massime, picchi);
    if (scelte.size() == quante) return;
    std::vector<std::vector<tables::Cella>> righe;
    for (const std::size_t i : scelte) righe.push_back(std::move(prospetto.righe[i]));
    prospetto.righe = std::move(righe);
    prospetto.note.push_back(base::riempito(
        base::traduttore("%1 nodi di %2, distribuiti il più regolarmente possibile, con il primo, "
                         "l'ultimo e quelli dei valori massimi e minimi."),
        {std::to_string(prospetto.righe.size()), std::to_string(quante)}));
}

}  // namespace korven::report
