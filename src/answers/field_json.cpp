#include "answers/field_json.hpp"

#include <nlohmann/json.hpp>
#include <type_traits>

#include "base/number_text.hpp"
#include "project/code_words.hpp"
#include "project/field_table.hpp"
#include "project/program_numbers.hpp"
#include "project/typed_field.hpp"
#include "project/units_per_metre.hpp"

namespace korven::answers {

namespace {

using Json = nlohmann::ordered_json;
using project::arrotondato;
using project::Campo;

Json codici(const Campo& campo) {
    Json tutti = Json::array();
    for (const project::Codice& codice : campo.codici)
        tutti.push_back({{"valore", codice.valore},
                         {"nome", codice.nome},
                         {"voce", voceTradotta(campo, codice)}});
    return tutti;
}

// Whoever sets a field writes what stands here.
Json daScrivere(const project::DatiProgetto& dati, const project::CampoNominato& campo) {
    const std::string testo = testoDaScrivere(dati, campo);
    if (std::holds_alternative<std::string>(valoreConservato(dati, campo))) return testo;
    return base::leggiNumero(testo).value_or(0);
}

Json jsonCampo(const project::DatiProgetto& dati, const Campo& campo, int riga) {
    const auto limiti = project::limitiScritti(campo);
    return {{"campo", nomeStabile(campo, riga)},
            {"cosa", descrizioneTradotta(campo, riga)},
            {"unita", unitaAlMetro(campo).mostrata},
            {"valore", daScrivere(dati, {&campo, riga})},
            {"minimo", limiti ? Json(limiti->minimo) : Json(nullptr)},
            {"massimo", limiti ? Json(limiti->massimo) : Json(nullptr)},
            {"codici", codici(campo)}};
}

}  // namespace

Json jsonCampi(const project::DatiProgetto& dati) {
    Json tutti = Json::array();
    project::perOgniValore(dati, [&](const project::CampoNominato& c) {
        tutti.push_back(jsonCampo(dati, *c.campo, c.riga));
    });
    return tutti;
}

Json jsonValore(const project::DatiProgetto& dati, const Campo& campo, int riga, bool ceLaRiga) {
    Json j;
    if (!ceLaRiga) return j;
    conValore(dati, campo, riga, [&](const auto& v) {
        if constexpr (std::is_same_v<std::remove_cvref_t<decltype(v)>, double>) {
            const project::Codice* codice = project::codice(campo, v);
            j = codice != nullptr ? Json(codice->nome) : Json(arrotondato(mostrato(campo, v)));
        } else {
            j = v;
        }
    });
    return j;
}

Json jsonDiversi(const project::DatiProgetto& prima, const project::DatiProgetto& dopo) {
    Json tutti = Json::array();
    for (const project::CampoDiverso& d : project::campiDiversi(prima, dopo))
        tutti.push_back({{"campo", nomeStabile(*d.campo, d.riga)},
                         {"cosa", inParole(d, prima, dopo).cosa},
                         {"unita", unitaAlMetro(*d.campo).mostrata},
                         {"prima", jsonValore(prima, *d.campo, d.riga, d.prima)},
                         {"dopo", jsonValore(dopo, *d.campo, d.riga, d.dopo)}});
    return tutti;
}

}  // namespace korven::answers
