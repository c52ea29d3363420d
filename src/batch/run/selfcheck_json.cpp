#include <nlohmann/json.hpp>

#include "base/translated_texts.hpp"
#include "batch/run/selfcheck_outcome.hpp"
#include "verification/words.hpp"

namespace korven::batch {

namespace {

using Json = nlohmann::ordered_json;
using namespace verification;

Json numero(const std::optional<double>& valore) { return valore ? Json(*valore) : Json(nullptr); }

Json riga(const Confronto& c) {
    const Attesa& a = *c.attesa;
    const bool parole = aParole(*a.grandezza);
    Json j = {{"grandezza", a.grandezza->nome}, {"unita", a.grandezza->unita.mostrata}};
    j["fase"] = a.luogo.fase > 0 ? Json(a.luogo.fase) : Json(nullptr);
    j["z_m"] = numero(a.luogo.z);
    j["tirante"] = a.luogo.tirante > 0 ? Json(a.luogo.tirante) : Json(nullptr);
    j["calcolo"] = codice(c.metodo);
    j["atteso"] = parole ? Json(atteso(c)) : numero(c.atteso);
    j["ottenuto"] = parole ? Json(ottenuto(c)) : numero(c.ottenuto);
    j["differenza"] = numero(c.differenza);
    j["tolleranza"] = a.tolleranza.testo;
    j["buono"] = c.buono;
    return j;
}

Json caso(const EsitoCaso& esito) {
    Json righe = Json::array();
    for (const Confronto& c : esito.confronti) righe.push_back(riga(c));
    return {{"caso", esito.caso->nome},
            {"titolo", base::traduttore(esito.caso->titolo)},
            {"verdetto", codice(esito.verdetto)},
            {"noto",
             esito.caso->noto.empty() ? Json(nullptr) : Json(base::traduttore(esito.caso->noto))},
            {"rientrato", esito.rientrato()},
            {"righe", righe}};
}

}  // namespace

Json jsonAutoverifica(const EsitoVerifica& esito) {
    Json gruppi = Json::array();
    for (const EsitoGruppo& gruppo : esito.gruppi) {
        Json casi = Json::array();
        for (const EsitoCaso& c : gruppo.casi) casi.push_back(caso(c));
        gruppi.push_back({{"gruppo", gruppo.gruppo->nome},
                          {"titolo", base::traduttore(gruppo.gruppo->titolo)},
                          {"casi", casi}});
    }
    return {{"buoni", esito.conta(Verdetto::buono)},
            {"falliti", esito.conta(Verdetto::fallito)},
            {"noti", esito.conta(Verdetto::noto)},
            {"gruppi", gruppi}};
}

}  // namespace korven::batch
