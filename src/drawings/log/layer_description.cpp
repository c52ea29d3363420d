#include "drawings/log/layer_description.hpp"

#include <algorithm>
#include <cmath>

#include "base/code_page.hpp"
#include "base/number_text.hpp"

namespace korven::drawings {

namespace {

// Hatch colour c is drawn with pen 9 + c, and there are 30 pens.
constexpr double massimoColore = 21;

double numeroIntero(std::string_view testo) {
    return std::trunc(base::leggiNumero(testo).value_or(0));
}

void leggiCodice(std::string_view parola, DescrizioneStrato& strato) {
    const std::string codice = base::maiuscolo(parola);
    const double campitura =
        numeroIntero(std::string_view(codice).substr(0, codice.find_first_of("CA")));
    strato.campitura = std::abs(campitura);
    strato.lineaAlPiede = campitura >= 0;
    const std::size_t c = codice.find('C');
    if (c != std::string::npos)
        strato.colore = static_cast<int>(
            std::clamp(numeroIntero(std::string_view(codice).substr(c + 1)), 1.0, massimoColore));
}

}  // namespace

DescrizioneStrato leggiDescrizione(std::string_view descrStrato) {
    DescrizioneStrato strato;
    const std::string_view riga = base::senzaSpaziEsterni(descrStrato);
    const std::string_view parola = riga.substr(0, riga.find_first_of(" \t"));
    leggiCodice(parola, strato);
    std::string_view testo = riga.substr(parola.size());
    testo.remove_prefix(std::min(testo.find_first_not_of(" \t"), testo.size()));
    if (testo.starts_with('_')) {
        strato.richiamo = false;
        testo.remove_prefix(1);
    }
    strato.testo = base::senzaSpaziEsterni(testo);
    return strato;
}

}  // namespace korven::drawings
