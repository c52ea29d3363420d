#include <cmath>
#include <nlohmann/json.hpp>
#include <optional>

#include "batch/run/combinations_outcome.hpp"
#include "batch/run/json_numbers.hpp"
#include "factors/words.hpp"
#include "safety/diagnosis.hpp"

namespace korven::batch {

namespace {

using Json = nlohmann::ordered_json;
using factors::Combinazioni;
using factors::EsitoCombinazione;
using factors::Massimo;
using factors::Oggetto;
using factors::Verifica;

// null where nothing is checked.
Json giudizio(const std::optional<bool>& detto) { return detto ? Json(*detto) : Json(nullptr); }

Json coefficienti(const factors::Combinazione& c) {
    Json tutti = Json::array();
    for (std::size_t i = 0; i < factors::vociFattori().size(); ++i) {
        const factors::VoceFattore& voce = factors::vociFattori()[i];
        if (c.fonti[i].empty()) continue;
        tutti.push_back(
            {{"nome", voce.chiave}, {"valore", c.fattori.*(voce.membro)}, {"fonte", c.fonti[i]}});
    }
    return tutti;
}

Json carichi(const factors::FattoriCarichi& c) {
    Json scavo = Json::array();
    for (const double f : c.scavo) scavo.push_back(arrotondato(f));
    return {{"sovraccMonte", arrotondato(c.monte)},
            {"sovraccFase", scavo},
            {"forzaTesta", arrotondato(c.forza)},
            {"momentoTesta", arrotondato(c.momento)}};
}

Json fasi(const EsitoCombinazione& e) {
    Json tutte = Json::array();
    for (const factors::FaseCombinazione& f : e.fasi) {
        const auto k = static_cast<std::size_t>(f.fase - 1);
        tutte.push_back({{"fase", f.fase},
                         {"esito", safety::parola(f.esito)},
                         {"scavo_m", arrotondato(f.scavo)},
                         {"scavo_in_piu_m", arrotondato(e.inPiu[k])},
                         {"passiva_usata",
                          f.passiva.quota ? Json(arrotondato(*f.passiva.quota)) : Json(nullptr)}});
    }
    return tutte;
}

// Where a number is; a curve that is 0 all along has its largest nowhere.
Json estremo(double valore, int fase, double z) {
    return {{"valore", valore},
            {"fase", fase > 0 ? Json(fase) : Json(nullptr)},
            {"z_m", fase > 0 ? Json(arrotondato(z)) : Json(nullptr)}};
}

Json estremo(const equilibrium::Estremo& e, double fattore) {
    return estremo(kN(e.valore * fattore), e.fase, e.z);
}

Json verifica(const Verifica& v) {
    const bool quota = v.oggetto == Oggetto::terra;
    const auto numero = [&](double x) { return quota ? arrotondato(x) : kN(x); };
    const auto uso = v.uso();
    Json j = {{"oggetto", factors::parola(v.oggetto)},
              {"di_progetto", numero(v.progetto)},
              {"resistenza", numero(v.resistenza)},
              {"uso", uso ? Json(arrotondato(*uso)) : Json(nullptr)},
              {"verificata", v.verificata},
              {"fase", v.fase > 0 ? Json(v.fase) : Json(nullptr)},
              {"z_m", v.fase > 0 && !quota ? Json(arrotondato(v.z)) : Json(nullptr)}};
    const bool flessione =
        v.oggetto == Oggetto::momentoPositivo || v.oggetto == Oggetto::momentoNegativo;
    j["fattore_sforzo_normale"] = flessione ? Json(v.perAssiale) : Json(nullptr);
    return j;
}

Json verifiche(const EsitoCombinazione& e) {
    Json tutte = Json::array();
    for (const Verifica& v : e.verifiche) tutte.push_back(verifica(v));
    return tutte;
}

Json tiri(const EsitoCombinazione& e) {
    Json tutti = Json::array();
    for (std::size_t a = 0; a < e.tiri.size(); ++a)
        if (e.tiri[a].fase > 0)
            tutti.push_back({{"tirante", a + 1},
                             {"tiro_kN", kN(e.tiri[a].tiro * e.effetti())},
                             {"fase", e.tiri[a].fase}});
    return tutti;
}

Json jsonUna(const EsitoCombinazione& e) {
    const bool sta = e.sta();
    const double gamma = e.effetti();
    const equilibrium::Estremi& m = e.estremi;
    const auto seSta = [&](const Json& j) { return sta ? j : Json(nullptr); };
    const std::string perche = caduta(e);
    return {{"nome", e.combinazione.nome},
            {"fonte", e.combinazione.fonte},
            {"coefficienti", coefficienti(e.combinazione)},
            {"carichi", carichi(e.carichi)},
            {"fasi", fasi(e)},
            {"sta", sta},
            {"verificata", giudizio(e.giudizio())},
            {"spiegazione", perche.empty() ? Json(nullptr) : Json(perche)},
            {"spostamento_m", seSta(estremo(spostamento(m.spostamento.valore), m.spostamento.fase,
                                            m.spostamento.z))},
            {"momento_massimo_kNm", seSta(estremo(m.momentoMassimo, gamma))},
            {"momento_minimo_kNm", seSta(estremo(m.momentoMinimo, gamma))},
            {"taglio_kN", seSta(estremo(m.taglio, gamma))},
            {"tiri", sta ? tiri(e) : Json::array()},
            {"verifiche", verifiche(e)}};
}

Json massimo(const Massimo& m, double valore, const Combinazioni& tutte) {
    if (m.combinazione < 0) return nullptr;
    Json j = estremo(valore, m.fase, m.z);
    j["combinazione"] = tutte.esiti[static_cast<std::size_t>(m.combinazione)].combinazione.nome;
    return j;
}

Json jsonInviluppo(const Combinazioni& tutte) {
    const factors::Inviluppo& i = tutte.inviluppo;
    Json tiri = Json::array(), verifiche = Json::array();
    for (std::size_t a = 0; a < i.tiri.size(); ++a) {
        const Massimo& m = i.tiri[a];
        if (m.combinazione < 0) continue;
        tiri.push_back({{"tirante", a + 1},
                        {"tiro_kN", kN(m.valore)},
                        {"fase", m.fase},
                        {"combinazione",
                         tutte.esiti[static_cast<std::size_t>(m.combinazione)].combinazione.nome}});
    }
    for (const Oggetto oggetto : {Oggetto::momentoPositivo, Oggetto::momentoNegativo,
                                  Oggetto::bielle, Oggetto::armatura, Oggetto::terra}) {
        const auto peggiore = tutte.peggiore(oggetto);
        if (!peggiore) continue;
        Json j = verifica(peggiore->second);
        j["combinazione"] = tutte.esiti[peggiore->first].combinazione.nome;
        verifiche.push_back(j);
    }
    return {{"spostamento_m", massimo(i.spostamento, spostamento(i.spostamento.valore), tutte)},
            {"momento_massimo_kNm", massimo(i.momentoMassimo, kN(i.momentoMassimo.valore), tutte)},
            {"momento_minimo_kNm", massimo(i.momentoMinimo, kN(i.momentoMinimo.valore), tutte)},
            {"taglio_kN", massimo(i.taglio, kN(i.taglio.valore), tutte)},
            {"tiri", tiri},
            {"verifiche", verifiche}};
}

}  // namespace

Json jsonCombinazioni(const Combinazioni& tutte) {
    Json una = Json::array();
    for (const EsitoCombinazione& e : tutte.esiti) una.push_back(jsonUna(e));
    return {{"norma", tutte.norma.nome},
            {"titolo", tutte.norma.titolo},
            {"origine", tutte.norma.file},
            {"segmenti", tutte.nSeg},
            {"sovraccarico", factors::parola(tutte.natura.monte)},
            {"sovraccarico_scavo", factors::parola(tutte.natura.scavo)},
            {"carichi_testa", factors::parola(tutte.natura.testa)},
            {"verificate", giudizio(tutte.giudizio())},
            {"combinazioni", una},
            {"inviluppo", jsonInviluppo(tutte)}};
}

}  // namespace korven::batch
