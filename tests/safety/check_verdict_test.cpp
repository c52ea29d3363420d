#include "safety/check_verdict.hpp"

#include <gtest/gtest.h>

#include "safety/margin.hpp"
#include "safety/short_margin.hpp"
#include "support/wall_files.hpp"

namespace korven::safety {
namespace {

using results::Uso;
using results::Verifica;

constexpr Verifica cosa = Verifica::momentoPositivo;

// Of a resistance of 100.
Uso uso(double progetto) { return {progetto, 100, progetto >= 100}; }

// A wall that stands, with one check: by both calculations, and with three meshes.
Margine con(std::optional<Uso> equilibrio, std::optional<Uso> relazione, double doppia,
            double quadrupla) {
    Margine m;
    m.fasi.resize(1);
    m.fasi[0].esito = equilibrium::EsitoFase::equilibrio;
    m.verifiche = {{cosa, equilibrio, relazione}};
    m.maglia = ErroreMaglia{};
    m.maglia->usi = {{cosa, {equilibrio, uso(doppia), uso(quadrupla)}}};
    return m;
}

TEST(Giudizio, IsThatOfTheWorseOfBothCalculations) {
    EXPECT_EQ(giudizio(con(uso(90), uso(90), 90, 90), cosa), Giudizio::verificata);
    EXPECT_EQ(giudizio(con(uso(90), {}, 90, 90), cosa), Giudizio::verificata);
    EXPECT_EQ(giudizio(con(uso(101), uso(99), 101, 101), cosa), Giudizio::fallita);
    EXPECT_EQ(giudizio(con(uso(99), uso(101), 99, 99), cosa), Giudizio::fallita);
}

TEST(Giudizio, OfACheckThatHoldsIsThatOfFinerMeshes) {
    EXPECT_EQ(giudizio(con(uso(90.2), uso(90.2), 94.5, 98.2), cosa), Giudizio::nonAssestata);
    EXPECT_EQ(giudizio(con(uso(98), uso(98), 99, 101), cosa), Giudizio::cambia);
    EXPECT_EQ(giudizio(con(uso(98), uso(98), 101, 99), cosa), Giudizio::cambia);
}

// Until a finer mesh is in use, the larger use holds.
TEST(Giudizio, OfACheckThatFailsIsNotThatOfAFinerMeshWithWhichItHolds) {
    EXPECT_EQ(giudizio(con(uso(101), uso(101), 99, 98), cosa), Giudizio::fallita);
}

TEST(Giudizio, OfAWallThatFallsWithAFinerMeshIsSettledOfNoCheck) {
    Margine m = con(uso(50), uso(50), 50, 50);
    EXPECT_TRUE(assestata(m));
    m.maglia.reset();
    EXPECT_FALSE(assestata(m));
    EXPECT_EQ(giudizio(m, cosa), Giudizio::cambia);
    m.verifiche[0].relazione = uso(100);
    EXPECT_EQ(giudizio(m, cosa), Giudizio::fallita);
}

TEST(Giudizio, CountsANegativeMomentThatActsWithAFinerMeshAlone) {
    Margine m = con(uso(50), {}, 50, 50);
    EXPECT_FALSE(giudizio(m, Verifica::momentoNegativo));
    m.maglia->usi.push_back({Verifica::momentoNegativo, {std::nullopt, uso(1), uso(101)}});
    EXPECT_EQ(giudizio(m, Verifica::momentoNegativo), Giudizio::cambia);
    EXPECT_EQ(giudizi(m).size(), 2U);
}

TEST(Giudizio, IsNoneOfAWallThatFallsOrWithoutASection) {
    const auto del = [](const std::string& nome) {
        const auto dati = test::leggiMuro(std::string(KORVEN_WALLS) + "/" + nome + ".kvd");
        return margineBreve(dati, 50)->margine;
    };
    const Margine caduto = del("meccanismo");
    EXPECT_TRUE(caduto.verifiche.empty());
    EXPECT_TRUE(giudizi(caduto).empty());
    EXPECT_TRUE(assestata(caduto));
}

// The use goes from 90.2 % to 98.2 % with four times as many segments, and on to 101.9 %: with 100
// segments the check fails on the finest mesh.
TEST(Giudizio, OfADeliveredExampleTurnsWithTheMesh) {
    const auto dati = test::leggiMuro(std::string(KORVEN_EXAMPLES) + "/paratia_lunga_incastro.kvd");
    const Margine m = margineBreve(dati, 50)->margine;
    ASSERT_EQ(m.verifiche.size(), 2U);
    EXPECT_TRUE(m.verifiche[0].equilibrio && m.verifiche[0].relazione);
    EXPECT_EQ(giudizio(m, Verifica::momentoPositivo), Giudizio::verificata);
    EXPECT_EQ(giudizio(m, Verifica::momentoNegativo), Giudizio::nonAssestata);
    EXPECT_NEAR(*tendenza(m, Verifica::momentoNegativo), 1.019, 5e-4);
    EXPECT_EQ(giudizio(margineBreve(dati, 100)->margine, Verifica::momentoNegativo),
              Giudizio::cambia);
}

TEST(Giudizio, HasWordsForPeopleAndOneForPrograms) {
    const std::pair<Giudizio, std::pair<const char*, const char*>> parole[] = {
        {Giudizio::verificata, {"verificata", "verificata"}},
        {Giudizio::nonAssestata, {"non a convergenza", "non_assestata"}},
        {Giudizio::cambia, {"cambia con la maglia", "cambia"}},
        {Giudizio::fallita, {"NON verificata", "fallita"}}};
    for (const auto& [giudizio, detto] : parole) {
        EXPECT_EQ(nome(giudizio), detto.first);
        EXPECT_EQ(parola(giudizio), detto.second);
    }
}

}  // namespace
}  // namespace korven::safety
