// After the first stage nothing is allocated: this test program counts what it takes from the heap.

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>

#include "equilibrium/staged_equilibrium.hpp"
#include "support/random_walls.hpp"

namespace {
std::atomic<long> presi{0};  // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)
}

void* operator new(std::size_t quanti) {
    ++presi;
    if (void* p = std::malloc(quanti == 0 ? 1 : quanti)) return p;
    throw std::bad_alloc();
}
void operator delete(void* p) noexcept { std::free(p); }
void operator delete(void* p, std::size_t) noexcept { std::free(p); }

namespace korven::equilibrium {
namespace {

TEST(EquilibrioParete, AllocatesNothingAfterItsFirstStage) {
    test::MuriCasuali muri(17);
    int fasi = 0;
    for (int m = 0; m < 30; ++m) {
        const auto dati = muri.prossimo();
        EquilibrioParete parete(dati, 50);
        bool sta = parete.calcola(1).esito == EsitoFase::equilibrio;
        const long prima = presi;
        for (int k = 2; sta && k <= dati.nFasi; ++k, ++fasi)
            sta = parete.calcola(k).esito == EsitoFase::equilibrio;
        EXPECT_EQ(presi, prima) << m;
    }
    EXPECT_GT(fasi, 20);
}

}  // namespace
}  // namespace korven::equilibrium
