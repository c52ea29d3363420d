#include "factors/factored_wall.hpp"

#include <gtest/gtest.h>

#include "support/wall_builder.hpp"

namespace korven::factors {
namespace {

using project::DatiProgetto;

constexpr Fattori materiali{.attrito = 1.25, .coesione = 1.25, .nonDrenata = 1.4};

// tan 30 / 1.25 = 0.46188, phi' = 24.791 degrees, sin phi' = 0.41931; Rankine:
//   ka = (1 - 0.41931) / (1 + 0.41931) = 0.40913    kp = 1 / ka = 2.44420
// at rest 1 - sin 30 = 0.5 as before.
TEST(PareteFattorizzataTest, HasItsFrictionReducedInTheLimitsAlone) {
    const auto dati = test::muro().strato({.phi = 30}).con(&DatiProgetto::metodoSpinte, 2).dati();
    const auto strato = fattorizza(dati, materiali, {}).strati[1];
    EXPECT_NEAR(strato.kam, 0.40913, 1e-5);
    EXPECT_NEAR(strato.kpm, 2.44420, 1e-5);
    EXPECT_NEAR(strato.kav, -0.40913, 1e-5);
    EXPECT_NEAR(strato.kpv, -2.44420, 1e-5);
    EXPECT_NEAR(strato.k0m, 0.5, 1e-12);
    EXPECT_NEAR(strato.k0v, -0.5, 1e-12);
}

// 2 c' tan(45 - 24.791 / 2) = 2 (2 / 1.25) 0.63963 = 2.04683 of the layer with friction;
// 2 cu = 2 (7 / 1.4) = 10 of the one without.
TEST(PareteFattorizzataTest, TellsDrainedFromUndrainedCohesion) {
    auto dati = test::muro()
                    .strato({.fondo = 5, .phi = 30, .coesione = 2})
                    .strato({.fondo = 20, .phi = 0, .coesione = 7})
                    .dati();
    auto strati = fattorizza(dati, materiali, {}).strati;
    EXPECT_NEAR(strati[1].coesione.attiva, 2.04683, 1e-5);
    EXPECT_NEAR(strati[2].coesione.attiva, 10, 1e-12);
    // in total stresses both are undrained: 2 (2 / 1.4) 0.63963 = 1.82753
    dati.modoTensioni = 2;
    EXPECT_FALSE(nonDrenato(test::muro().dati(), 1));
    EXPECT_TRUE(nonDrenato(dati, 1));
    strati = fattorizza(dati, materiali, {}).strati;
    EXPECT_NEAR(strati[1].coesione.attiva, 1.82753, 1e-5);
    EXPECT_NEAR(strati[2].coesione.attiva, 10, 1e-12);
}

// The modulus of Bowles takes c and phi of the whole strength.
TEST(PareteFattorizzataTest, KeepsItsModuli) {
    const auto dati = test::muro().strato({.coesione = 2}).con(&DatiProgetto::metodoKs, 1).dati();
    const auto parete = fattorizza(dati, materiali, {});
    EXPECT_EQ(parete.dati.coesione, dati.coesione);
    EXPECT_EQ(parete.dati.phiStrato, dati.phiStrato);
    EXPECT_EQ(parete.strati[1].portanza.Nc, analysis::suoloStrati(dati)[1].portanza.Nc);
}

TEST(PareteFattorizzataTest, HasTheLoadsWeightsAndExcavationsOfItsCombination) {
    const auto dati = test::muro()
                          .sovraccarico(2)
                          .strato({.gammaN = 1.8, .gammaSat = 2})
                          .fase({.scavo = 4, .sovraccarico = 1})
                          .con(&DatiProgetto::forzaTesta, 3)
                          .con(&DatiProgetto::momentoTesta, -5)
                          .dati();
    const Fattori tutti{.peso = 1.25,
                        .variabile = 1.5,
                        .testaVariabile = 1.4,
                        .favorevoleVariabile = 0.25,
                        .scavoQuota = 0.1,
                        .scavoMassimo = 0.3};
    const auto parete = fattorizza(dati, tutti, {});
    EXPECT_EQ(parete.dati.sovraccMonte, 3);
    EXPECT_EQ(parete.dati.sovraccFase[1], 0.25);
    EXPECT_NEAR(parete.dati.forzaTesta, 4.2, 1e-12);
    EXPECT_EQ(parete.dati.momentoTesta, -1.25);
    EXPECT_NEAR(parete.dati.gammaN[1], 1.44, 1e-12);
    EXPECT_NEAR(parete.dati.gammaSat[1], 1.6, 1e-12);
    EXPECT_EQ(parete.inPiu, std::vector<double>{0.3});
    EXPECT_EQ(parete.dati.profFase[1], 4.3);
}

TEST(PareteFattorizzataTest, IsTheWallItselfWithoutFactors) {
    const auto dati = test::muro().sovraccarico(2).fase({.scavo = 4, .sovraccarico = 1}).dati();
    const NaturaCarichi permanenti{Natura::permanente, Natura::permanente, Natura::permanente};
    const auto parete = fattorizza(dati, Fattori(), permanenti);
    EXPECT_EQ(parete.dati, dati);
    EXPECT_EQ(parete.inPiu, std::vector<double>{0});
}

}  // namespace
}  // namespace korven::factors
