#include "factors/combination_run.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "safety/strength_reduction.hpp"
#include "support/sample_sections.hpp"
#include "support/wall_builder.hpp"
#include "support/wall_files.hpp"

namespace korven::factors {
namespace {

using project::DatiProgetto;

Combinazione con(const Fattori& fattori) { return {"C", "fonte", fattori, {}}; }

EsitoCombinazione esito(const DatiProgetto& dati, const Fattori& fattori,
                        const NaturaCarichi& natura = {}) {
    return calcola(dati, 50, con(fattori), natura);
}

constexpr Fattori suEffetti{.permanente = 1.35,
                            .variabile = 1.5,
                            .testaPermanente = 1.35,
                            .testaVariabile = 1.5,
                            .effetti = 1.35};
constexpr Fattori suMateriali{.attrito = 1.25,
                              .coesione = 1.25,
                              .nonDrenata = 1.4,
                              .permanente = 1,
                              .variabile = 1.3,
                              .testaPermanente = 1.35,
                              .testaVariabile = 1.5};

// A wall of 4 m with a fixed toe, all of it above the excavation. Without a modulus the ground
// behind stays at rest, 0.5 of the vertical stress, so that the wall is a cantilever under
//   weight 1.8 t/m3:  M = 0.5 1.8 4^3 / 6 = 9.6 t m (1 - 1/50^2 with the loads on 50 segments)
//   surcharge q:      M = 0.5 q 4^2 / 2 = 4 q
//   head force H:     M = 4 H
// all of them negative at the toe.
DatiProgetto mensola(double q, double H) {
    return test::muro()
        .lungo(4)
        .strato({.fondo = 30, .gammaN = 1.8, .phi = 30, .ks = 0})
        .fase({.scavo = 5})
        .sovraccarico(q)
        .con(&DatiProgetto::forzaTesta, H)
        .con(&DatiProgetto::vincoloPiede, 3)
        .dati();
}
constexpr double diPeso = 9.6 * (1 - 1.0 / 2500);

double momento(const EsitoCombinazione& e) { return e.estremi.momentoMinimo.valore * e.effetti(); }

TEST(EsitoCombinazioneTest, BringsEachLoadToItsOwnFactor) {
    const auto dati = mensola(2, 3);
    EXPECT_NEAR(momento(esito(dati, {})), -(diPeso + 8 + 12), 1e-9);
    EXPECT_NEAR(momento(esito(dati, suEffetti)), -(1.35 * diPeso + 1.5 * 8 + 1.5 * 12), 1e-9);
    const NaturaCarichi permanenti{Natura::permanente, Natura::permanente, Natura::permanente};
    EXPECT_NEAR(momento(esito(dati, suEffetti, permanenti)), -1.35 * (diPeso + 8 + 12), 1e-9);
    // at-rest pressure stays that of the whole strength
    EXPECT_NEAR(momento(esito(dati, suMateriali)), -(diPeso + 1.3 * 8 + 1.5 * 12), 1e-9);
    EXPECT_NEAR(momento(esito(dati, suMateriali, permanenti)), -(diPeso + 8 + 1.35 * 12), 1e-9);
    // a force that holds the head: missing, or with 1 where it is permanent
    EXPECT_NEAR(momento(esito(mensola(0, -1), suEffetti)), -1.35 * diPeso, 1e-9);
    EXPECT_NEAR(momento(esito(mensola(0, -1), suEffetti, permanenti)), -(1.35 * diPeso - 4), 1e-9);
}

TEST(EsitoCombinazioneTest, IsTheEquilibriumItselfWithoutFactors) {
    const NaturaCarichi permanenti{Natura::permanente, Natura::permanente, Natura::permanente};
    for (const auto& file : test::muriIn(KORVEN_EXAMPLES)) {
        const auto dati = test::leggiMuro(file);
        const auto fasi = equilibrium::calcolaEquilibrio(dati, 50);
        const auto e = calcola(dati, 50, con({}), permanenti);
        const auto attesi = equilibrium::estremi(fasi, dati.lunghezzaParatia / 50);
        ASSERT_TRUE(e.sta()) << file;
        EXPECT_EQ(e.estremi.momentoMassimo.valore, attesi.momentoMassimo.valore) << file;
        EXPECT_EQ(e.estremi.taglio.valore, attesi.taglio.valore) << file;
        EXPECT_EQ(e.estremi.spostamento.valore, attesi.spostamento.valore) << file;
        for (std::size_t a = 0; a < e.tiri.size(); ++a) {
            double massimo = -1e9;
            for (const auto& f : fasi)
                if (a < f.tiri.size()) massimo = std::max(massimo, f.tiri[a]);
            EXPECT_EQ(e.tiri[a].tiro, massimo) << file << ' ' << a;
        }
    }
}

// The strength reduction divides tan phi and c alike: a combination that does only this stands up
// to it and no further.
TEST(EsitoCombinazioneTest, StandsAsFarAsTheStrengthReductionSays) {
    const NaturaCarichi permanenti{Natura::permanente, Natura::permanente, Natura::permanente};
    int guardati = 0;
    for (const auto& file : test::muriIn(KORVEN_EXAMPLES)) {
        const auto dati = test::leggiMuro(file);
        double F = 10;
        for (int k = 1; k <= dati.nFasi; ++k)
            F = std::min(F, safety::riduzione(dati, 50, k).F.value_or(10));
        if (F >= 10) continue;
        ++guardati;
        const auto ridotta = [&](double f) {
            return calcola(dati, 50, con({.attrito = f, .coesione = f, .nonDrenata = f}),
                           permanenti);
        };
        EXPECT_TRUE(ridotta(F * 0.998).sta()) << file;
        const auto oltre = ridotta(F * 1.002);
        EXPECT_FALSE(oltre.sta()) << file;
        EXPECT_FALSE(oltre.verificata()) << file;
        EXPECT_TRUE(oltre.verifiche.empty()) << file;
        EXPECT_TRUE(oltre.fasi.back().perche || oltre.fasi.back().rifiuto) << file;
    }
    EXPECT_GE(guardati, 4);
}

TEST(EsitoCombinazioneTest, SaysWhereTheSlopeIsSteeperThanTheReducedFriction) {
    // atan(tan 24 / 1.25) = 19.6 degrees
    const auto dati = test::muro()
                          .strato({.phi = 24})
                          .fase({.scavo = 1})
                          .con(&DatiProgetto::inclinazioneMonte, 22)
                          .dati();
    EXPECT_TRUE(esito(dati, {}).sta());
    const auto e = esito(dati, suMateriali);
    ASSERT_EQ(e.fasi.size(), 1U);
    EXPECT_TRUE(e.fasi[0].rifiuto);
    EXPECT_FALSE(e.sta());
}

TEST(EsitoCombinazioneTest, ChecksTheEarthResistanceWhereItIsAskedFor) {
    const auto dati = test::leggiMuro(KORVEN_EXAMPLES "/palancola_mensola.kvd");
    Fattori fattori{.effetti = 1.35};
    const auto senza = esito(dati, fattori);
    EXPECT_FALSE(std::any_of(senza.verifiche.begin(), senza.verifiche.end(),
                             [](const auto& v) { return v.oggetto == Oggetto::terra; }));
    fattori.terra = 1.4;
    const auto chiesta = esito(dati, fattori);
    ASSERT_FALSE(chiesta.verifiche.empty());
    const Verifica& v = chiesta.verifiche.back();
    EXPECT_EQ(v.oggetto, Oggetto::terra);
    double quota = 0;
    for (const auto& f : chiesta.fasi) quota = std::max(quota, f.passiva.quota.value_or(0));
    EXPECT_GT(quota, 0);
    EXPECT_DOUBLE_EQ(v.progetto, quota * 1.35);
}

// The wall of the example hangs on the hinge of its toe in rock: what its ground gives decides
// nothing. With a free toe the very share would be a check that is not met.
TEST(EsitoCombinazioneTest, DoesNotJudgeTheGroundInFrontOfARestrainedToe) {
    auto dati = test::leggiMuro(KORVEN_EXAMPLES "/diaframma_piede_roccia.kvd");
    const Fattori fattori{.effetti = 1.35, .terra = 5};
    const auto e = esito(dati, fattori);
    ASSERT_TRUE(e.sta());
    EXPECT_FALSE(std::any_of(e.verifiche.begin(), e.verifiche.end(),
                             [](const auto& v) { return v.oggetto == Oggetto::terra; }));
    ASSERT_TRUE(e.terraSoloDetta);
    double quota = 0;
    for (const auto& f : e.fasi) quota = std::max(quota, f.passiva.quota.value_or(0));
    EXPECT_DOUBLE_EQ(e.terraSoloDetta->progetto, quota * 1.35);
    EXPECT_DOUBLE_EQ(e.terraSoloDetta->resistenza, 1 / 5.0);
    EXPECT_FALSE(e.terraSoloDetta->verificata);
    EXPECT_TRUE(e.verificata());
    EXPECT_FALSE(
        esito(test::leggiMuro(KORVEN_EXAMPLES "/palancola_mensola.kvd"), fattori).terraSoloDetta);
}

TEST(EsitoCombinazioneTest, FailsWithASectionThatIsTooWeak) {
    auto dati = test::leggiMuro(KORVEN_EXAMPLES "/diaframma_due_ordini.kvd");
    EXPECT_TRUE(esito(dati, {}).verificata());
    dati.sezione.fyk = dati.sezione.fyk / 20;
    const auto e = esito(dati, {});
    EXPECT_TRUE(e.sta());
    EXPECT_FALSE(e.verificata());
}

}  // namespace
}  // namespace korven::factors
