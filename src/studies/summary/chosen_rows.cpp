#include "studies/summary/chosen_rows.hpp"

#include <algorithm>
#include <cassert>

#include "studies/plan/random_words.hpp"

namespace korven::studies {

RigheScelte::RigheScelte(std::uint64_t seme, std::size_t valori, std::size_t capienza)
    : seme_(seme), larghezza_(valori), capienza_(capienza) {
    assert(capienza > 0);
}

void RigheScelte::prendi(std::uint64_t i, std::span<const double> riga) {
    assert(riga.size() == larghezza_);
    Tenuta nuova{paroleCasuali(seme_, Scopo::scelta, {i, 0, 0, 0})[0], i, tenute_.size()};
    if (tenute_.size() < capienza_) {
        valori_.insert(valori_.end(), riga.begin(), riga.end());
    } else {
        if (!(nuova < tenute_.front())) return;
        std::ranges::pop_heap(tenute_);
        nuova.posto = tenute_.back().posto;
        tenute_.pop_back();
        std::ranges::copy(riga,
                          valori_.begin() + static_cast<std::ptrdiff_t>(nuova.posto * larghezza_));
    }
    tenute_.push_back(nuova);
    std::ranges::push_heap(tenute_);
}

std::vector<double> RigheScelte::colonna(std::size_t j) const {
    assert(j < larghezza_);
    auto inOrdine = tenute_;
    std::ranges::sort(inOrdine, {}, &Tenuta::variante);
    std::vector<double> trovati;
    trovati.reserve(inOrdine.size());
    for (const Tenuta& riga : inOrdine) trovati.push_back(valori_[riga.posto * larghezza_ + j]);
    return trovati;
}

}  // namespace korven::studies
