#include "studies/plan/random_words.hpp"

#include <Random123/philox.h>

#include <Random123/uniform.hpp>

namespace korven::studies {

Parole paroleCasuali(std::uint64_t seme, Scopo scopo, const Parole& contatore) {
    const r123::Philox4x64::key_type chiave{{seme, static_cast<std::uint64_t>(scopo)}};
    const r123::Philox4x64::ctr_type c{{contatore[0], contatore[1], contatore[2], contatore[3]}};
    const auto p = r123::Philox4x64{}(c, chiave);
    return {p[0], p[1], p[2], p[3]};
}

double traZeroEUno(std::uint64_t parola) { return r123::u01fixedpt<double>(parola); }

}  // namespace korven::studies
