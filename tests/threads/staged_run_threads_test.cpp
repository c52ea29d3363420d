// Runs of several threads at once: they have the digits of one after the other, and the thread
// sanitizer finds nothing that two of them touch.

#include <gtest/gtest.h>

#include <algorithm>
#include <barrier>
#include <filesystem>
#include <thread>
#include <vector>

#include "analysis/staged_run.hpp"
#include "base/text_lines.hpp"
#include "project/project_file.hpp"
#include "support/random_walls.hpp"
#include "support/run_harness.hpp"
#include "support/sample_projects.hpp"
#include "support/stage_comparison.hpp"

namespace korven::analysis {
namespace {

struct Muro {
    project::DatiProgetto dati;
    int nSeg = 0;
};

// Not every random wall comes to rest: an end by this limit is an outcome like the others.
class Limite : public OsservatoreCorsa {
 public:
    void iterazione(const StatoIterazione& stato) override { iterazioni_ = stato.iterazione; }
    [[nodiscard]] bool fermata() override { return iterazioni_ >= 40; }

 private:
    int iterazioni_ = 0;
};

std::vector<std::string> esempi() {
    std::vector<std::string> nomi;
    for (const auto& voce : std::filesystem::directory_iterator(KORVEN_EXAMPLES))
        if (voce.path().extension() == ".kvd") nomi.push_back(voce.path().string());
    std::sort(nomi.begin(), nomi.end());
    return nomi;
}

// The delivered examples and random walls, each with a mesh of its own.
std::vector<Muro> muri() {
    std::vector<Muro> tutti;
    for (const auto& nome : esempi()) {
        auto file = base::LettoreRighe::apri(nome);
        Muro& muro = tutti.emplace_back();
        project::leggiDati(file, muro.dati);
    }
    test::MuriCasuali casuali(7);
    for (int i = 0; i < 16; ++i) tutti.push_back({casuali.prossimo(), 0});
    for (std::size_t i = 0; i < tutti.size(); ++i)
        tutti[i].nSeg = 12 + static_cast<int>(i) * 5 % 23;
    return tutti;
}

EsitoCorsa calcola(const Muro& muro, ArraysCorsa& arrays) {
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
    // All walls in each of four threads, which begin at different ones; `intanto`
    // goes on meanwhile.
    void confrontaInsieme(const std::function<void()>& intanto) {
        constexpr std::size_t quanti = 4;
        std::vector<std::vector<EsitoCorsa>> avute(quanti, std::vector<EsitoCorsa>(tutti.size()));
        std::barrier partenza(quanti + 1);
        std::vector<std::jthread> fili;
        for (std::size_t f = 0; f < quanti; ++f)
            fili.emplace_back([&, f] {
                ArraysCorsa arrays;
                partenza.arrive_and_wait();
                for (std::size_t i = 0; i < tutti.size(); ++i) {
                    const std::size_t quale = (i + f * tutti.size() / quanti) % tutti.size();
                    avute[f][quale] = calcola(tutti[quale], arrays);
                }
            });
        partenza.arrive_and_wait();
        intanto();
        fili.clear();  // waits for them
        for (const auto& corse : avute)
            for (std::size_t i = 0; i < tutti.size(); ++i) {
                SCOPED_TRACE(i);
                test::confronta(corse[i], attese[i]);
            }
    }

    const std::vector<Muro> tutti = muri();
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
