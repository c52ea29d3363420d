#include "exchange/known_columns.hpp"

#include <algorithm>
#include <iterator>
#include <span>

#include "base/code_page.hpp"
#include "base/text_table.hpp"
#include "exchange/layer_columns.hpp"

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
// "gammar": in German books the sign of the saturated unit weight is γr.
constexpr std::string_view gammaSat_[] = {"gammasat", "pesosaturo", "saturatedunitweight",
                                          "saturatedweight", "gammar"};
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

std::string_view senzaUnita(std::string_view testo) {
    return testo.substr(0, testo.find_first_of("[("));
}

// The words of a text run together in small letters.
std::string parole(std::string_view testo) {
    std::string unite = base::minuscolo(testo);
    std::erase_if(unite, [](char c) {
        return std::string_view(" ._'\t[]()").find(c) != std::string_view::npos;
    });
    return unite;
}

// What the tables and lists of the program call a column, in whatever language a file was written.
std::optional<Colonna> chiamata(std::string_view nome) {
    for (std::size_t c = 0; c < numeroColonne; ++c)
        for (int lingua = 1; lingua <= base::numeroLingue; ++lingua)
            if (parole(senzaUnita(nomeColonna(static_cast<Colonna>(c), lingua))) == nome)
                return static_cast<Colonna>(c);
    return {};
}

bool chiamatoSpessore(std::string_view nome) {
    for (int lingua = 1; lingua <= base::numeroLingue; ++lingua)
        if (parole(nomeSpessore(lingua)) == nome) return true;
    return false;
}

}  // namespace

NomeColonna leggiNomeColonna(std::string_view cella) {
    const std::string_view primaUnita = senzaUnita(cella);
    const std::string nome = parole(primaUnita);
    NomeColonna letto;
    if (nome.empty()) return letto;
    letto.unita = parole(cella.substr(primaUnita.size()));
    letto.spessore = tra(spessore_, nome) || chiamatoSpessore(nome);
    const auto trovata = std::find_if(std::begin(nomiColonne), std::end(nomiColonne),
                                      [&](auto lista) { return tra(lista, nome); });
    if (trovata != std::end(nomiColonne))
        letto.colonna = static_cast<Colonna>(trovata - std::begin(nomiColonne));
    else
        letto.colonna = chiamata(nome);
    if (letto.spessore) letto.colonna = profondita;
    if (!letto.colonna) return letto;
    letto.delCampo = nome == nomiColonne[*letto.colonna].front();
    letto.unitaGiusta = letto.unita.empty() || letto.colonna == descrizione ||
                        tra(unitaColonne[*letto.colonna], letto.unita);
    return letto;
}

}  // namespace korven::exchange
