#include "factors/words.hpp"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/sample_sections.hpp"

namespace korven::factors {
namespace {

using Note = std::vector<std::string>;

// One stage, dug 5 m deep.
Combinazioni una(const std::string& nome, double spostamento) {
    EsitoCombinazione e;
    e.combinazione.nome = nome;
    e.fasi = {{.fase = 1, .scavo = 5}};
    e.estremi.spostamento.valore = spostamento;
    e.estremi.spostamento.fase = 1;
    Combinazioni tutte;
    tutte.esiti = {e};
    return tutte;
}

bool dice(const Note& note, const std::string& inizio) {
    return std::ranges::any_of(note, [&](const auto& n) { return n.starts_with(inizio); });
}

TEST(NoteCombinazioni, TellOfAWallThatMovesFar) {
    const project::DatiProgetto dati;
    EXPECT_TRUE(dice(note(una("A2", 0.125), dati),
                     "A2: la parete si sposta di 125.0 mm nella fase 1, 1/40 dello scavo, più di "
                     "1/50. "));
    EXPECT_TRUE(dice(note(una("A2", -0.125), dati), "A2: la parete si sposta di 125.0 mm"));
    EXPECT_FALSE(dice(note(una("A2", 0.1), dati), "A2: ")) << "just 1/50";
}

TEST(NoteCombinazioni, LeaveShallowDigsAndWallsThatFallAlone) {
    const project::DatiProgetto dati;
    auto tutte = una("A2", 0.125);
    tutte.esiti[0].fasi[0].scavo = 0.9;
    EXPECT_FALSE(dice(note(tutte, dati), "A2: "));
    tutte = una("A2", 0.125);
    tutte.esiti[0].fasi[0].esito = equilibrium::EsitoFase::meccanismo;
    EXPECT_FALSE(dice(note(tutte, dati), "A2: "));
}

TEST(NoteCombinazioni, SayOfWallsWithAnchorsAloneThatTheirResistanceIsNotChecked) {
    project::DatiProgetto dati;
    const std::string frase = "Di tiranti e puntoni c'è solo la forza";
    EXPECT_FALSE(dice(note(una("A2", 0), dati), frase));
    dati.nTiranti = 1;
    EXPECT_TRUE(dice(note(una("A2", 0), dati), frase));
}

TEST(NoteCombinazioni, TellWhichAxialForceDecides) {
    project::DatiProgetto dati;
    dati.sforzoNormale = 10;
    dati.sezione = structure::diaframmaSimmetrico();
    auto tutte = una("A1", 0);
    tutte.esiti[0].verifiche = {{.oggetto = Oggetto::momentoPositivo, .perAssiale = 1.35}};
    EXPECT_FALSE(dice(note(tutte, dati), "A1, ")) << "the two forces are the same";
    tutte.esiti[0].combinazione.fattori.testaPermanente = 1.35;
    EXPECT_TRUE(dice(note(tutte, dati),
                     "A1, Flessione, momento positivo: vale la resistenza con lo sforzo normale "
                     "per 1.35."));
}

}  // namespace
}  // namespace korven::factors
