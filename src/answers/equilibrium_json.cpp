#include "answers/equilibrium_json.hpp"

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>

#include "answers/nodes_json.hpp"
#include "equilibrium/extremes.hpp"
#include "project/program_numbers.hpp"
#include "safety/words.hpp"

namespace korven::answers {

namespace {

using Json = nlohmann::ordered_json;
using equilibrium::FaseEquilibrio;
using project::kN;
using project::kNm;
using safety::FaseRaccontata;

Json tiri(const FaseEquilibrio& fase) {
    Json tutti = Json::array();
    for (const double tiro : fase.tiri) tutti.push_back(kN(tiro));
    return tutti;
}

Json fase(const FaseRaccontata& r, double h) {
    const FaseEquilibrio& f = r.fase;
    const std::string frase = r.frase();
    Json j = {{"fase", f.fase},
              {"esito", safety::parola(f.esito)},
              {"scavo_m", r.scavo + 0.0},
              {"spostamento_massimo_m", nullptr},
              {"momento_massimo_kNm", nullptr},
              {"momento_minimo_kNm", nullptr},
              {"taglio_massimo_kN", nullptr},
              {"tiri_kN", tiri(f)},
              {"nodi", nullptr},
              {"passi", f.passi},
              {"spiegazione", frase.empty() ? Json(nullptr) : Json(frase)}};
    if (!r.sta()) return j;
    const auto [minimo, massimo] = std::minmax_element(f.momento.begin(), f.momento.end());
    const equilibrium::Estremi e = equilibrium::estremi(f, h);
    j["spostamento_massimo_m"] = std::fabs(e.spostamento.valore);
    j["momento_massimo_kNm"] = kNm(*massimo);
    j["momento_minimo_kNm"] = kNm(*minimo);
    j["taglio_massimo_kN"] = kN(std::fabs(e.taglio.valore));
    j["nodi"] = jsonNodi(f, h);
    return j;
}

}  // namespace

Json jsonEquilibrio(const safety::EquilibrioRaccontato& equilibrio) {
    Json fasi = Json::array();
    for (const FaseRaccontata& r : equilibrio.fasi) fasi.push_back(fase(r, equilibrio.h));
    return {{"segmenti", equilibrio.nSeg}, {"fasi", fasi}};
}

}  // namespace korven::answers
