#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>

#include "studies/questions/length_search.hpp"
#include "studies/questions/lock_off.hpp"

// The answers to `lunghezza` and `bloccaggio` as the commands tell them.

namespace korven::batch {

struct RispostaLunghezza {
    studies::Criteri criteri;
    studies::Scala scala;
    studies::RicercaLunghezza ricerca;
};

struct RispostaBloccaggio {
    int tirante;
    double forza;  ///< wanted [t]
    studies::Bloccaggio bloccaggio;
};

/// The answer in a line; nothing without one.
[[nodiscard]] std::string risposta(const RispostaLunghezza& risposta);
[[nodiscard]] std::string risposta(const RispostaBloccaggio& risposta);

/// The table of the lengths tried, then the answer if there is one: that there is none is told with
/// what a command does not do.
[[nodiscard]] std::string testoLunghezza(const RispostaLunghezza& risposta);
/// The answer, then the force of the anchor in each stage; nothing without an answer.
[[nodiscard]] std::string testoBloccaggio(const RispostaBloccaggio& risposta);

/// docs/json.md, `lunghezza` and `bloccaggio`.
[[nodiscard]] nlohmann::ordered_json jsonLunghezza(const RispostaLunghezza& risposta);
[[nodiscard]] nlohmann::ordered_json jsonBloccaggio(const RispostaBloccaggio& risposta);

}  // namespace korven::batch
