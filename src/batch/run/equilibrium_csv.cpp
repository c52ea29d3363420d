#include "analysis/node_vector.hpp"
#include "answers/nodes_json.hpp"
#include "batch/run/csv.hpp"
#include "batch/run/equilibrium_outcome.hpp"
#include "project/units.hpp"

namespace korven::batch {

namespace {

using answers::parola;
using equilibrium::FaseEquilibrio;

constexpr std::string_view nomi[] = {"fase",      "nodo",         "z_m",         "y_m",
                                     "M_kNm",     "T_kN",         "p_monte_kPa", "p_valle_kPa",
                                     "acqua_kPa", "costante_kPa", "stato_monte", "stato_valle"};

void righe(const FaseEquilibrio& fase, double h, RigheCsv& csv) {
    for (std::size_t i = 0; i < fase.y.size(); ++i) {
        const auto kilonewton = [&csv](double valore) {
            csv.campo(std::optional(project::inKilonewton(valore)));
        };
        csv.campo(fase.fase).campo(static_cast<int>(i) + 1);
        csv.campo(std::optional(analysis::zNodo(static_cast<int>(i) + 1, h)))
            .campo(std::optional(fase.y[i]));
        for (const double valore : {fase.momento[i], fase.taglio[i], fase.monte[i], fase.valle[i],
                                    fase.acqua[i], fase.costante})
            kilonewton(valore);
        csv.campo(parola(fase.stati[i].monte)).campo(parola(fase.stati[i].valle));
        csv.fineRiga();
    }
}

}  // namespace

std::string csvEquilibrio(const safety::EquilibrioRaccontato& equilibrio) {
    RigheCsv csv(nomi);
    for (const safety::FaseRaccontata& r : equilibrio.fasi)
        if (r.sta()) righe(r.fase, equilibrio.h, csv);
    return csv.testo();
}

}  // namespace korven::batch
