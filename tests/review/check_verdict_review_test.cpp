#include <gtest/gtest.h>

#include "review/margins.hpp"

namespace korven::review {
namespace {

using results::Uso;
using results::Verifica;

const auto dueFasi = paratia({{.scavo = 2}, {.scavo = 4}});

Uso uso(double progetto) { return {progetto, 100, progetto >= 100}; }

safety::Margine conVerifica(std::optional<Uso> equilibrio, std::optional<Uso> relazione) {
    safety::Margine m = margineSano(dueFasi);
    m.maglia = safety::ErroreMaglia{};
    m.verifiche = {{Verifica::momentoNegativo, equilibrio, relazione}};
    return m;
}

Righe osservate(const safety::Margine& m) {
    ElencoOsservazioni elenco;
    controlloGiudizi(m, elenco);
    return righe(elenco.ordinate());
}

TEST(ControlloGiudizi, TellsACheckThatFailsByTheEquilibriumAlone) {
    EXPECT_EQ(osservate(conVerifica(uso(100.4), uso(98))),
              Righe{"[pericolo] verifica-fallita-in-equilibrio: Flessione con momento negativo: "
                    "con i numeri dell'equilibrio lo sfruttamento è 100.4 %, con quelli della "
                    "relazione 98.0 %: la sezione non è verificata, rinforzarla o ridurre le "
                    "azioni"});
    EXPECT_EQ(osservate(conVerifica(uso(100.4), {})),
              Righe{"[pericolo] verifica-fallita-in-equilibrio: Flessione con momento negativo: "
                    "con i numeri dell'equilibrio lo sfruttamento è 100.4 %: la sezione non è "
                    "verificata, rinforzarla o ridurre le azioni"});
}

// Of one that fails in the report another remark tells, with its numbers.
TEST(ControlloGiudizi, IsSilentOnAFailureOfTheReportAndOnWhatHolds) {
    EXPECT_TRUE(osservate(conVerifica(uso(101), uso(102))).empty());
    EXPECT_TRUE(osservate(conVerifica(uso(99), uso(102))).empty());
    EXPECT_TRUE(osservate(conVerifica(uso(99), uso(98))).empty());
    EXPECT_TRUE(osservate(conVerifica({}, uso(98))).empty());
}

TEST(ControlloGiudizi, TellsEachVerdictThatAFinerMeshTurns) {
    safety::Margine m = conVerifica(uso(98), uso(98));
    m.maglia->usi = {{Verifica::momentoNegativo, {uso(98), uso(99), uso(101)}},
                     {Verifica::momentoPositivo, {uso(90.2), uso(94.5), uso(98.2)}}};
    const Righe detti = osservate(m);
    ASSERT_EQ(detti.size(), 2U);
    EXPECT_EQ(detti[0].find("[pericolo] verdetto-con-la-maglia: Una maglia più fine cambia"), 0U);
    EXPECT_EQ(detti[1].find("[pericolo] verdetto-con-la-maglia: Il verdetto non è a convergenza"),
              0U);
    // A use that only grows is told in the margin alone.
    m.maglia->usi = {{Verifica::momentoNegativo, {uso(50), uso(60), uso(65)}}};
    EXPECT_TRUE(osservate(m).empty());
}

TEST(ControlloGiudizi, TellsAFinerMeshWithoutEquilibrium) {
    safety::Margine m = conVerifica(uso(50), uso(50));
    m.maglia.reset();
    const Righe detti = osservate(m);
    ASSERT_EQ(detti.size(), 1U);
    EXPECT_NE(detti[0].find("Con una maglia più fine una fase non è in equilibrio"),
              std::string::npos);
}

}  // namespace
}  // namespace korven::review
