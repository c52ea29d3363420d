#include "batch/options/option_row.hpp"

#include <iterator>
#include <limits>

namespace korven::batch {

std::string Conta::intervallo() const {
    return massimo == std::numeric_limits<int>::max()
               ? ">= " + std::to_string(minimo)
               : std::to_string(minimo) + "-" + std::to_string(massimo);
}

std::string RigaOpzione::valoreMostrato() const {
    if (valori.empty()) return valore.mostrato();
    std::string tutti;
    for (const auto& v : valori) tutti += (tutti.empty() ? "" : "|") + v.mostrato();
    return tutti;
}

std::vector<RigaOpzione> insieme(std::vector<std::vector<RigaOpzione>> gruppi) {
    std::vector<RigaOpzione> tutte;
    for (auto& gruppo : gruppi) std::move(gruppo.begin(), gruppo.end(), std::back_inserter(tutte));
    return tutte;
}

bool percorsoAmmesso(const std::string& valore) {
    return !valore.empty() && !valore.starts_with('-');
}

}  // namespace korven::batch
