#include "exchange/known_columns.hpp"

#include <algorithm>
#include <iterator>
#include <span>

#include "base/code_page.hpp"

namespace korven::exchange {

namespace {

// The words of each column as they are compared: small letters run together. The first is the name
// of the field.
constexpr std::string_view profondita_[] = {
    "profstrato", "prof",  "profondità", "profondita",  "profonditàbase", "profonditabase",
    "base",       "piede", "depth",      "depthofbase", "basedepth",      "bottom"};
constexpr std::string_view gammaN_[] = {"gamman",        "gamma",      "pesonaturale",
                                        "pesodivolume",  "unitweight", "naturalunitweight",
                                        "bulkunitweight"};
constexpr std::string_view gammaSat_[] = {"gammasat", "pesosaturo", "saturatedunitweight",
                                          "saturatedweight"};
constexpr std::string_view phi_[] = {"phistrato",     "phi", "angolodiattrito", "attrito",
                                     "frictionangle", "fi",  "angolodattrito"};
constexpr std::string_view coesione_[] = {"coesione", "coes", "cohesion", "cohes", "c"};
constexpr std::string_view ks_[] = {"ksstrato", "ks", "modulodireazione", "moduloks",
                                    "subgrademodulus"};
constexpr std::string_view descrizione_[] = {"descrstrato", "descrizione", "description"};
constexpr std::string_view spessore_[] = {"spessore", "spess", "thickness"};

constexpr std::span<const std::string_view> nomiColonne[] = {
    profondita_, gammaN_, gammaSat_, phi_, coesione_, ks_, descrizione_};
static_assert(std::size(nomiColonne) == numeroColonne);

constexpr std::string_view metri[] = {"m"};
constexpr std::string_view pesi[] = {"kn/m³", "kn/m3", "kn/m^3", "kn/mc"};
constexpr std::string_view gradi[] = {"°", "deg", "gradi", "degrees"};
constexpr std::string_view pressioni[] = {"kn/m²", "kn/m2", "kn/m^2", "kn/mq", "kpa"};

constexpr std::span<const std::string_view> unitaColonne[] = {metri,     pesi, pesi, gradi,
                                                              pressioni, pesi, {}};
static_assert(std::size(unitaColonne) == numeroColonne);

bool tra(std::span<const std::string_view> lista, std::string_view parola) {
    return std::find(lista.begin(), lista.end(), parola) != lista.end();
}

// The words of a text run together in small letters.
std::string parole(std::string_view testo) {
    std::string unite = base::minuscolo(testo);
    std::erase_if(unite, [](char c) {
        return std::string_view(" ._'\t[]()").find(c) != std::string_view::npos;
    });
    return unite;
}

}  // namespace

NomeColonna leggiNomeColonna(std::string_view cella) {
    const std::size_t parentesi = std::min(cella.find_first_of("[("), cella.size());
    const std::string nome = parole(cella.substr(0, parentesi));
    NomeColonna letto;
    letto.unita = parole(cella.substr(parentesi));
    letto.spessore = tra(spessore_, nome);
    const auto trovata = std::find_if(std::begin(nomiColonne), std::end(nomiColonne),
                                      [&](auto lista) { return tra(lista, nome); });
    if (trovata != std::end(nomiColonne))
        letto.colonna = static_cast<Colonna>(trovata - std::begin(nomiColonne));
    if (letto.spessore) letto.colonna = profondita;
    if (!letto.colonna) return letto;
    letto.delCampo = nome == nomiColonne[*letto.colonna].front();
    letto.unitaGiusta = letto.unita.empty() || letto.colonna == descrizione ||
                        tra(unitaColonne[*letto.colonna], letto.unita);
    return letto;
}

}  // namespace korven::exchange
