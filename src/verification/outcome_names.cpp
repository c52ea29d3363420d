#include "verification/outcome_names.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

namespace korven::verification {

namespace {

using equilibrium::EsitoFase;

constexpr std::pair<std::string_view, EsitoFase> nomi[] = {
    {"equilibrio", EsitoFase::equilibrio},
    {"meccanismo", EsitoFase::meccanismo},
    {"non_definito", EsitoFase::nonDefinito},
    {"nessun_numero", EsitoFase::nessunNumero},
};

}  // namespace

std::optional<EsitoFase> esito(std::string_view nome) {
    const auto* trovato = std::find_if(std::begin(nomi), std::end(nomi),
                                       [nome](const auto& n) { return n.first == nome; });
    if (trovato == std::end(nomi)) return {};
    return trovato->second;
}

}  // namespace korven::verification
