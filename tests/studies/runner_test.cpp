#include "studies/runner.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <stdexcept>

#include "studies/small_study.hpp"
#include "support/wall_builder.hpp"

namespace korven::studies {
namespace {

// Takes all rows, and ends the study after some.
class Raccolta : public UscitaStudio {
 public:
    void prendi(const Righe& righe) override {
        EXPECT_EQ(righe.primo, primo + numero);
        numero += righe.numero;
        byte += righe.byte;
        valori.insert(valori.end(), righe.valori.begin(), righe.valori.end());
        limitati += righe.limitati.empty() ? 0 : righe.limitati.at({0, true});
        controllate.insert(controllate.end(), righe.controllate.begin(), righe.controllate.end());
        if (rotta) throw std::runtime_error("disco pieno");
    }
    bool prosegui(std::uint64_t fatte) override {
        EXPECT_EQ(fatte, numero);
        return numero < basta;
    }

    std::uint64_t primo = 0, numero = 0, limitati = 0, basta = 1'000'000;
    std::string byte;
    std::vector<double> valori;
    std::vector<Controllata> controllate;
    bool rotta = false;
};

struct Banco {
    explicit Banco(std::uint64_t numero, std::uint64_t controllo = 0)
        : varianti({{"lunghezzaParatia", 6, 0.004}, {"phiStrato[1]", 25, 0.01}}, numero),
          studio{varianti, dati, {.nSeg = 30}, righe, controllo} {}

    Raccolta esegui(int fili, Tratto tratto) {
        Raccolta raccolta;
        raccolta.primo = tratto.da;
        EXPECT_EQ(studies::esegui(studio, tratto, fili, raccolta), tratto.numero());
        return raccolta;
    }

    test::VariantiLineari varianti;
    project::DatiProgetto dati =
        test::muro().lungo(10).fase({.scavo = 2}).fase({.scavo = 4}).dati();
    RigheStudio righe{varianti.campi(), colonne(0, false), Formato::csv};
    Studio studio;
};

TEST(Studio, GivesTheSameBytesWithAnyNumberOfThreads) {
    Banco banco(1000);
    const Raccolta uno = banco.esegui(1, {0, 1000});
    EXPECT_EQ(std::count(uno.byte.begin(), uno.byte.end(), '\n'), 1000);
    EXPECT_EQ(uno.valori.size(), 1000 * banco.righe.quanti());
    EXPECT_EQ(uno.limitati, 100u);  // every tenth, as the variants say
    for (const int fili : {2, 3, 16}) {
        const Raccolta piu = banco.esegui(fili, {0, 1000});
        EXPECT_EQ(piu.byte, uno.byte) << fili;
        EXPECT_EQ(piu.limitati, 100u);
    }
    EXPECT_NE(uno.byte.find("meccanismo"), std::string::npos);  // some fall
    EXPECT_NE(uno.byte.find("eseguito"), std::string::npos);
}

TEST(Studio, GivesPartsThatMakeTheWhole) {
    Banco banco(500);
    const std::string tutto = banco.esegui(2, {0, 500}).byte;
    std::string insieme;
    for (std::uint64_t i = 1; i <= 7; ++i) insieme += banco.esegui(2, parte(500, i, 7)).byte;
    EXPECT_EQ(insieme, tutto);
    EXPECT_EQ(calcolaRighe(banco.studio, {0, 500}).byte, tutto);
}

TEST(Parte, SharesOutAllVariantsInOrder) {
    EXPECT_EQ(parte(10, 1, 3), (Tratto{0, 4}));
    EXPECT_EQ(parte(10, 2, 3), (Tratto{4, 7}));
    EXPECT_EQ(parte(10, 3, 3), (Tratto{7, 10}));
    EXPECT_EQ(parte(2, 3, 3), (Tratto{2, 2}));  // more parts than variants
    const std::uint64_t molte = std::uint64_t{1} << 63;
    EXPECT_EQ(parte(molte, 1000, 1000).a, molte);
}

TEST(Studio, EndsWhenToldAndKeepsRowsWithoutAGap) {
    Banco banco(20000);
    Raccolta raccolta;
    raccolta.basta = 200;
    const auto fatte = esegui(banco.studio, {0, 20000}, 4, raccolta);
    EXPECT_EQ(fatte, raccolta.numero);
    EXPECT_GE(fatte, 200u);
    EXPECT_LT(fatte, 20000u);
    EXPECT_EQ(raccolta.byte, calcolaRighe(banco.studio, {0, fatte}).byte);
}

TEST(Studio, BringsHomeWhatItsOutputThrows) {
    Banco banco(2000);
    Raccolta raccolta;
    raccolta.rotta = true;
    EXPECT_THROW(esegui(banco.studio, {0, 2000}, 3, raccolta), std::runtime_error);
}

// Fails at one variant, in whatever thread that is.
class Guaste : public test::VariantiLineari {
 public:
    using VariantiLineari::VariantiLineari;
    std::vector<Estremita> valori(std::uint64_t i, std::span<double> valori) const override {
        if (i == 777) throw std::domain_error("777");
        return VariantiLineari::valori(i, valori);
    }
};

TEST(Studio, BringsHomeWhatAThreadThrowsAndTheRowsBefore) {
    Banco banco(2000);
    const Guaste guaste({{"lunghezzaParatia", 6, 0.004}, {"phiStrato[1]", 25, 0.01}}, 2000);
    const Studio studio{guaste, banco.dati, {.nSeg = 30}, banco.righe};
    const std::string tutte = calcolaRighe(banco.studio, {0, 777}).byte;
    // The others end within their blocks, at one time or another.
    for (int volta = 0; volta < 20; ++volta) {
        Raccolta raccolta;
        EXPECT_THROW(esegui(studio, {0, 2000}, 3, raccolta), std::domain_error);
        EXPECT_LE(raccolta.numero, 777u);
        EXPECT_TRUE(tutte.starts_with(raccolta.byte)) << raccolta.numero;
    }
}

TEST(Studio, ComputesEverySoManyVariantsBothWays) {
    Banco banco(100, 20);
    const Raccolta raccolta = banco.esegui(3, {0, 100});
    ASSERT_EQ(raccolta.controllate.size(), 5u);
    for (std::size_t k = 0; k < 5; ++k) {
        EXPECT_EQ(raccolta.controllate[k].variante, 20 * k + 19);
        EXPECT_FALSE(raccolta.controllate[k].esito.diversi());
    }
}

TEST(Studio, HasNoRowsOfNoVariants) {
    Banco banco(10);
    EXPECT_EQ(banco.esegui(2, {5, 5}).byte, "");
}

}  // namespace
}  // namespace korven::studies
