#include <algorithm>

#include "base/table.hpp"
#include "base/translated_texts.hpp"
#include "drawings/log/descriptions.hpp"
#include "plot/text_width.hpp"
#include "review/remark_list.hpp"

namespace korven::review {

namespace {

void entra(int strato, int lunga, ElencoOsservazioni& elenco) {
    const auto descrizione = [](int j) { return riga(&project::DatiProgetto::descrStrato, j); };
    Soggetto questa = descrizione(strato);
    if (lunga != strato) questa.campi.push_back(descrizione(lunga).campi.front());
    elenco.conParole("descrizione-lunga", questa,
                     testo("descrizione-lunga") + " " + std::to_string(lunga));
}

}  // namespace

void controlloDescrizioni(const project::DatiProgetto& dati, ElencoOsservazioni& elenco) {
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
            if (descrizione.oltreLaTesta) entra(descrizione.strato, lunga->strato, elenco);
    } catch (const base::ErroreIndice& errore) {  // names the layer and the number of lines
        elenco.conParole("descrizione-senza-posto", errore.what());
    }
}

}  // namespace korven::review
