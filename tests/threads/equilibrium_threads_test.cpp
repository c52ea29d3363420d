// The equilibrium solution and the strength reduction in several threads at once.

#include <gtest/gtest.h>

#include "equilibrium/staged_equilibrium.hpp"
#include "safety/strength_reduction.hpp"
#include "threads/many_walls.hpp"

namespace korven::equilibrium {
namespace {

struct Certo {
    std::vector<FaseEquilibrio> fasi;
    std::vector<safety::Riduzione> riduzioni;  // of the stages in equilibrium
};

Certo calcola(const test::MuroConMaglia& muro) {
    Certo certo{calcolaEquilibrio(muro.dati, muro.nSeg), {}};
    for (const FaseEquilibrio& fase : certo.fasi)
        if (fase.esito == EsitoFase::equilibrio)
            certo.riduzioni.push_back(safety::riduzione(muro.dati, muro.nSeg, fase.fase));
    return certo;
}

void confronta(const std::optional<Meccanismo>& avuto, const std::optional<Meccanismo>& atteso) {
    ASSERT_EQ(avuto.has_value(), atteso.has_value());
    if (!atteso) return;
    EXPECT_EQ(avuto->profondita, atteso->profondita);
    EXPECT_EQ(avuto->verso, atteso->verso);
    EXPECT_EQ(avuto->mancante, atteso->mancante);
}

void confronta(const Certo& avuto, const Certo& atteso) {
    ASSERT_EQ(avuto.fasi.size(), atteso.fasi.size());
    for (std::size_t k = 0; k < atteso.fasi.size(); ++k) {
        const FaseEquilibrio &a = avuto.fasi[k], &b = atteso.fasi[k];
        EXPECT_EQ(a.esito, b.esito);
        EXPECT_EQ(a.passi, b.passi);
        EXPECT_EQ(a.y, b.y);
        EXPECT_EQ(a.momento, b.momento);
        EXPECT_EQ(a.taglio, b.taglio);
        EXPECT_EQ(a.monte, b.monte);
        EXPECT_EQ(a.valle, b.valle);
        EXPECT_EQ(a.tiri, b.tiri);
        confronta(a.moto, b.moto);
    }
    ASSERT_EQ(avuto.riduzioni.size(), atteso.riduzioni.size());
    for (std::size_t k = 0; k < atteso.riduzioni.size(); ++k) {
        EXPECT_EQ(avuto.riduzioni[k].F, atteso.riduzioni[k].F);
        EXPECT_EQ(avuto.riduzioni[k].oltre, atteso.riduzioni[k].oltre);
        confronta(avuto.riduzioni[k].moto, atteso.riduzioni[k].moto);
    }
}

TEST(EquilibriInsieme, HaveTheDigitsOfOneAfterTheOther) {
    const std::vector<test::MuroConMaglia> muri = test::tantiMuri(KORVEN_EXAMPLES);
    std::vector<Certo> attesi;
    attesi.reserve(muri.size());
    for (const test::MuroConMaglia& muro : muri) attesi.push_back(calcola(muro));

    std::vector<std::vector<Certo>> avuti(test::quantiFili, std::vector<Certo>(muri.size()));
    const auto lavoro = [&](std::size_t f) {
        return [&, f](std::size_t quale) { avuti[f][quale] = calcola(muri[quale]); };
    };
    test::inQuattroFili(muri.size(), lavoro, [] {});

    int stanno = 0, conRiduzione = 0;
    for (std::size_t i = 0; i < muri.size(); ++i) {
        SCOPED_TRACE(i);
        for (const auto& certi : avuti) confronta(certi[i], attesi[i]);
        stanno += attesi[i].fasi.back().esito == EsitoFase::equilibrio ? 1 : 0;
        for (const auto& riduzione : attesi[i].riduzioni) conRiduzione += riduzione.F ? 1 : 0;
    }
    EXPECT_GT(stanno, 15);
    EXPECT_GT(conRiduzione, 15);
}

}  // namespace
}  // namespace korven::equilibrium
