#include "scene/shown_values.hpp"

#include "project/shown_number.hpp"

namespace korven::scene {

std::string conUnita(double conservato, const project::Unita& unita, int decimali) {
    return project::numeroMostrato(conservato, decimali, unita).append(" ").append(unita.mostrata);
}

std::string breve(double conservato, const project::Unita& unita, int decimali) {
    std::string testo = project::numeroMostrato(conservato, decimali, unita);
    if (testo.find('.') != std::string::npos && testo.find('e') == std::string::npos) {
        testo.erase(testo.find_last_not_of('0') + 1);
        if (testo.back() == '.') testo.pop_back();
    }
    return testo.append(" ").append(unita.mostrata);
}

std::string quota(double z) { return conUnita(z, project::unita::metri, 2); }

}  // namespace korven::scene
