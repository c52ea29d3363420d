#include "studies/plan/samples.hpp"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <utility>

#include "studies/plan/permutation.hpp"
#include "studies/plan/random_words.hpp"

namespace korven::studies {

namespace {

// Sets a value to the end of its field's range that it is beyond.
void portaNeiLimiti(const project::Campo& campo, std::size_t j, double& valore,
                    std::vector<Estremita>& oltre) {
    if (!campo.limiti) return;
    const double dentro = std::clamp(valore, campo.limiti->minimo, campo.limiti->massimo);
    if (dentro != valore) oltre.push_back({j, dentro < valore});
    valore = dentro;
}

}  // namespace

Campioni::Campioni(const std::vector<CampoCasuale>& campi, std::uint64_t numero, std::uint64_t seme,
                   Disegno disegno, Correlazione correlazione)
    : numero_(numero), seme_(seme), disegno_(disegno), correlazione_(std::move(correlazione)) {
    assert(disegno == Disegno::casuale || correlazione_.nessuna());
    for (const auto& [campo, legge] : campi) {
        nomi_.push_back(campo);
        leggi_.push_back(legge);
    }
}

void Campioni::probabilita(std::uint64_t i, std::span<double> p) const {
    Parole parole{};
    for (std::size_t j = 0; j < p.size(); ++j) {
        const std::size_t resto = j % parole.size();
        if (resto == 0) parole = paroleCasuali(seme_, Scopo::valori, {i, j / parole.size(), 0, 0});
        p[j] = traZeroEUno(parole[resto]);
        if (disegno_ == Disegno::casuale) continue;
        const auto parte = static_cast<double>(Permutazione(seme_, j, numero_)(i));
        // Of many parts the last may round to 1, which no law has a value for.
        p[j] = std::min((parte + p[j]) / static_cast<double>(numero_), std::nextafter(1.0, 0.0));
    }
}

std::vector<Estremita> Campioni::valori(std::uint64_t i, std::span<double> valori) const {
    probabilita(i, valori);
    if (!correlazione_.nessuna()) {
        std::transform(valori.begin(), valori.end(), valori.begin(), scartoNormale);
        correlazione_.applica(valori);
    }
    std::vector<Estremita> oltre;
    for (std::size_t j = 0; j < valori.size(); ++j) {
        valori[j] = correlazione_.nessuna() ? quantile(leggi_[j], valori[j])
                                            : daScarto(leggi_[j], valori[j]);
        portaNeiLimiti(*nomi_[j].campo, j, valori[j], oltre);
    }
    return oltre;
}

}  // namespace korven::studies
