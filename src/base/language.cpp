#include "base/language.hpp"

#include <cmath>
#include <iterator>

#include "base/text_lines.hpp"

namespace korven::base {

namespace {

struct Sigle {
    std::string_view sigla, iso;
};
constexpr Sigle lingue[] = {{"ita", "it"}, {"deu", "de"}, {"fra", "fr"},
                            {"esp", "es"}, {"eng", "en"}, {"por", "pt"}};

// Of a code, or of none of them.
Sigle sigle(int codice) {
    const bool valido = codice >= 1 && codice <= static_cast<int>(std::size(lingue));
    return valido ? lingue[codice - 1] : Sigle{};
}

// In this order: a step takes up the tag that an earlier one has left, never the other way round.
struct Sostituto {
    std::string_view sigla, ripiego;
};
constexpr Sostituto sostituti[] = {
    {"deu", "eng"}, {"eng", "fra"}, {"fra", "esp"}, {"por", "esp"}, {"esp", "ita"}};

}  // namespace

std::string_view siglaLingua(int codice) { return sigle(codice).sigla; }

std::string_view siglaIso(int codice) { return sigle(codice).iso; }

int codiceLingua(std::string_view sigla) {
    int codice = 0;
    for (const auto& lingua : lingue) {
        ++codice;
        if (lingua.sigla == sigla) return codice;
    }
    return 0;
}

int leggiLingua(const std::string& percorso) {
    constexpr double codiceMassimo = 32767;
    LettoreRighe file = LettoreRighe::apri(
        percorso,
        "cancellare il file per scegliere la lingua (delete the file to choose the language)");
    const double codice = file.numero("il codice della lingua, da 1 a 6 (language code, 1 to 6)");
    if (codice != std::floor(codice) || std::abs(codice) > codiceMassimo)
        file.rifiuta(std::string(attesoCodiceLingua));
    return static_cast<int>(codice);
}

std::string siglaDisponibile(std::string_view sigla,
                             const std::function<bool(std::string_view)>& esisteFile) {
    std::string scelta(sigla);
    for (const auto& passo : sostituti)
        if (scelta == passo.sigla && !esisteFile(scelta)) scelta = passo.ripiego;
    return scelta;
}

}  // namespace korven::base
