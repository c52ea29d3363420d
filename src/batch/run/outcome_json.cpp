#include <nlohmann/json.hpp>

#include "answers/equilibrium_json.hpp"
#include "answers/field_json.hpp"
#include "answers/margin_json.hpp"
#include "answers/nodes_json.hpp"
#include "answers/remark_json.hpp"
#include "base/translated_texts.hpp"
#include "base/version.hpp"
#include "batch/run/combinations_outcome.hpp"
#include "batch/run/comparison_outcome.hpp"
#include "batch/run/json_numbers.hpp"
#include "batch/run/outcome.hpp"
#include "batch/run/question_outcome.hpp"
#include "batch/run/selfcheck_outcome.hpp"
#include "project/units.hpp"

namespace korven::batch {

namespace {

using Json = nlohmann::ordered_json;

// N mm to kN m; a positive moment is resisted by bending of negative curvature.
double resistente(double passata) {
    constexpr double kilonewtonMetro = project::newtonMillimetri / project::kilonewton;
    return arrotondato(-passata / kilonewtonMetro);
}

Json tiranti(const results::NodiFase& fase) {
    Json tutti = Json::array();
    for (const double tiro : fase.tiri)
        tutti.push_back({{"tirante", tutti.size() + 1}, {"tiro_kN", kN(tiro)}});
    return tutti;
}

Json fase(const results::EstremiFase& riga, const Esito& esito) {
    Json iterazioni = nullptr;
    for (const auto& corsa : esito.fasi)
        if (corsa.fase == riga.fase) iterazioni = corsa.iterazioni;
    Json j = {{"fase", riga.fase},
              {"iterazioni", iterazioni},
              {"scavo_m", riga.profFase + 0.0},
              {"spostamento_massimo_m", riga.spostamentoMax + 0.0},
              {"momento_massimo_kNm", kNm(riga.momentoMax)},
              {"momento_minimo_kNm", kNm(riga.momentoMin)}};
    for (const auto& corsa : esito.fasi)
        if (corsa.fase == riga.fase && !corsa.traccia.empty()) j["traccia"] = corsa.traccia;
    const auto& nodi = esito.calcolo->nodi.at(static_cast<std::size_t>(riga.fase) - 1);
    j["tiranti"] = tiranti(nodi);
    j["nodi"] = answers::jsonNodi(nodi);
    return j;
}

Json tiranti(const results::EsitoCalcolo& calcolo) {
    Json tutti = Json::array();
    for (const auto& tirante : calcolo.tiranti)
        tutti.push_back({{"tirante", tirante.tirante},
                         {"profondita_m", tirante.profondita + 0.0},
                         {"tiro_massimo_kN", kN(tirante.tiroMassimo)}});
    return tutti;
}

Json flessione(const results::EsitoCalcolo& calcolo) {
    if (!calcolo.momenti) return nullptr;
    const auto& m = *calcolo.momenti;
    const auto lato = [](double md, double mr, bool verificata) {
        return Json{{"momento_calcolo_kNm", kNm(md)},
                    {"momento_resistente_kNm", kNm(mr)},
                    {"verificata", verificata}};
    };
    return {{"positivo", lato(m.mdMax, m.mrPos, m.verificatoPos)},
            {"negativo", m.negativo ? lato(m.mdMin, m.mrNeg, m.verificatoNeg) : Json(nullptr)}};
}

Json taglio(const results::EsitoCalcolo& calcolo) {
    if (!calcolo.taglio) return nullptr;
    const auto& t = *calcolo.taglio;
    Json rotture = Json::array();
    for (const auto rottura : structure::righeRotturaTaglio(t))
        rotture.push_back(base::traduttore(rottura));
    return {{"taglio_massimo_kN", arrotondato(t.taglioMassimo)},
            {"taglio_calcolo_kN", arrotondato(t.Vsd)},
            {"Vrd2_kN", arrotondato(t.Vrd2)},
            {"Vrd3_kN", arrotondato(t.Vrd3)},
            {"verificata", rotture.empty()},
            {"rotture", rotture}};
}

Json giudizi(const Esito& esito) {
    Json tutti = Json::array();
    for (const safety::VerificaGiudicata& v : esito.giudizi)
        tutti.push_back(
            {{"verifica", answers::parola(v.cosa)}, {"esito", safety::parola(v.giudizio)}});
    return tutti;
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
            {"momento_resistente_positivo_kNm", resistente(chiusura.mrd1)},
            {"momento_resistente_negativo_kNm", resistente(chiusura.mrd2)},
            {"fattore_azioni", chiusura.fsAzioni},
            {"verifica_flessione", flessione(*esito.calcolo)},
            {"verifica_taglio", taglio(*esito.calcolo)},
            {"giudizi", giudizi(esito)},
            {"tiranti", tiranti(*esito.calcolo)}};
}

Json rilievi(const Esito& esito) {
    Json tutti = Json::array();
    for (const auto& o : esito.osservazioni)
        tutti.push_back({{"impedisce", o.impedisce()}, {"testo", o.testo}});
    return tutti;
}

Json causa(const Esito& esito) {
    return esito.causa ? Json(safety::parola(*esito.causa)) : Json(nullptr);
}

Json testoONullo(const std::string& testo) { return testo.empty() ? Json(nullptr) : Json(testo); }

Json jsonImpostato(const Esito& esito) {
    return {{"campi", answers::jsonDiversi(esito.scritti, *esito.impostato)}};
}

// What a command that writes no result file has computed.
Json inMemoria(const Esito& esito) {
    if (esito.confronto) return jsonConfronto(*esito.confronto);
    if (esito.combinazioni) return jsonCombinazioni(*esito.combinazioni);
    if (esito.lunghezza) return jsonLunghezza(*esito.lunghezza);
    if (esito.bloccaggio) return jsonBloccaggio(*esito.bloccaggio);
    if (esito.elencaCampi) return answers::jsonCampi(esito.scritti);
    if (esito.impostato) return jsonImpostato(esito);
    if (esito.autoverifica) return jsonAutoverifica(esito.autoverifica->esito);
    if (esito.equilibrio) return answers::jsonEquilibrio(*esito.equilibrio);
    return esito.margine ? answers::jsonMargine(*esito.margine) : Json(nullptr);
}

}  // namespace

std::string json(const Esito& esito) {
    Json j = {{"programma", "KORVEN 32"}, {"versione", base::versione},
              {"comando", esito.comando}, {"progetto", esito.progetto},
              {"codice", esito.codice},   {"messaggi", esito.messaggi}};
    if (esito.calcola) {
        j["causa"] = causa(esito);
        j["spiegazione"] = testoONullo(esito.spiegazione);
    }
    if (esito.soloRilievi) j["calcolabile"] = esito.calcolabile();
    if (esito.soloRilievi || esito.esaminato) {
        j["rilievi"] = rilievi(esito);
        j["osservazioni"] = answers::jsonOsservazioni(esito.osservazioni);
    }
    if (esito.inMemoria) {
        j[esito.comando] = inMemoria(esito);
        if (esito.sullaNorma) j["combinazioni"] = jsonCombinazioni(*esito.sullaNorma);
        j["file"] = {{"scritti", esito.fileScritti}};
    } else if (!esito.soloRilievi) {
        j["calcolo"] = esito.calcolo ? calcolo(esito) : Json(nullptr);
        j["file"] = {{"risultati", testoONullo(esito.calcolo ? esito.calcolo->fileRisultati : "")},
                     {"relazione", testoONullo(esito.fileRelazione)},
                     {"testo", testoONullo(esito.fileTesto)},
                     {"documento", testoONullo(esito.fileDocumento)},
                     {"pdf", testoONullo(esito.filePdf)},
                     {"scritti", esito.fileScritti}};
    }
    // A path may hold bytes that are no UTF-8; they must not stop the answer.
    return j.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

}  // namespace korven::batch
