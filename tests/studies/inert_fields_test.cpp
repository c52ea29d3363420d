#include "studies/inert_fields.hpp"

#include <gtest/gtest.h>

#include "studies/small_study.hpp"

namespace korven::studies {
namespace {

using test::VariantiLineari;

std::vector<std::size_t> senzaEffetto(const project::DatiProgetto& dati,
                                      const VariantiLineari& varianti) {
    std::vector<std::size_t> campi;
    for (const auto& campo : campiSenzaEffetto(varianti, dati, {.nSeg = 20}))
        campi.push_back(campo.campo);
    return campi;
}

// A file reads back as 0 what no rule of the calculation looks at; each stage has water of its own.
TEST(CampiSenzaEffetto, AreThoseThatNoResultDependsOn) {
    const auto dati = test::esempioStudio("diaframma_due_ordini");
    const VariantiLineari varianti(
        {{"opzioneRiservata", 0, 1}, {"phiStrato[1]", 30, 0.1}, {"sovraccMonte", 10, 1}}, 12);
    EXPECT_EQ(senzaEffetto(dati, varianti), (std::vector<std::size_t>{0}));
    const auto trovati = campiSenzaEffetto(varianti, dati, {.nSeg = 20});
    EXPECT_EQ(trovati.at(0).da, 0);
    EXPECT_GT(trovati.at(0).a, 5);
}

// A pile's diameter, of a wall that is a diaphragm.
TEST(CampiSenzaEffetto, AreThoseOfAnotherSection) {
    const auto dati = test::esempioStudio("diaframma_due_ordini");
    EXPECT_EQ(senzaEffetto(dati, {{{"sezione.paliDiamEst", 60, 10}}, 4}),
              (std::vector<std::size_t>{0}));
    EXPECT_TRUE(senzaEffetto(dati, {{{"sezione.spessoreDiaframma", 60, 10}}, 4}).empty());
}

TEST(CampiSenzaEffetto, AreUnknownWhereNoWallStands) {
    const auto dati = test::esempioStudio("diaframma_due_ordini");
    EXPECT_TRUE(
        senzaEffetto(dati, {{{"lunghezzaParatia", 8, 0}, {"opzioneRiservata", 0, 1}}, 4}).empty());
    EXPECT_TRUE(senzaEffetto(dati, {{{"opzioneRiservata", 0, 1}}, 1}).empty());  // no other value
}

TEST(RigidezzaScritta, StaysWhileThatOfTheSectionVaries) {
    auto dati = test::esempioStudio("diaframma_due_ordini");
    const VariantiLineari spessori({{"sezione.spessoreDiaframma", 60, 10}}, 4);
    dati.rigidezzaEJ = 50000;
    EXPECT_TRUE(rigidezzaScrittaResta(spessori, dati, {.nSeg = 20}));
    EXPECT_FALSE(rigidezzaScrittaResta(spessori, dati, {.nSeg = 20, .ricalcolaEJ = true}));
    EXPECT_FALSE(
        rigidezzaScrittaResta(VariantiLineari({{"sovraccMonte", 0, 10}}, 4), dati, {.nSeg = 20}));
    dati.rigidezzaEJ = 0;
    EXPECT_FALSE(rigidezzaScrittaResta(spessori, dati, {.nSeg = 20}));
}

}  // namespace
}  // namespace korven::studies
