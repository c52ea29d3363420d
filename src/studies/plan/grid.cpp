#include "studies/plan/grid.hpp"

#include <algorithm>
#include <cassert>
#include <charconv>
#include <cmath>
#include <iterator>
#include <string_view>
#include <utility>

#include "base/number_text.hpp"
#include "studies/plan/study_fields.hpp"

namespace korven::studies {

namespace {

// Of the shortest decimal number that is this one.
int decimali(double valore) {
    char testo[400];  // the longest has 325 digits before and behind the point
    const auto fine =
        std::to_chars(std::begin(testo), std::end(testo), valore, std::chars_format::fixed);
    const std::string_view cifre(testo, static_cast<std::size_t>(fine.ptr - testo));
    const auto punto = cifre.find('.');
    return punto == std::string_view::npos ? 0 : static_cast<int>(cifre.size() - punto - 1);
}

}  // namespace

Asse::Asse(project::CampoNominato campo, double da, double a, double passo)
    : campo_(campo), da_(da), passo_(passo), decimali_(std::max(decimali(da), decimali(passo))) {
    const double n = quanti(da, a, passo);
    assert(n >= 1 && n <= massimoVarianti);
    numero_ = static_cast<std::uint64_t>(n);
}

double Asse::quanti(double da, double a, double passo) {
    constexpr double tolleranza = 1e-9;  // of a step, which rounding takes from the last value
    return std::floor((a - da) / passo + tolleranza) + 1;
}

double Asse::valore(std::uint64_t k) const {
    const double esatto = da_ + static_cast<double>(k) * passo_;
    return base::leggiNumero(base::testoDecimali(esatto, decimali_)).value_or(esatto);
}

Letto<Griglia> Griglia::di(std::vector<Asse> assi) {
    std::vector<project::CampoNominato> campi;
    double varianti = 1;
    for (const Asse& asse : assi) {
        campi.push_back(asse.campo());
        varianti *= static_cast<double>(asse.numero());
    }
    if (const auto nome = campoRipetuto(campi))
        return DifettoPiano{.motivo = MotivoPiano::campoRipetuto, .testo = *nome};
    if (varianti > massimoVarianti) return DifettoPiano{.motivo = MotivoPiano::troppeVarianti};
    return Griglia(std::move(assi));
}

Griglia::Griglia(std::vector<Asse> assi) : assi_(std::move(assi)) {
    for (const Asse& asse : assi_) {
        campi_.push_back(asse.campo());
        numero_ *= asse.numero();
    }
}

std::vector<Estremita> Griglia::valori(std::uint64_t i, std::span<double> valori) const {
    assert(i < numero_ && valori.size() == assi_.size());
    for (std::size_t j = assi_.size(); j-- > 0;) {
        valori[j] = assi_[j].valore(i % assi_[j].numero());
        i /= assi_[j].numero();
    }
    return {};
}

}  // namespace korven::studies
