#pragma once

#include <cmath>
#include <utility>
#include <vector>

#include "analysis/solver/linear_system.hpp"

namespace korven::test {

/// Gauss-Jordan elimination with full pivoting, in place, written down step by step without any
/// saving: what RisolviSistema must equal bit by bit.
///
/// Rows and columns count from 1; row 0, column 0 exist and are 0. A pass that meets nothing but
/// NaN keeps the pivot (0, 0), whose 0 makes the system singular.
///
/// @param[in,out] A  on success its own inverse in rows and columns 1 to n, else as it was
inline analysis::EsitoSistema risolviPassoPasso(int n, analysis::MatriceSistema& A,
                                                const analysis::VettoreSistema& b,
                                                analysis::VettoreSistema& x) {
    using analysis::EsitoSistema;
    const auto quante = static_cast<std::size_t>(n);
    std::vector<std::vector<double>> a(quante + 1, std::vector<double>(quante + 1, 0.0));
    std::vector<double> B(quante + 1, 0.0);
    std::vector<int> contatore(quante + 1, 0);
    std::vector<std::pair<std::size_t, std::size_t>> passi;
    for (std::size_t i = 1; i <= quante; ++i) {
        for (std::size_t j = 1; j <= quante; ++j)
            a[i][j] = A(static_cast<long>(i), static_cast<long>(j));
        B[i] = b[static_cast<long>(i)];
    }

    for (std::size_t passo = 1; passo <= quante; ++passo) {
        double big = 0.0;
        std::size_t riga = 0, c = 0;
        for (std::size_t j = 1; j <= quante; ++j) {
            if (contatore[j] == 1) continue;
            for (std::size_t k = 1; k <= quante; ++k) {
                if (contatore[k] == 0 && std::abs(a[j][k]) >= big) {
                    big = std::abs(a[j][k]);
                    riga = j;
                    c = k;
                } else if (contatore[k] > 1) {
                    return EsitoSistema::singolare;
                }
            }
        }
        ++contatore[c];
        if (riga != c) {
            std::swap(a[riga], a[c]);
            std::swap(B[riga], B[c]);
        }
        passi.emplace_back(riga, c);
        if (a[c][c] == 0.0) return EsitoSistema::singolare;

        const double inv = 1.0 / a[c][c];
        a[c][c] = 1.0;
        for (std::size_t k = 1; k <= quante; ++k) a[c][k] *= inv;
        B[c] *= inv;
        for (std::size_t r = 1; r <= quante; ++r) {
            if (r == c) continue;
            const double d = a[r][c];
            a[r][c] = 0.0;
            for (std::size_t k = 1; k <= quante; ++k) a[r][k] -= d * a[c][k];
            B[r] -= d * B[c];
        }
    }

    for (auto passo = passi.rbegin(); passo != passi.rend(); ++passo)
        if (passo->first != passo->second)
            for (std::size_t r = 1; r <= quante; ++r)
                std::swap(a[r][passo->first], a[r][passo->second]);
    for (std::size_t i = 1; i <= quante; ++i) {
        for (std::size_t j = 1; j <= quante; ++j)
            A(static_cast<long>(i), static_cast<long>(j)) = a[i][j];
        x[static_cast<long>(i)] = B[i];
    }
    return EsitoSistema::risolto;
}

}  // namespace korven::test
