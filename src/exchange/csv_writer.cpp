#include "exchange/csv_writer.hpp"

#include "base/code_page.hpp"
#include "exchange/fault_texts.hpp"
#include "exchange/layer_checks.hpp"
#include "exchange/layer_columns.hpp"

namespace korven::exchange {

namespace {

std::string cellaScritta(const std::string& testo, char separatore) {
    const bool nuda = testo.find_first_of("\"\r\n") == std::string::npos &&
                      testo.find(separatore) == std::string::npos && !testo.starts_with(' ') &&
                      !testo.ends_with(' ');
    if (nuda) return testo;
    std::string scritta = "\"";
    for (const char c : testo) {
        if (c == '"') scritta += '"';
        scritta += c;
    }
    return scritta + '"';
}

std::string numeroScritto(std::string_view testo, char decimale) {
    std::string scritto(base::senzaSpaziEsterni(testo));
    if (const auto punto = scritto.find('.'); punto != std::string::npos) scritto[punto] = decimale;
    return scritto;
}

}  // namespace

std::string testoCsv(const RigheStrati& righe, const FormaCsv& forma) {
    std::string testo = "\xEF\xBB\xBF";
    const auto aggiungi = [&](const RigaStrato& celle) {
        for (std::size_t c = 0; c < numeroColonne; ++c) {
            if (c > 0) testo += forma.separatore;
            testo += cellaScritta(celle[c], forma.separatore);
        }
        testo += "\r\n";
    };
    RigaStrato nomi;
    for (std::size_t c = 0; c < numeroColonne; ++c) nomi[c] = nomeColonna(static_cast<Colonna>(c));
    aggiungi(nomi);
    for (RigaStrato celle : righe) {
        for (std::size_t c = 0; c < descrizione; ++c)
            celle[c] = numeroScritto(celle[c], forma.decimale);
        aggiungi(celle);
    }
    return testo;
}

std::vector<std::string> difettiRighe(const RigheStrati& righe) {
    std::vector<std::string> difetti;
    for (std::size_t i = 0; i < righe.size(); ++i)
        for (std::size_t c = 0; c < numeroColonne; ++c)
            if (const auto cosa =
                    difettoCella(static_cast<Colonna>(c), base::senzaSpaziEsterni(righe[i][c]));
                !cosa.empty())
                difetti.push_back(inRiga(static_cast<long>(i + 1), c + 1, cosa));
    return difetti;
}

}  // namespace korven::exchange
