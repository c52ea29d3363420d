#include "answers/margin_json.hpp"

#include <cmath>
#include <nlohmann/json.hpp>

#include "project/program_numbers.hpp"
#include "safety/margin_words.hpp"
#include "safety/mesh_words.hpp"
#include "safety/words.hpp"

namespace korven::answers {

namespace {

using Json = nlohmann::ordered_json;
using project::arrotondato;
using project::kN;
using project::spostamento;
using safety::EsitoLunghezza;
using safety::Margine;
using safety::MargineFase;

Json quota(const std::optional<double>& valore) {
    return valore ? Json(arrotondato(*valore)) : Json(nullptr);
}

Json meccanismo(const safety::Riduzione& riduzione, double paratia) {
    if (!riduzione.moto) return nullptr;
    const equilibrium::Meccanismo& moto = *riduzione.moto;
    return {{"traslazione", moto.traslazione},
            {"profondita_m", moto.traslazione ? Json(nullptr) : Json(arrotondato(moto.profondita))},
            {"verso", moto.verso},
            {"testo", safety::parole(moto, paratia)}};
}

// A curve that is 0 all along has its largest number nowhere.
// @param nota  some stage stands
Json confronto(const safety::Confronto& c, bool nota = true) {
    const bool dove = c.statica.fase > 0;
    Json j = {{"statica", nota ? Json(kN(c.statica.valore)) : Json(nullptr)},
              {"z_statica_m", dove ? Json(arrotondato(c.statica.z)) : Json(nullptr)},
              {"fase_statica", dove ? Json(c.statica.fase) : Json(nullptr)},
              {"relazione", nullptr},
              {"z_relazione_m", nullptr},
              {"fase_relazione", nullptr},
              {"scarto", quota(c.scarto())}};
    if (c.relazione) {
        j["relazione"] = kN(c.relazione->valore);
        j["z_relazione_m"] = arrotondato(c.relazione->z);
        j["fase_relazione"] = c.relazione->fase;
    }
    return j;
}

Json tiri(const MargineFase& fase) {
    Json tutti = Json::array();
    for (const safety::ConfrontoTiro& tiro : fase.confronto.tiri)
        tutti.push_back(
            {{"tirante", tiro.tirante},
             {"statica", kN(tiro.statica)},
             {"relazione", tiro.relazione ? Json(kN(tiro.relazione->valore)) : Json(nullptr)}});
    return tutti;
}

Json passiva(const safety::UsoPassiva& uso) {
    Json z = Json::array();
    for (const equilibrium::Tratto& t : uso.alLimite) {
        z.push_back(arrotondato(t.da));
        z.push_back(arrotondato(t.a));
    }
    return z;
}

Json jsonFase(const MargineFase& fase, double paratia) {
    Json j = {{"fase", fase.fase},
              {"scavo_m", arrotondato(fase.scavo)},
              {"esito", fase.esito ? Json(parolaEsito(fase)) : Json(nullptr)},
              {"riduzione", quota(fase.riduzione.F)},
              {"riduzione_oltre_10", fase.riduzione.oltre},
              {"riduzione_limite_pendio", fase.riduzione.limitePendio},
              {"meccanismo", meccanismo(fase.riduzione, paratia)},
              {"passiva_usata", quota(fase.passiva.quota)},
              {"z_passiva_m", passiva(fase.passiva)}};
    const bool numeri = fase.inEquilibrio();
    j["spostamento_massimo_m"] =
        numeri ? Json(spostamento(std::fabs(fase.estremi.spostamento.valore))) : Json(nullptr);
    j["momento_kNm"] = numeri ? confronto(fase.confronto.momento) : Json(nullptr);
    j["taglio_kN"] = numeri ? confronto(fase.confronto.taglio) : Json(nullptr);
    j["tiri_kN"] = tiri(fase);
    return j;
}

Json erroreMaglia(const Margine& margine) {
    if (!margine.maglia) return nullptr;
    const safety::ErroreMaglia& e = *margine.maglia;
    return {{"momento", quota(e.momento().quota)},
            {"momento_positivo", quota(e.momentoPositivo.quota)},
            {"momento_negativo", quota(e.momentoNegativo.quota)},
            {"taglio", quota(e.taglio.quota)},
            {"spostamento", quota(e.spostamento.quota)},
            {"tiro", quota(e.tiro.quota)}};
}

Json ordineMaglia(const Margine& margine) {
    if (!margine.maglia) return nullptr;
    const safety::ErroreMaglia& e = *margine.maglia;
    return {{"momento", quota(e.momento().ordine)},
            {"momento_positivo", quota(e.momentoPositivo.ordine)},
            {"momento_negativo", quota(e.momentoNegativo.ordine)},
            {"taglio", quota(e.taglio.ordine)},
            {"spostamento", quota(e.spostamento.ordine)},
            {"tiro", quota(e.tiro.ordine)}};
}

Json usiMaglia(const Margine& margine) {
    if (!margine.maglia) return nullptr;
    Json tutti = Json::array();
    for (const safety::UsoMaglia& u : margine.maglia->usi) {
        Json usi = Json::array(), verificata = Json::array();
        for (const std::optional<results::Uso>& uso : u.maglie) {
            usi.push_back(uso ? quota(uso->uso()) : Json(nullptr));
            verificata.push_back(uso ? Json(!uso->fallita) : Json(nullptr));
        }
        const auto suo = giudizio(margine, u.cosa);
        tutti.push_back({{"verifica", parola(u.cosa)},
                         {"uso", usi},
                         {"verificata", verificata},
                         {"limite", quota(u.limite())},
                         {"esito", suo ? Json(safety::parola(*suo)) : Json(nullptr)}});
    }
    return tutti;
}

Json avvisi(const Margine& margine) {
    Json tutti = Json::array();
    for (const safety::AvvisoMaglia& a : safety::avvisiMaglia(margine))
        tutti.push_back({{"verdetto", a.verdetto}, {"testo", a.testo}});
    return tutti;
}

const char* esitoLunghezza(EsitoLunghezza esito) {
    switch (esito) {
        case EsitoLunghezza::trovata:
            return "trovata";
        case EsitoLunghezza::sempre:
            return "sempre";
        case EsitoLunghezza::mai:
            return "mai";
        case EsitoLunghezza::vincolata:
            break;
    }
    return "vincolata";
}

}  // namespace

const char* parola(results::Verifica verifica) {
    switch (verifica) {
        case results::Verifica::momentoPositivo:
            return "momento_positivo";
        case results::Verifica::momentoNegativo:
            return "momento_negativo";
        case results::Verifica::bielle:
            return "bielle";
        case results::Verifica::armatura:
            break;
    }
    return "armatura";
}

std::string_view parolaEsito(const MargineFase& fase) {
    return fase.esito ? safety::parola(*fase.esito) : std::string_view();
}

Json jsonMargine(const Margine& margine) {
    Json fasi = Json::array();
    for (const MargineFase& fase : margine.fasi) fasi.push_back(jsonFase(fase, margine.paratia));
    return {{"segmenti", margine.nSeg},
            {"fasi", fasi},
            {"lunghezza_m", arrotondato(margine.paratia)},
            {"lunghezza_minima_m", quota(margine.lunghezza.lunghezza)},
            {"lunghezza_minima_esito", safety::lunghezzaNota(margine)
                                           ? Json(esitoLunghezza(margine.lunghezza.esito))
                                           : Json(nullptr)},
            {"errore_maglia", erroreMaglia(margine)},
            {"ordine_maglia", ordineMaglia(margine)},
            {"usi_maglia", usiMaglia(margine)},
            {"avvisi_maglia", avvisi(margine)},
            {"momento_kNm", confronto(margine.momento, margine.haNumeri())},
            {"taglio_kN", confronto(margine.taglio, margine.haNumeri())}};
}

}  // namespace korven::answers
