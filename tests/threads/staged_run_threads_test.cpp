// Runs of several threads at once: they have the digits of one after the other, and the thread
// sanitizer finds nothing that two of them touch.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

#include "analysis/staged_run.hpp"
#include "support/run_harness.hpp"
#include "support/sample_projects.hpp"
#include "support/stage_comparison.hpp"
#include "threads/many_walls.hpp"

namespace korven::analysis {
namespace {

// Not every random wall comes to rest: an end by this limit is an outcome like the others.
class Limite : public OsservatoreCorsa {
 public:
    void iterazione(const StatoIterazione& stato) override { iterazioni_ = stato.iterazione; }
    [[nodiscard]] bool fermata() override { return iterazioni_ >= 40; }

 private:
    int iterazioni_ = 0;
};

EsitoCorsa calcola(const test::MuroConMaglia& muro, ArraysCorsa& arrays) {
    Limite limite;
    return calcolaFasi(muro.dati, muro.nSeg, limite, arrays);
}

class CorseInsieme : public ::testing::Test {
 protected:
    CorseInsieme() {
        ArraysCorsa arrays;
        for (const auto& muro : tutti) attese.push_back(calcola(muro, arrays));
    }
    [[nodiscard]] bool vistoEsito(EsitoFase esito) const {
        return std::any_of(attese.begin(), attese.end(), [esito](const EsitoCorsa& corsa) {
            return corsa.fasi.back().esito == esito;
        });
    }
    void confrontaInsieme(const std::function<void()>& intanto) {
        std::vector<std::vector<EsitoCorsa>> avute(test::quantiFili,
                                                   std::vector<EsitoCorsa>(tutti.size()));
        const auto lavoro = [&](std::size_t f) {
            return [&, f, arrays = std::make_unique<ArraysCorsa>()](std::size_t quale) {
                avute[f][quale] = calcola(tutti[quale], *arrays);
            };
        };
        test::inQuattroFili(tutti.size(), lavoro, intanto);
        for (const auto& corse : avute)
            for (std::size_t i = 0; i < tutti.size(); ++i) {
                SCOPED_TRACE(i);
                test::confronta(corse[i], attese[i]);
            }
    }

    const std::vector<test::MuroConMaglia> tutti = test::tantiMuri(KORVEN_EXAMPLES);
    std::vector<EsitoCorsa> attese;
};

TEST_F(CorseInsieme, HaveTheDigitsOfOneAfterTheOther) {
    ASSERT_GT(tutti.size(), 20u);
    EXPECT_TRUE(vistoEsito(EsitoFase::convergente));
    EXPECT_TRUE(vistoEsito(EsitoFase::singolare));
    confrontaInsieme([] {});
}

// The program may compute, write and stop runs of its own, with its one project, its flags and its
// texts, while others compute beside it.
TEST_F(CorseInsieme, DoNotFeelARunOfTheProgramBesideThem) {
    test::Banco banco(test::progettoSemplice(), 20);
    confrontaInsieme([&banco] {
        for (int volta = 0; volta < 4; ++volta) {
            banco.avanzamento.adOgniIterazione = [volta](const StatoIterazione& stato) {
                if (volta % 2 == 1 && stato.fase == 2) stopCalcolo = true;
            };
            project::Progetto.lunghezzaParatia += 0.5;
            banco.calcola();
            EXPECT_EQ(erroreCalcolo, volta % 2 == 1);
        }
    });
    EXPECT_EQ(banco.uscita.relazioni, 2);
}

}  // namespace
}  // namespace korven::analysis
