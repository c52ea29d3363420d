#pragma once

#include "review/remark_row.hpp"

namespace korven::review {

// The remarks on what the stages come to.
inline constexpr VoceOsservazione vociRisultati[] = {
    {"fase-singolare", Peso::impedisce, "sicurezza", ""},
    {"fase-senza-riposo", Peso::impedisce, "sicurezza", ""},
    {"risultato-non-mostrabile", Peso::impedisce, "sicurezza", ""},
};

}  // namespace korven::review
