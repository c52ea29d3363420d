#include "factors/combinations.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "base/folders/program_folder.hpp"
#include "factors/catalogue.hpp"
#include "support/wall_builder.hpp"
#include "support/wall_files.hpp"

namespace korven::factors {
namespace {

Norma norma(const std::vector<Fattori>& fattori) {
    Norma n{"n", "N", "f", {}};
    for (const Fattori& f : fattori) n.combinazioni.push_back({"C", "fonte", f, {}});
    return n;
}

// The larger design value is that of the factor on effects for the moment, and of the weaker ground
// for the displacement.
TEST(InviluppoCombinazioni, TakesTheWorstOfAllWithItsPlace) {
    const auto dati = test::leggiMuro(KORVEN_EXAMPLES "/diaframma_due_ordini.kvd");
    const auto c = combinazioni(dati, 50, norma({{.effetti = 2}, {.attrito = 1.25}}), {});
    ASSERT_EQ(c.esiti.size(), 2U);
    ASSERT_TRUE(c.sta());
    const auto& e = c.esiti;
    EXPECT_EQ(c.inviluppo.momentoMassimo.combinazione, 0);
    EXPECT_EQ(c.inviluppo.momentoMassimo.valore, 2 * e[0].estremi.momentoMassimo.valore);
    EXPECT_EQ(c.inviluppo.momentoMassimo.fase, e[0].estremi.momentoMassimo.fase);
    EXPECT_EQ(c.inviluppo.momentoMassimo.z, e[0].estremi.momentoMassimo.z);
    EXPECT_EQ(c.inviluppo.spostamento.combinazione, 1);
    EXPECT_EQ(c.inviluppo.spostamento.valore, e[1].estremi.spostamento.valore);
    ASSERT_EQ(c.inviluppo.tiri.size(), 2U);
    for (std::size_t a = 0; a < 2; ++a) {
        EXPECT_EQ(c.inviluppo.tiri[a].combinazione, 0);
        EXPECT_EQ(c.inviluppo.tiri[a].valore, 2 * e[0].tiri[a].tiro);
    }
    const auto peggiore = c.peggiore(Oggetto::momentoPositivo);
    ASSERT_TRUE(peggiore);
    EXPECT_EQ(peggiore->first, 0U);
    EXPECT_FALSE(c.peggiore(Oggetto::terra));
}

TEST(InviluppoCombinazioni, LeavesOutACombinationThatDoesNotStand) {
    const auto dati = test::leggiMuro(KORVEN_EXAMPLES "/palancola_mensola.kvd");
    const auto c = combinazioni(dati, 50, norma({{.attrito = 5, .coesione = 5}, {}}), {});
    EXPECT_FALSE(c.sta());
    EXPECT_FALSE(c.verificate());
    EXPECT_EQ(c.caduta(), &c.esiti[0]);
    EXPECT_EQ(c.inviluppo.spostamento.combinazione, 1);
    EXPECT_EQ(c.inviluppo.taglio.combinazione, 1);
}

TEST(InviluppoCombinazioni, OfAnUntouchedWallHasNoPlaces) {
    const auto c = combinazioni(test::muro().tirante(2, 500).dati(), 50, norma({{}}), {});
    EXPECT_TRUE(c.sta());
    EXPECT_EQ(c.inviluppo.tiri[0].combinazione, -1);  // never in place
}

// Every example under every delivered combination: all numbers are numbers.
TEST(InviluppoCombinazioni, IsComputedForEveryExampleAndEveryDeliveredCode) {
    base::impostaCartellaProgramma(KORVEN_DATA_FOLDER);
    const auto catalogo = leggiCombinazioni();
    base::impostaCartellaProgramma({});
    int stanno = 0;
    for (const auto& file : test::muriIn(KORVEN_EXAMPLES))
        for (const Norma& una : catalogo.norme) {
            const auto c = combinazioni(test::leggiMuro(file), 50, una, {});
            for (const auto& e : c.esiti) {
                if (!e.sta()) continue;
                ++stanno;
                for (const Verifica& v : e.verifiche)
                    EXPECT_TRUE(std::isfinite(v.progetto) && std::isfinite(v.resistenza)) << file;
            }
        }
    EXPECT_GT(stanno, 20);
}

}  // namespace
}  // namespace korven::factors
