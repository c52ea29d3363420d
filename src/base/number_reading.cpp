#include "base/number_reading.hpp"

#include "base/code_page.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"

namespace korven::base {

namespace {

std::string lettura(double valore, bool virgola) {
    std::string testo = traduttore("letto come") + ' ' + testoNumero(valore);
    if (virgola) testo += ": " + traduttore("il segno decimale è il punto");
    return testo;
}

}  // namespace

std::string letturaMostrata(std::string_view testo) {
    if (senzaSpaziEsterni(testo).empty()) return {};
    const auto letto = leggiNumero(testo);
    if (letto && soloUnNumero(testo)) return {};
    return lettura(letto.value_or(0), testo.find(',') != std::string_view::npos);
}

std::string letturaPiuLunga() {
    constexpr double numeroLungo = -1234567.89;
    return lettura(numeroLungo, true);
}

}  // namespace korven::base
