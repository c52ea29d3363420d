#include "studies/resume.hpp"

#include <gtest/gtest.h>

#include "studies/small_study.hpp"
#include "support/temporary_folder.hpp"
#include "support/wall_builder.hpp"

namespace korven::studies {
namespace {

class Letti : public LettoreRigheStudio {
 public:
    void riga(std::uint64_t i, std::span<const double> valori) override {
        numeri.push_back(i);
        tutti.insert(tutti.end(), valori.begin(), valori.end());
    }
    std::vector<std::uint64_t> numeri;
    std::vector<double> tutti;
};

class Ripresi : public ::testing::TestWithParam<Formato> {
 protected:
    // Bytes of the first variants of the study, with the line of names.
    [[nodiscard]] std::string primi(std::uint64_t numero) const {
        return righe.testata() + calcolaRighe(studio, {0, numero}).byte;
    }
    std::optional<Ripresa> esamina(const std::string& byte, Tratto tratto = {0, 100}) {
        test::metti(nome + ".parziale", byte);
        letti = {};
        return riprendi(base::FileParziale(nome), studio, tratto, letti);
    }

    test::CartellaProvvisoria cartella;
    const std::string nome = cartella / "studio.csv";
    test::VariantiLineari varianti{{{"lunghezzaParatia", 6, 0.1}}, 100};
    project::DatiProgetto dati = test::muro().lungo(10).fase({.scavo = 3}).dati();
    RigheStudio righe{varianti.campi(), colonne(0, false), GetParam()};
    Studio studio{varianti, dati, {.nSeg = 20}, righe};
    Letti letti;
};

INSTANTIATE_TEST_SUITE_P(Formati, Ripresi, ::testing::Values(Formato::csv, Formato::json));

TEST_P(Ripresi, GoOnAfterTheLastWholeRow) {
    const std::string sette = primi(7), otto = primi(8);
    for (std::size_t tagliati = 1; tagliati < otto.size() - sette.size(); ++tagliati) {
        const auto r = esamina(otto.substr(0, otto.size() - tagliati));
        ASSERT_TRUE(r) << tagliati;
        EXPECT_EQ(r->righe, 7u);
        EXPECT_EQ(r->byte, sette.size());
    }
    EXPECT_EQ(letti.numeri, (std::vector<std::uint64_t>{0, 1, 2, 3, 4, 5, 6}));
    const auto calcolate = calcolaRighe(studio, {0, 7}).valori;
    ASSERT_EQ(letti.tutti.size(), calcolate.size());
    for (std::size_t j = 0; j < calcolate.size(); ++j)
        EXPECT_TRUE(letti.tutti[j] == calcolate[j] || std::isnan(calcolate[j])) << j;
}

TEST_P(Ripresi, BeginAnewWhereThereIsNoWholeRow) {
    for (const std::string& byte : {std::string(), righe.testata(), std::string("vari")}) {
        const auto r = esamina(byte);
        ASSERT_TRUE(r) << byte;
        EXPECT_EQ(r->righe, 0u);
    }
    EXPECT_EQ(esamina(righe.testata())->byte, righe.testata().size());
}

TEST_P(Ripresi, HaveNothingToDoWhereAllIsThere) { EXPECT_EQ(esamina(primi(100))->righe, 100u); }

TEST_P(Ripresi, ArePartsToo) {
    const std::string parte = calcolaRighe(studio, {40, 45}).byte;
    const auto r = esamina(parte, {40, 60});
    ASSERT_TRUE(r);
    EXPECT_EQ(r->righe, 5u);
    EXPECT_EQ(r->byte, parte.size());
}

TEST_P(Ripresi, AreRefusedWhereTheFileIsOfAnotherStudy) {
    EXPECT_FALSE(esamina("altro\r\n" + primi(3)));
    EXPECT_FALSE(esamina(primi(3) + calcolaRighe(studio, {5, 6}).byte));  // a gap
    EXPECT_FALSE(esamina(primi(10), {0, 9}));                             // more than there are
    const std::string cinque = primi(5);
    dati.phiStrato[1] += 1;  // the same lines of other numbers
    EXPECT_FALSE(esamina(cinque));
}

}  // namespace
}  // namespace korven::studies
