#include "base/language.hpp"

#include <cmath>
#include <iterator>

#include "base/text_lines.hpp"

namespace korven::base {

namespace {

constexpr std::string_view sigle[] = {"ita", "deu", "fra", "esp", "eng", "por"};

// In this order: a step takes up the tag that an earlier one has left, never the other way round.
struct Sostituto {
    std::string_view sigla, ripiego;
};
constexpr Sostituto sostituti[] = {
    {"deu", "eng"}, {"eng", "fra"}, {"fra", "esp"}, {"por", "esp"}, {"esp", "ita"}};

}  // namespace

std::string_view siglaLingua(int codice) {
    const bool valido = codice >= 1 && codice <= static_cast<int>(std::size(sigle));
    return valido ? sigle[codice - 1] : std::string_view();
}

int codiceLingua(std::string_view sigla) {
    int codice = 0;
    for (const auto candidata : sigle) {
        ++codice;
        if (candidata == sigla) return codice;
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
