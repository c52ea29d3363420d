#include "masks/field_type.hpp"

#include <algorithm>

#include "base/code_page.hpp"
#include "base/number_text.hpp"

namespace korven::masks {

namespace {

bool senzaLimite(std::string_view tipo) { return tipo.find('@') != std::string_view::npos; }

std::size_t lunghezzaScritta(std::string_view tipo) {
    constexpr double oltreOgniTesto = 1e9;
    const double scritta = base::leggiNumero(tipo).value_or(0);
    return static_cast<std::size_t>(std::clamp(scritta, 0.0, oltreOgniTesto));
}

}  // namespace

TipoCampo tipoCampo(std::string_view tipo) {
    TipoCampo letto;
    if (tipo == "0") {
        letto.numero = true;
        letto.illimitato = true;
        return letto;
    }
    letto.illimitato = senzaLimite(tipo);
    letto.lunghezza = lunghezzaScritta(tipo);
    const auto punto = tipo.find('.');
    letto.figura = tipo.starts_with('#') && punto != std::string_view::npos;
    if (letto.figura)
        letto.decimali = static_cast<std::size_t>(
            std::count(tipo.begin() + static_cast<std::ptrdiff_t>(punto), tipo.end(), '#'));
    return letto;
}

TipoColonna tipoColonna(std::string_view tipo) {
    return {tipo.starts_with('/'), senzaLimite(tipo), base::numeroCaratteri(tipo)};
}

std::string_view conDecimaliAmmessi(std::string_view testo, const TipoCampo& tipo) {
    const auto punto = testo.find('.');
    if (!tipo.figura || punto == std::string_view::npos) return testo;
    std::size_t fine = punto + 1;
    for (std::size_t n = 0; n < tipo.decimali && fine < testo.size(); ++n)
        fine += base::lunghezzaPrimoCarattere(testo.substr(fine));
    return testo.substr(0, fine);
}

}  // namespace korven::masks
