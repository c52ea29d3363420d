#pragma once

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <cstring>

#include "analysis/staged_run.hpp"

namespace korven::test {

/// Whether two tables hold the same bits, all thirteen columns of them.
inline bool stessiNumeri(const analysis::RisultatiFase& a, const analysis::RisultatiFase& b) {
    static_assert(sizeof a == 13 * sizeof(analysis::VettoreNodi));
    return std::memcmp(&a, &b, sizeof a) == 0;
}

inline bool stessiNumeri(const analysis::EstremiIterazione& a,
                         const analysis::EstremiIterazione& b) {
    static_assert(sizeof a == 4 * sizeof(double));
    return std::memcmp(&a, &b, sizeof a) == 0;
}

/// Expects two runs to be equal to the last bit.
inline void confronta(const analysis::EsitoCorsa& avuta, const analysis::EsitoCorsa& attesa) {
    ASSERT_EQ(avuta.fasi.size(), attesa.fasi.size());
    for (std::size_t k = 0; k < attesa.fasi.size(); ++k) {
        const auto &a = avuta.fasi[k], &b = attesa.fasi[k];
        EXPECT_EQ(a.fase, b.fase);
        EXPECT_EQ(a.esito, b.esito) << a.fase;
        EXPECT_EQ(a.iterazioni, b.iterazioni) << a.fase;
        EXPECT_TRUE(stessiNumeri(a.estremi, b.estremi)) << a.fase;
        EXPECT_TRUE(stessiNumeri(a.risultati, b.risultati)) << a.fase;
        ASSERT_EQ(a.rifiuto.has_value(), b.rifiuto.has_value()) << a.fase;
        if (!a.rifiuto) continue;
        EXPECT_EQ(a.rifiuto->motivo, b.rifiuto->motivo) << a.fase;
        EXPECT_EQ(a.rifiuto->profondita, b.rifiuto->profondita) << a.fase;
    }
    EXPECT_EQ(std::bit_cast<std::uint64_t>(avuta.mMaxTotale),
              std::bit_cast<std::uint64_t>(attesa.mMaxTotale));
    EXPECT_EQ(std::bit_cast<std::uint64_t>(avuta.mMinTotale),
              std::bit_cast<std::uint64_t>(attesa.mMinTotale));
}

}  // namespace korven::test
