#pragma once

#include <map>
#include <string>
#include <vector>

#include "base/number_text.hpp"
#include "drawings/hatch_library.hpp"
#include "support/temporary_folder.hpp"

namespace korven::test {

struct CampituraDiProva {
    double unita = 0;  ///< [cm]
    std::vector<drawings::TrattoCampitura> tratti;
    std::string nome;
};

/// Hand-written patterns by their numbers; all other rows are empty.
using LibreriaDiProva = std::map<int, CampituraDiProva>;

/// Writes the four files of a library, its names for one language.
inline void scriviLibreria(const CartellaProvvisoria& cartella, const LibreriaDiProva& libreria,
                           const std::string& sigla = "ita") {
    std::string conteggi, unita, nomi, tratti;
    for (int i = 1; i <= drawings::numeroCampiture; ++i) {
        const auto riga = libreria.find(i);
        const CampituraDiProva c = riga == libreria.end() ? CampituraDiProva{} : riga->second;
        conteggi += std::to_string(c.tratti.size()) + "\r\n";
        unita += base::formattaNumero(c.unita) + "\r\n";
        nomi += c.nome + "\r\n";
        for (const auto& t : c.tratti)
            for (const int valore : {t.x1, t.y1, t.x2, t.y2}) {
                tratti += static_cast<char>(valore & 0xFF);
                tratti += static_cast<char>((valore >> 8) & 0xFF);
            }
    }
    metti(cartella / "set1.rtn", conteggi);
    metti(cartella / "set2.rtn", unita);
    metti(cartella / ("set3" + sigla + ".rtn"), nomi);
    metti(cartella / "set4.rtn", tratti);
}

}  // namespace korven::test
