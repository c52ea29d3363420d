#include "batch/options/paper.hpp"

namespace korven::batch {

const std::map<std::string, plot::Foglio>& fogli() {
    static const auto tutti = [] {
        const std::map<std::string, plot::Foglio> verticali = {
            {"A3", {29.7, 42.0}},      {"A4", {21.0, 29.7}},       {"A5", {14.8, 21.0}},
            {"Legal", {21.59, 35.56}}, {"Letter", {21.59, 27.94}},
        };
        auto fatti = verticali;
        for (const auto& [nome, foglio] : verticali)
            fatti[nome + "-orizzontale"] = {foglio.altezza, foglio.larghezza};
        return fatti;
    }();
    return tutti;
}

}  // namespace korven::batch
