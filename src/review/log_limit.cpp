#include "review/log_limit.hpp"

#include <algorithm>
#include <cmath>

#include "base/colon.hpp"
#include "base/translated_texts.hpp"
#include "review/remark_list.hpp"

namespace korven::review {

std::string rifiutoStratigrafia(const project::DatiProgetto& dati) {
    double alto = 0, basso = 0;
    int lontano = 1;
    for (int i = 1; i <= dati.nStrati; ++i) {
        const double profondita = dati.profStrato[i];
        alto = std::min(alto, profondita);
        basso = std::max(basso, profondita);
        if (std::abs(profondita) > std::abs(dati.profStrato[lontano])) lontano = i;
    }
    if (basso - alto <= massimaAltezzaStratigrafia) return {};
    return rigaConValore(dati, &project::DatiProgetto::profStrato, lontano).testo +
           base::duePunti() +
           base::traduttore(
               "la colonna stratigrafica non è disegnata oltre i 500 m di altezza: "
               "correggere la profondità");
}

}  // namespace korven::review
