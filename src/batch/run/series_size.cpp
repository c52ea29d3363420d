#include "batch/run/series_size.hpp"

#include <chrono>
#include <cmath>

#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "batch/options/series_options.hpp"

namespace korven::batch {

namespace {

// What rows take, each.
struct Costo {
    double byte, secondi;
};

Costo misura(const studies::Studio& studio, studies::Tratto tratto) {
    // Rows that follow one another share what does not vary, as they do in a study.
    constexpr std::uint64_t luoghi = 4, diFila = 16;
    const auto inizio = std::chrono::steady_clock::now();
    double byte = 0;
    for (std::uint64_t k = 0; k < luoghi; ++k) {
        const std::uint64_t i = tratto.da + k * (tratto.numero() / luoghi);
        byte += static_cast<double>(calcolaRighe(studio, {i, i + diFila}).byte.size());
    }
    const std::chrono::duration<double> passati = std::chrono::steady_clock::now() - inizio;
    constexpr double prove = luoghi * diFila;
    return {byte / prove, passati.count() / prove};
}

// Two digits are all that so few rows tell.
std::string dueCifre(double valore) {
    constexpr double base10 = 10;
    if (!(valore >= base10)) return base::testoDecimali(valore, 1);
    const double unita = std::pow(base10, std::floor(std::log10(valore)) - 1);
    return base::testoDecimali(std::round(valore / unita) * unita, 0);
}

}  // namespace

std::string troppeVarianti(const studies::Studio& studio, studies::Tratto tratto, int fili) {
    if (tratto.numero() <= massimoSenzaChiedere) return {};
    constexpr double gigabyte = 1e9, ora = 3600;
    const Costo costo = misura(studio, tratto);
    const auto n = static_cast<double>(tratto.numero());
    return base::riempito(
        base::traduttore("%1 varianti: le righe prenderanno circa %2 GB, il calcolo circa %3 ore "
                         "con %4 fili. Controllare i passi; con %5 si calcolano lo stesso, con %6 "
                         "in più volte."),
        {std::to_string(tratto.numero()), dueCifre(n * costo.byte / gigabyte),
         dueCifre(n * costo.secondi / fili / ora), std::to_string(fili),
         opzioneSenzaLimite.mostrato(), opzioneParte.mostrato()});
}

}  // namespace korven::batch
