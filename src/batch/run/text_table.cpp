#include "batch/run/text_table.hpp"

#include <algorithm>
#include <cassert>
#include <utility>

#include "base/code_page.hpp"

namespace korven::batch {

TabellaTesto::TabellaTesto(std::vector<std::string> titoli, bool ultimaAParole)
    : righe_{std::move(titoli)}, aParole_(righe_.front().size()) {
    if (!aParole_.empty()) aParole_.back() = ultimaAParole;
}

TabellaTesto::TabellaTesto(std::vector<std::string> titoli, std::vector<bool> aParole)
    : righe_{std::move(titoli)}, aParole_(std::move(aParole)) {
    assert(aParole_.size() == righe_.front().size());
}

void TabellaTesto::riga(std::vector<std::string> celle) {
    assert(celle.size() == righe_.front().size());
    righe_.push_back(std::move(celle));
}

std::size_t TabellaTesto::larghezza(std::size_t colonna) const {
    std::size_t massima = 0;
    for (const auto& riga : righe_)
        massima = std::max(massima, base::numeroCaratteri(riga[colonna]));
    return massima;
}

std::string TabellaTesto::testo() const {
    std::string testo;
    const std::size_t colonne = righe_.front().size();
    for (const auto& riga : righe_) {
        for (std::size_t j = 0; j < colonne; ++j) {
            const std::string aria(larghezza(j) - base::numeroCaratteri(riga[j]), ' ');
            if (j > 0) testo += "  ";
            if (!aParole_[j]) testo += aria;
            testo += riga[j];
            if (aParole_[j] && j + 1 < colonne) testo += aria;
        }
        testo += '\n';
    }
    return testo;
}

std::string testoTabella(const tables::Prospetto& prospetto) {
    if (prospetto.righe.empty()) return {};
    std::vector<std::string> titoli;
    std::vector<bool> aParole;
    for (const auto& colonna : prospetto.colonne) {
        titoli.push_back(colonna.testa());
        aParole.push_back(!colonna.numerica);
    }
    TabellaTesto tabella(std::move(titoli), std::move(aParole));
    for (const auto& riga : prospetto.righe) {
        std::vector<std::string> celle;
        for (const auto& cella : riga) celle.push_back(cella.testo);
        tabella.riga(std::move(celle));
    }
    return tabella.testo();
}

}  // namespace korven::batch
