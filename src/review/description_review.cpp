#include <algorithm>

#include "base/table.hpp"
#include "base/translated_texts.hpp"
#include "drawings/log/descriptions.hpp"
#include "plot/text_width.hpp"
#include "review/remark_list.hpp"

namespace korven::review {

void controlloDescrizioni(const project::DatiProgetto& dati, ElencoRilievi& elenco) {
    if (!(dati.profStrato[dati.nStrati] > 0)) return;  // there is no log
    const plot::MetricaStimata metrica;
    try {
        const auto disposte =
            drawings::disponiDescrizioni(dati, [&metrica](double altezza, std::string_view testo) {
                return metrica.larghezza(plot::carattereConsegnato, altezza, testo);
            });
        const auto lunga = std::max_element(
            disposte.begin(), disposte.end(),
            [](const auto& una, const auto& altra) { return una.altezza < altra.altezza; });
        for (const auto& descrizione : disposte)
            if (descrizione.oltreLaTesta)
                elenco.avviso(
                    rigaNumerata("strato", descrizione.strato,
                                 "nella stratigrafia la descrizione entra nella testata della "
                                 "tabella: abbreviare le descrizioni, la più lunga è quella dello "
                                 "strato") +
                    " " + std::to_string(lunga->strato));
    } catch (const base::ErroreIndice& errore) {  // names the layer and the number of lines
        elenco.avviso(errore.what());
    }
}

}  // namespace korven::review
