#include "review/remark.hpp"

#include <algorithm>

namespace korven::review {

std::string_view parola(Peso peso) {
    switch (peso) {
        case Peso::impedisce:
            return "impedisce";
        case Peso::pericolo:
            return "pericolo";
        case Peso::daVedere:
            return "da vedere";
    }
    return {};
}

std::string_view parolaMostrata(Peso peso) {
    return peso == Peso::impedisce ? "impedisce il calcolo" : parola(peso);
}

int quante(const Osservazioni& osservazioni, Peso peso) {
    return static_cast<int>(std::count_if(osservazioni.begin(), osservazioni.end(),
                                          [peso](const auto& o) { return o.peso == peso; }));
}

void perPeso(Osservazioni& osservazioni) {
    std::stable_sort(osservazioni.begin(), osservazioni.end(),
                     [](const auto& una, const auto& altra) { return una.peso < altra.peso; });
}

bool calcolabile(const Osservazioni& osservazioni) {
    return quante(osservazioni, Peso::impedisce) == 0;
}

}  // namespace korven::review
