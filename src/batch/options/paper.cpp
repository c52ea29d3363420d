#include "batch/options/paper.hpp"

namespace korven::batch {

namespace {

struct FoglioNeiDueVersi {
    base::Gemelli inPiedi, coricato;
    plot::Foglio foglio;  // upright
};

constexpr FoglioNeiDueVersi righe[] = {
    {base::uguali("A3"), {"A3-orizzontale", "A3-landscape"}, {29.7, 42.0}},
    {base::uguali("A4"), {"A4-orizzontale", "A4-landscape"}, {21.0, 29.7}},
    {base::uguali("A5"), {"A5-orizzontale", "A5-landscape"}, {14.8, 21.0}},
    {base::uguali("Legal"), {"Legal-orizzontale", "Legal-landscape"}, {21.59, 35.56}},
    {base::uguali("Letter"), {"Letter-orizzontale", "Letter-landscape"}, {21.59, 27.94}},
};

}  // namespace

const std::vector<FoglioConNome>& fogli() {
    static const auto tutti = [] {
        std::vector<FoglioConNome> fatti;
        for (const auto& [inPiedi, coricato, foglio] : righe) {
            fatti.push_back({inPiedi, foglio});
            fatti.push_back({coricato, {foglio.altezza, foglio.larghezza}});
        }
        return fatti;
    }();
    return tutti;
}

}  // namespace korven::batch
