#pragma once

#include <memory>

#include "base/table.hpp"

namespace korven::analysis {

/// Largest number of unknowns of one system: two a node, for up to 250 nodes.
inline constexpr int capacitaSistema = 500;

/// Right-hand side or solution of a system: entries 1 to 500, access checked in every build type.
using VettoreSistema = base::Tabella<double, capacitaSistema>;

/// Square matrix of a system, 500 x 500 doubles counted from 1, all 0 at the start.
///
/// The matrix outlives a solve on purpose: cells that nobody clears between two solves keep what
/// the first one left there (see linear_system.hpp). It also owns a work area of the same size for
/// the solver, so that a solve allocates nothing. Together 4 MB.
class MatriceSistema {
 public:
    /// Doubles from one row to the next: 63 cache lines. Each row begins on a line and holds whole
    /// vectors; the odd number keeps the cells of one column from falling into the same cache set.
    static constexpr int passoRiga = 504;

    /// Cell of row i and column j, both 1 to 500.
    /// @throws base::ErroreIndice for an index outside
    [[nodiscard]] double& operator()(long i, long j) {
        return celle_->valori[controlla(i)][controlla(j)];
    }
    [[nodiscard]] const double& operator()(long i, long j) const {
        return celle_->valori[controlla(i)][controlla(j)];
    }

    /// Sets the cells of rows 1 to n and columns 1 to n to 0; the others stay.
    /// @throws base::ErroreIndice for n outside 0 to 500
    void azzera(int n) {
        if (n == 0) return;
        const std::size_t righe = controlla(n) + 1;
        for (std::size_t i = 0; i < righe; ++i)
            for (std::size_t j = 0; j < righe; ++j) celle_->valori[i][j] = 0.0;
    }

    /// Row of the matrix, counted from 0, `passoRiga` doubles, unchecked: for the solver alone.
    [[nodiscard]] double* riga(int i) { return celle_->valori[i]; }
    /// Row of the solver's work area, counted from 0; its contents mean nothing to anybody else.
    [[nodiscard]] double* rigaLavoro(int i) { return lavoro_->valori[i]; }

 private:
    struct alignas(64) Celle {
        double valori[capacitaSistema][passoRiga];
    };

    static std::size_t controlla(long indice) {
        if (indice < 1 || indice > capacitaSistema)
            throw base::ErroreIndice(indice, capacitaSistema);
        return static_cast<std::size_t>(indice - 1);
    }

    std::unique_ptr<Celle> celle_ = std::make_unique<Celle>();
    std::unique_ptr<Celle> lavoro_ = std::make_unique<Celle>();
};

}  // namespace korven::analysis
