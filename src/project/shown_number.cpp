#include "project/shown_number.hpp"

#include <charconv>
#include <cmath>

#include "base/number_text.hpp"

namespace korven::project {

std::string numeroMostrato(double valore, int decimali, const Unita& unita) {
    const double mostrato = project::mostrato(unita, valore);
    if (!std::isfinite(mostrato)) return "-";
    if (std::fabs(mostrato) < 1e9) return base::testoDecimali(valore, decimali, posti(unita));
    char testo[32];
    const auto fine =
        std::to_chars(testo, testo + sizeof testo, mostrato, std::chars_format::scientific, 3).ptr;
    return {testo, fine};
}

std::string numeroRelazione(double mostrato) {
    return std::isfinite(mostrato) ? base::formattaDecimali(mostrato, 2) : "-";
}

}  // namespace korven::project
