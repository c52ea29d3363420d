#include "report/annex/command_lines.hpp"

#include <vector>

namespace korven::report {

namespace {

// The blanks that part arguments: none within quotes or behind a backslash.
std::vector<std::size_t> fraArgomenti(std::string_view comando) {
    std::vector<std::size_t> posti;
    char aperta = '\0';
    for (std::size_t i = 0; i < comando.size(); ++i) {
        const char c = comando[i];
        if (c == '\\' && aperta != '\'')
            ++i;
        else if (aperta != '\0')
            aperta = c == aperta ? '\0' : aperta;
        else if (c == '\'' || c == '"')
            aperta = c;
        else if (c == ' ')
            posti.push_back(i);
    }
    return posti;
}

}  // namespace

std::string aCapo(std::string_view comando, std::size_t larghezza) {
    constexpr std::string_view seguito = " \\\n   ", opzione = " --";
    const auto posti = fraArgomenti(comando);
    std::string testo;
    std::size_t inizio = 0, i = 0;
    while (comando.size() - inizio > larghezza) {
        std::size_t taglio = inizio, primaOpzione = inizio;
        for (; i < posti.size() && (posti[i] <= inizio + larghezza || taglio == inizio); ++i) {
            if (posti[i] <= inizio) continue;
            taglio = posti[i];
            if (comando.substr(taglio).starts_with(opzione)) primaOpzione = taglio;
        }
        if (taglio == inizio) break;
        if (primaOpzione > inizio) taglio = primaOpzione;
        testo.append(comando.substr(inizio, taglio - inizio)).append(seguito);
        inizio = taglio;
        while (i > 0 && posti[i - 1] > inizio) --i;
    }
    return testo.append(comando.substr(inizio));
}

}  // namespace korven::report
