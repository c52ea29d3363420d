#include "tables/table_order.hpp"

#include <algorithm>
#include <cassert>
#include <numeric>

namespace korven::tables {

namespace {

std::optional<double> chiave(const Cella& cella) {
    return cella.numero ? cella.numero : cella.ordine;
}

bool prima(const Cella& una, const Cella& altra, bool crescente) {
    const auto a = chiave(una), b = chiave(altra);
    if (a.has_value() != b.has_value()) return a.has_value();
    if (a) return crescente ? *a < *b : *b < *a;
    return crescente ? una.testo < altra.testo : altra.testo < una.testo;
}

}  // namespace

std::vector<std::size_t> ordine(const Prospetto& prospetto, std::size_t colonna, bool crescente) {
    assert(colonna < prospetto.colonne.size());
    std::vector<std::size_t> righe(prospetto.righe.size());
    std::iota(righe.begin(), righe.end(), std::size_t{0});
    std::stable_sort(righe.begin(), righe.end(), [&](std::size_t una, std::size_t altra) {
        return prima(prospetto.righe[una][colonna], prospetto.righe[altra][colonna], crescente);
    });
    return righe;
}

}  // namespace korven::tables
