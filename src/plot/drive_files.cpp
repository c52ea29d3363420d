#include "plot/drive_files.hpp"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "plot/spill_files.hpp"

namespace korven::plot {

namespace {

// Names that are no whole paths lie in the working folder, which may change.
std::string cartella(std::string_view windir) {
    std::error_code errore;
    return std::filesystem::absolute(nomeFileScarico(windir, 0), errore).string();
}

}  // namespace

std::string FileDiUnita::percorso(std::string_view windir, int numero) const {
    const auto unita = unita_.find(cartella(windir));
    const auto indice = static_cast<std::size_t>(numero - 1);
    if (unita == unita_.end() || indice >= unita->second.size())
        return nomeFileScarico(windir, numero);
    return nomeFileScarico(windir, unita->second[indice].numero);
}

FileDiUnita::Preso FileDiUnita::prendi(std::string_view windir, int daNumero) {
    Preso preso{daNumero, {}};
    while (!preso.file.prendiFile(nomeFileScarico(windir, preso.numero))) ++preso.numero;
    return preso;
}

void FileDiUnita::scrivi(std::string_view windir, int numero, std::string_view testo,
                         const base::Disco& disco) {
    Unita& presi = unita_[cartella(windir)];
    const auto indice = static_cast<std::size_t>(numero - 1);
    // A file that somebody removed meanwhile is made anew, and so are those after it: the numbers
    // always rise.
    presi.erase(std::find_if(presi.begin(), presi.end(),
                             [](const Preso& preso) { return !preso.file.portaIlNome(); }),
                presi.end());
    while (presi.size() <= indice)
        presi.push_back(prendi(windir, presi.empty() ? 1 : presi.back().numero + 1));
    presi[indice].file.riscrivi(testo, disco);
}

}  // namespace korven::plot
