#include "panels/empty_cells.hpp"

#include <algorithm>
#include <utility>
#include <vector>

#include "base/code_page.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "masks/needed_cells.hpp"
#include "panels/grid_rows.hpp"

namespace korven::panels {

namespace {

using base::riempito;
using base::traduttore;
using masks::ModelloGriglia;
using masks::PostoGriglia;

std::vector<PostoGriglia> vuote(const ModelloGriglia& griglia, masks::NumeroMaschera numero,
                                const project::DatiProgetto& dati) {
    std::vector<int> colonne;
    for (int c = 1; c <= griglia.colonne(); ++c)
        if (griglia.numerica(c) && masks::cellaNecessaria(numero, c, dati)) colonne.push_back(c);
    std::vector<PostoGriglia> posti;
    for (int r = 1; r <= masks::CelleGriglia::righe; ++r) {
        if (!rigaHaDati(griglia, r)) continue;
        for (const int c : colonne)
            if (base::senzaSpaziEsterni(digitato(griglia, {r, c})).empty()) posti.push_back({r, c});
    }
    return posti;
}

std::string parole(const ModelloGriglia& griglia, const std::vector<PostoGriglia>& posti) {
    const int prima = posti.front().riga;
    std::string nomi;
    int altre = 0, ultima = prima;
    for (const PostoGriglia& posto : posti) {
        if (posto.riga == prima)
            nomi += (nomi.empty() ? "" : ", ") + griglia.etichetta(posto.colonna);
        if (posto.riga != std::exchange(ultima, posto.riga)) ++altre;
    }
    std::string testo =
        riempito(traduttore("Celle vuote nella riga %1: %2."), {std::to_string(prima), nomi});
    if (altre > 0)
        testo +=
            ' ' + riempito(traduttore("Altre righe con celle vuote: %1."), {std::to_string(altre)});
    return testo + ' ' + traduttore("La conferma legge una cella vuota come 0.");
}

}  // namespace

std::optional<CelleVuote> celleVuote(const ModelloGriglia& griglia, masks::NumeroMaschera numero,
                                     const project::DatiProgetto& dati) {
    const auto posti = vuote(griglia, numero, dati);
    if (posti.empty()) return {};
    const PostoGriglia qui = griglia.corrente();
    const auto dopo = std::find_if(posti.begin(), posti.end(), [qui](const PostoGriglia& p) {
        return std::pair(p.riga, p.colonna) > std::pair(qui.riga, qui.colonna);
    });
    return CelleVuote{dopo == posti.end() ? posti.front() : *dopo, parole(griglia, posti)};
}

}  // namespace korven::panels
