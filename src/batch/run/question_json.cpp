#include <nlohmann/json.hpp>
#include <optional>

#include "batch/run/json_numbers.hpp"
#include "batch/run/question_outcome.hpp"
#include "studies/questions/question_words.hpp"

namespace korven::batch {

namespace {

using Json = nlohmann::ordered_json;
using studies::DiFase;
using studies::LunghezzaProvata;

Json testoONullo(const std::string& testo) { return testo.empty() ? Json(nullptr) : Json(testo); }
Json numero(const std::optional<double>& valore) {
    return valore ? Json(arrotondato(*valore)) : Json(nullptr);
}
Json valore(const std::optional<DiFase>& quanto) {
    return quanto ? Json(arrotondato(quanto->valore)) : Json(nullptr);
}
Json fase(const std::optional<DiFase>& quanto) {
    return quanto && quanto->fase > 0 ? Json(quanto->fase) : Json(nullptr);
}

Json provata(const LunghezzaProvata& p) {
    Json mancano = Json::array();
    for (const studies::Criterio criterio : p.mancati) mancano.push_back(parola(criterio));
    return {{"lunghezza_m", arrotondato(p.lunghezza)},
            {"basta", p.basta()},
            {"mancano", mancano},
            {"spiegazione", testoONullo(p.perche)},
            {"riduzione", valore(p.riduzione)},
            {"fase_riduzione", fase(p.riduzione)},
            {"spostamento_massimo_m",
             p.spostamento ? Json(spostamento(p.spostamento->valore)) : Json(nullptr)},
            {"fase_spostamento", fase(p.spostamento)},
            {"uso_flessione", valore(p.flessione)},
            {"fase_flessione", fase(p.flessione)},
            {"uso_taglio", valore(p.taglio)},
            {"fase_taglio", fase(p.taglio)}};
}

}  // namespace

Json jsonLunghezza(const RispostaLunghezza& r) {
    Json provate = Json::array();
    for (const LunghezzaProvata& p : r.ricerca.provate) provate.push_back(provata(p));
    const LunghezzaProvata* trovata = r.ricerca.trovata();
    return {{"lunghezza_m", trovata != nullptr ? Json(arrotondato(trovata->lunghezza)) : nullptr},
            {"passo_m", r.scala.passo},
            {"fino_a_m", arrotondato(r.scala.finoA)},
            {"criteri",
             {{"riduzione", numero(r.criteri.riduzione)},
              {"spostamento_m", numero(r.criteri.spostamento)},
              {"resistenza", r.criteri.resistenza}}},
            {"risposta", studies::risposta(r.ricerca, r.criteri, r.scala)},
            {"provate", provate}};
}

Json jsonBloccaggio(const RispostaBloccaggio& r) {
    const studies::Bloccaggio& b = r.bloccaggio;
    const bool trovato = b.esito == studies::EsitoBloccaggio::trovato;
    const bool campo = trovato || b.esito == studies::EsitoBloccaggio::sotto ||
                       b.esito == studies::EsitoBloccaggio::sopra;
    const auto se = [](bool noto, double forza) { return noto ? Json(kN(forza)) : Json(nullptr); };
    Json forze = Json::array();
    for (const double forza : b.forze) forze.push_back(kN(forza));
    return {{"tirante", r.tirante},
            {"forza_chiesta_kN", kN(r.forza)},
            {"esito", parola(b.esito)},
            {"risposta", studies::risposta(b, r.tirante, r.forza)},
            {"fase", b.fase > 0 ? Json(b.fase) : Json(nullptr)},
            {"pretensione_kN", se(trovato, b.pretensione)},
            {"forza_kN", se(trovato, b.forza)},
            {"forze_kN", forze},
            {"spiegazione", testoONullo(b.perche)},
            {"pretensione_minima_kN", se(campo, b.pretMinima)},
            {"forza_minima_kN", se(campo, b.forzaMinima)},
            {"pretensione_massima_kN", se(campo, b.pretMassima)},
            {"forza_massima_kN", se(campo, b.forzaMassima)}};
}

}  // namespace korven::batch
