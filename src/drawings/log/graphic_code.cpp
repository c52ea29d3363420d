#include "drawings/log/graphic_code.hpp"

#include "base/code_page.hpp"
#include "drawings/log/layer_description.hpp"

namespace korven::drawings {

namespace {

// Digits of the number of a pattern, and of a group with its size step.
constexpr int cifreCampitura = 100, cifreGruppo = 1000;

// What a double holds to the last digit: no hatch has more patterns over each other than that.
constexpr double massimoEsatto = 1e15;

std::string_view primaParola(std::string_view descr) {
    const std::string_view riga = base::senzaSpaziEsterni(descr);
    return riga.substr(0, riga.find_first_of(" \t"));
}

bool cifraA(std::string_view parola, std::size_t posto) {
    return posto < parola.size() && parola[posto] >= '0' && parola[posto] <= '9';
}

std::vector<GruppoCampitura> gruppiDi(double campitura) {
    if (!(campitura >= 1) || campitura > massimoEsatto) return {};
    return gruppiCampitura(campitura);
}

// The "A" with what follows it up to the other letter.
std::string altroDi(std::string_view parola) {
    const std::string maiuscola = base::maiuscolo(parola);
    const std::size_t inizio = maiuscola.find('A');
    if (inizio == std::string::npos) return {};
    const std::size_t fine = maiuscola.find('C', inizio);
    return std::string(parola.substr(inizio, fine == std::string::npos ? fine : fine - inizio));
}

}  // namespace

bool haCodice(std::string_view descrStrato) {
    const std::string parola = base::maiuscolo(primaParola(descrStrato));
    if (parola.starts_with('C') || parola.starts_with('A')) return cifraA(parola, 1);
    const std::size_t segno = parola.starts_with('-') || parola.starts_with('+') ? 1 : 0;
    return cifraA(parola, segno);
}

CodiceGrafico leggiCodice(std::string_view descrStrato) {
    if (!haCodice(descrStrato)) return {};
    const DescrizioneStrato letta = leggiDescrizione(descrStrato);
    return {gruppiDi(letta.campitura), letta.colore, letta.lineaAlPiede,
            altroDi(primaParola(descrStrato))};
}

std::string parolaCodice(const CodiceGrafico& codice) {
    long long numero = 0;
    for (auto gruppo = codice.gruppi.rbegin(); gruppo != codice.gruppi.rend(); ++gruppo) {
        // A group that draws nothing stays only to hold the place of those above it.
        const int suo = gruppo->campitura == 0 ? 0 : gruppo->passo * cifreCampitura;
        numero = numero * cifreGruppo + suo + gruppo->campitura;
    }
    std::string parola = std::to_string(codice.lineaAlPiede ? numero : -numero);
    if (codice.colore != 1) parola += 'C' + std::to_string(codice.colore);
    return parola + codice.altro;
}

std::string conCodice(std::string_view descrStrato, const CodiceGrafico& codice) {
    const bool cEra = haCodice(descrStrato);
    if (cEra && leggiCodice(descrStrato) == codice) return std::string(descrStrato);
    const std::string_view riga = base::senzaSpaziEsterni(descrStrato);
    const std::string nuova = parolaCodice(codice);
    if (cEra) return nuova + std::string(riga.substr(primaParola(riga).size()));
    return riga.empty() ? nuova : nuova + ' ' + std::string(riga);
}

}  // namespace korven::drawings
