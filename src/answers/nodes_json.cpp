#include "answers/nodes_json.hpp"

#include <nlohmann/json.hpp>
#include <string_view>

#include "analysis/node_vector.hpp"
#include "project/program_numbers.hpp"

namespace korven::answers {

namespace {

using Json = nlohmann::ordered_json;
using project::kN;
using project::spostamento;

template <class Valori, class Numero>
Json colonna(const Valori& valori, const Numero& numero) {
    Json j = Json::array();
    for (const auto& valore : valori) j.push_back(numero(valore));
    return j;
}

Json inKilonewton(const std::vector<double>& valori) { return colonna(valori, kN); }

double tale(double valore) { return valore + 0.0; }

}  // namespace

std::string_view parola(analysis::StatoLato stato) {
    switch (stato) {
        case analysis::StatoLato::attivo:
            return "attivo";
        case analysis::StatoLato::passivo:
            return "passivo";
        case analysis::StatoLato::elastico:
            break;
    }
    return "elastico";
}

Json jsonNodi(const results::NodiFase& fase) {
    return {{"z_m", colonna(fase.z, tale)},
            {"spostamento_m", colonna(fase.y, spostamento)},
            {"momento_kNm", inKilonewton(fase.momento)},
            {"taglio_kN", inKilonewton(fase.taglio)},
            {"taglio_sopra_kN", inKilonewton(fase.taglioSopra)},
            {"taglio_sotto_kN", inKilonewton(fase.taglio)},
            {"pressione_monte_kPa", inKilonewton(fase.monte)},
            {"pressione_valle_kPa", inKilonewton(fase.valle)},
            {"acqua_kPa", inKilonewton(fase.acqua)},
            {"costante_kPa", kN(fase.costante)}};
}

Json jsonNodi(const equilibrium::FaseEquilibrio& fase, double h) {
    std::vector<double> z;
    for (int i = 1; i <= static_cast<int>(fase.y.size()); ++i) z.push_back(analysis::zNodo(i, h));
    const auto stato = [&](analysis::StatoLato analysis::StatiNodo::*lato) {
        return colonna(fase.stati, [lato](const auto& s) { return parola(s.*lato); });
    };
    return {{"z_m", colonna(z, tale)},
            {"spostamento_m", colonna(fase.y, tale)},
            {"momento_kNm", inKilonewton(fase.momento)},
            {"taglio_kN", inKilonewton(fase.taglio)},
            {"taglio_sopra_kN", inKilonewton(fase.taglioSopra)},
            {"taglio_sotto_kN", inKilonewton(fase.taglioSotto)},
            {"pressione_monte_kPa", inKilonewton(fase.monte)},
            {"pressione_valle_kPa", inKilonewton(fase.valle)},
            {"acqua_kPa", inKilonewton(fase.acqua)},
            {"costante_kPa", kN(fase.costante)},
            {"stato_monte", stato(&analysis::StatiNodo::monte)},
            {"stato_valle", stato(&analysis::StatiNodo::valle)}};
}

}  // namespace korven::answers
