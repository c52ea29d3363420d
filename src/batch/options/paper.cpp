#include "batch/options/paper.hpp"

namespace korven::batch {

const std::vector<FoglioConNome>& fogli() {
    static const auto tutti = [] {
        const FoglioConNome verticali[] = {
            {uguali("A3"), {29.7, 42.0}},       {uguali("A4"), {21.0, 29.7}},
            {uguali("A5"), {14.8, 21.0}},       {uguali("Legal"), {21.59, 35.56}},
            {uguali("Letter"), {21.59, 27.94}},
        };
        std::vector<FoglioConNome> fatti;
        for (const auto& [nome, foglio] : verticali) {
            fatti.push_back({nome, foglio});
            fatti.push_back({{nome.italiano + "-orizzontale", nome.inglese + "-landscape"},
                             {foglio.altezza, foglio.larghezza}});
        }
        return fatti;
    }();
    return tutti;
}

}  // namespace korven::batch
