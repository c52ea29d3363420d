#include <cmath>
#include <nlohmann/json.hpp>

#include "batch/outcome.hpp"

namespace korven::batch {

namespace {

using Json = nlohmann::ordered_json;

// t m to kN m. The result file has seven decimals; six remain, without the noise of the product.
double kNm(double momento) { return std::round(momento * 1e7) / 1e6; }

Json fase(const commands::EsitoFase& riga, const Esito& esito) {
    Json iterazioni = nullptr;
    for (const auto& corsa : esito.fasi)
        if (corsa.fase == riga.fase) iterazioni = corsa.iterazioni;
    Json j = {{"fase", riga.fase},
              {"iterazioni", iterazioni},
              {"scavo_m", riga.profFase},
              {"spostamento_massimo_m", riga.spostamentoMax},
              {"momento_massimo_kNm", kNm(riga.momentoMax)},
              {"momento_minimo_kNm", kNm(riga.momentoMin)}};
    for (const auto& corsa : esito.fasi)
        if (corsa.fase == riga.fase && !corsa.traccia.empty()) j["traccia"] = corsa.traccia;
    return j;
}

Json calcolo(const Esito& esito) {
    Json fasi = Json::array();
    for (const auto& riga : esito.calcolo->fasi) fasi.push_back(fase(riga, esito));
    const auto& chiusura = esito.calcolo->chiusura;
    return {{"segmenti", esito.calcolo->nSeg},
            {"gia_aggiornato", esito.giaAggiornato},
            {"fasi", fasi},
            {"momento_massimo_kNm", kNm(chiusura.mMaxTotale)},
            {"momento_minimo_kNm", kNm(chiusura.mMinTotale)},
            // N mm to kN m; the pass of negative curvature resists the positive moment
            {"momento_resistente_positivo_kNm", -chiusura.mrd1 / 1e6},
            {"momento_resistente_negativo_kNm", -chiusura.mrd2 / 1e6},
            {"fattore_azioni", chiusura.fsAzioni}};
}

Json rilievi(const Esito& esito) {
    Json tutti = Json::array();
    for (const auto& rilievo : esito.rilievi)
        tutti.push_back({{"impedisce", rilievo.impedisce}, {"testo", rilievo.testo}});
    return tutti;
}

Json nomeONullo(const std::string& percorso) {
    return percorso.empty() ? Json(nullptr) : Json(percorso);
}

}  // namespace

std::string json(const Esito& esito) {
    Json j = {{"programma", "KORVEN 32"}, {"versione", KORVEN_VERSION},
              {"comando", esito.comando}, {"progetto", esito.progetto},
              {"codice", esito.codice},   {"messaggi", esito.messaggi}};
    if (esito.comando == "verifica") {
        j["calcolabile"] = esito.codice == 0;
        j["rilievi"] = rilievi(esito);
    } else {
        j["calcolo"] = esito.calcolo ? calcolo(esito) : Json(nullptr);
        j["file"] = {{"risultati", nomeONullo(esito.calcolo ? esito.calcolo->fileRisultati : "")},
                     {"relazione", nomeONullo(esito.fileRelazione)},
                     {"testo", nomeONullo(esito.fileTesto)}};
    }
    // A path may hold bytes that are no UTF-8; they must not stop the answer.
    return j.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

}  // namespace korven::batch
