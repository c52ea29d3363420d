#include "analysis/unfinished_results.hpp"

#include <algorithm>
#include <string_view>

#include "base/file_error.hpp"
#include "base/number_text.hpp"
#include "base/text_lines.hpp"
#include "project/project_file.hpp"
#include "structure/partial_factors.hpp"

namespace korven::analysis {

namespace {

constexpr char nomi = 'n', nodo = 'v', numero = '1', altra = '?';
constexpr std::size_t righeChiusura = 5;

char genere(std::string_view riga) {
    constexpr std::ptrdiff_t virgole = 12;
    if (riga.starts_with("sigmaVv")) return nomi;
    if (std::count(riga.begin(), riga.end(), ',') == virgole) return nodo;
    return base::soloUnNumero(riga) ? numero : altra;
}

// The kinds of all lines of a finished file with the head's stages and the nodes of its first.
std::string attese(const std::string& generi, int nFasi) {
    const std::size_t fine = std::min(generi.find_first_not_of(nodo, 1), generi.size());
    const std::string fase = nomi + std::string(generi.empty() ? 0 : fine - 1, nodo);
    std::string tutte;
    for (int k = 1; k <= nFasi; ++k) tutte += fase;
    return tutte + std::string(righeChiusura, numero);
}

}  // namespace

bool risultatiIncompiuti(const std::string& contenuto) {
    base::LettoreRighe file({}, contenuto);
    project::DatiProgetto testa;
    try {
        project::leggiDati(file, testa);
    } catch (const base::ErroreFile&) {
        return file.fine();
    }
    std::string generi, ultima;
    while (!file.fine()) {
        ultima = file.riga({});
        generi += genere(ultima);
    }
    const std::string finito = attese(generi, testa.nFasi);
    if (generi.starts_with(finito))
        return generi.size() == finito.size() && !file.rigaIntera() &&
               base::leggiNumero(ultima) != structure::fsAzioniSezione;
    if (!generi.empty()) generi.pop_back();
    return finito.starts_with(generi);
}

}  // namespace korven::analysis
