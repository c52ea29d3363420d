#include "project/method_names.hpp"

#include <algorithm>
#include <cassert>
#include <iterator>

namespace korven::project {

std::string_view nomeMetodo(double codice) {
    const auto* trovato =
        std::find_if(std::begin(nomiMetodi), std::end(nomiMetodi),
                     [codice](const NomeMetodo& m) { return valore(m.codice) == codice; });
    assert(trovato != std::end(nomiMetodi));
    return trovato->nome;
}

}  // namespace korven::project
