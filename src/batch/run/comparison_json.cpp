#include <nlohmann/json.hpp>

#include "answers/field_json.hpp"
#include "batch/run/comparison_outcome.hpp"
#include "batch/run/json_numbers.hpp"
#include "comparison/field_words.hpp"
#include "project/field_table.hpp"
#include "project/units_per_metre.hpp"

namespace korven::batch {

namespace {

using Json = nlohmann::ordered_json;
using comparison::Confronto;
using comparison::Muro;

Json testoONullo(std::string_view testo) { return testo.empty() ? Json(nullptr) : Json(testo); }

Json numero(const std::optional<double>& valore) {
    return valore ? Json(arrotondato(*valore)) : Json(nullptr);
}

Json campi(const Confronto& c) {
    Json tutti = Json::array();
    const auto &prima = c.prima.fascicolo.scritti, &dopo = c.dopo.fascicolo.scritti;
    for (const project::CampoDiverso& d : c.campi)
        tutti.push_back({{"campo", nomeStabile(*d.campo, d.riga)},
                         {"cosa", paroleCampo(c, d).cosa},
                         {"unita", unitaAlMetro(*d.campo).mostrata},
                         {"prima", answers::jsonValore(prima, *d.campo, d.riga, d.prima)},
                         {"dopo", answers::jsonValore(dopo, *d.campo, d.riga, d.dopo)}});
    return tutti;
}

// What a cell says that is no number.
Json perche(const tables::Cella& cella) {
    if (cella.numero) return nullptr;
    return testoONullo(cella.testo != tables::nessuno ? cella.testo : cella.perche);
}

Json risultati(const Confronto& c) {
    Json tutti = Json::array();
    for (const auto& r : c.risultati) {
        auto quota = r.quota();
        if (quota) *quota = mostrato(project::unita::percento, *quota);
        tutti.push_back({{"risultato", r.codice},
                         {"fase", r.fase > 0 ? Json(r.fase) : Json(nullptr)},
                         {"tirante", r.tirante > 0 ? Json(r.tirante) : Json(nullptr)},
                         {"unita", r.unita.mostrata},
                         {"prima", numero(r.prima.numero)},
                         {"dopo", numero(r.dopo.numero)},
                         {"differenza", numero(r.differenza())},
                         {"differenza_percento", numero(quota)},
                         {"parola_prima", perche(r.prima)},
                         {"parola_dopo", perche(r.dopo)}});
    }
    return tutti;
}

Json muro(const Muro& m) {
    const auto& parete = m.fascicolo.parete;
    return {{"file", m.nome},
            {"impronta", testoONullo(m.fascicolo.identita.impronta)},
            {"segmenti", parete.nSeg > 0 ? Json(parete.nSeg) : Json(nullptr)},
            {"in_equilibrio", parete.sta()},
            {"verdetto", verdetto(m)}};
}

Json osservazioni(const review::Osservazioni& tutte) {
    Json lista = Json::array();
    for (const auto& o : tutte)
        lista.push_back({{"codice", o.codice},
                         {"peso", review::parola(o.peso)},
                         {"testo", o.testo},
                         {"campi", o.campi}});
    return lista;
}

}  // namespace

Json jsonConfronto(const Confronto& c) {
    const bool calcolati = c.prima.origine == comparison::Origine::equilibrio;
    return {{"origine", calcolati ? "equilibrio" : "file_risultati"},
            {"uguali", c.uguali()},
            {"opzioni", c.prima.fascicolo.identita.opzioni},
            {"prima", muro(c.prima)},
            {"dopo", muro(c.dopo)},
            {"campi", campi(c)},
            {"risultati", risultati(c)},
            {"osservazioni_sparite", osservazioni(c.sparite)},
            {"osservazioni_nuove", osservazioni(c.nuove)}};
}

}  // namespace korven::batch
