#include "project/seven_digits.hpp"

#include <charconv>

namespace korven::project {

double conSetteCifre(double mostrato) {
    constexpr int dopoLaPrima = 6;
    char testo[32];
    const char* fine = std::to_chars(testo, testo + sizeof testo, mostrato,
                                     std::chars_format::scientific, dopoLaPrima)
                           .ptr;
    std::from_chars(testo, fine, mostrato);
    return mostrato;
}

}  // namespace korven::project
