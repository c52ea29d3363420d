#include "answers/remark_json.hpp"

#include <nlohmann/json.hpp>

namespace korven::answers {

nlohmann::ordered_json jsonOsservazioni(const review::Osservazioni& osservazioni) {
    nlohmann::ordered_json tutte = nlohmann::ordered_json::array();
    for (const auto& o : osservazioni)
        tutte.push_back({{"codice", o.codice},
                         {"peso", review::parola(o.peso)},
                         {"testo", o.testo},
                         {"campi", o.campi}});
    return tutte;
}

}  // namespace korven::answers
