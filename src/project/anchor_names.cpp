#include "project/anchor_names.hpp"

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "project/codes.hpp"

namespace korven::project {

using base::riempito;
using base::traduttore;

bool puntone(const DatiProgetto& dati, int j) {
    return dati.tipoTirante[j] == TipoTirante::trazioneCompressione;
}

std::string nomeTirante(const DatiProgetto& dati, int j) {
    return riempito(traduttore(puntone(dati, j) ? "Puntone %1" : "Tirante %1"),
                    {std::to_string(j)});
}

std::string siglaTirante(const DatiProgetto& dati, int j) {
    return riempito(traduttore(puntone(dati, j) ? "P%1" : "T%1"), {std::to_string(j)});
}

}  // namespace korven::project
