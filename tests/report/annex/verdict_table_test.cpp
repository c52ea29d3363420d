#include "report/annex/verdict_table.hpp"

#include <gtest/gtest.h>

#include "project/codes.hpp"
#include "support/chapter_bench.hpp"
#include "support/restless_wall.hpp"
#include "support/sample_projects.hpp"
#include "support/sample_sections.hpp"

namespace korven::report {
namespace {

using test::contesto;
using test::riga;

tables::Prospetto verdetti(const project::DatiProgetto& dati) {
    return prospettoVerdetti(*contesto(dati).fascicolo);
}

// The margin has the checks that the dossier shows.
dossier::Fascicolo giudicato(dossier::Fascicolo f) {
    f.margine->verifiche.clear();
    for (const auto& v : f.verifiche)
        f.margine->verifiche.push_back({v.cosa, v.equilibrio, v.relazione});
    return f;
}

dossier::Fascicolo conVerifica(dossier::LatoVerifica equilibrio, dossier::LatoVerifica relazione) {
    auto dati = test::progettoSemplice();
    dati.sezione = structure::diaframmaSimmetrico();
    dossier::Fascicolo f = *contesto(dati).fascicolo;
    f.verifiche = {{.cosa = dossier::Verifica::momentoPositivo,
                    .equilibrio = equilibrio,
                    .relazione = relazione,
                    .perche = "regole"}};
    return f;
}

TEST(ProspettoVerdetti, TellsBothUsesAndIsOfTheWorse) {
    const auto p = prospettoVerdetti(
        giudicato(conVerifica({{98, 100, false}, {2, 5}}, {{101, 100, true}, {2, 5}})));
    const auto flessione = riga(p, "Flessione");
    EXPECT_EQ(flessione[1].testo, "NON verificata");
    EXPECT_EQ(flessione[2].testo,
              "equilibrio: sfruttamento 98.0 % (momento positivo, fase 2, z = 5.00 m); relazione: "
              "sfruttamento 101.0 % (momento positivo, fase 2, z = 5.00 m); vale il maggiore");
}

TEST(ProspettoVerdetti, TellsOneUseWhereBothAreTheSame) {
    const auto p = prospettoVerdetti(
        giudicato(conVerifica({{98, 100, false}, {2, 5}}, {{98.001, 100, false}, {2, 5}})));
    EXPECT_EQ(riga(p, "Flessione")[1].testo, "verificata");
    EXPECT_EQ(riga(p, "Equilibrio di tutte le fasi")[1].testo, "verificato");
    EXPECT_EQ(riga(p, "Flessione")[2].testo,
              "sfruttamento 98.0 % (momento positivo, fase 2, z = 5.00 m)");
}

// The equilibrium uses most in one check, the report in the other: the two uses told are of one.
TEST(ProspettoVerdetti, TellsBothUsesOfOneCheck) {
    dossier::Fascicolo f = conVerifica({{87.9, 100, false}, {2, 5}}, {{87.8, 100, false}, {2, 5}});
    f.verifiche.push_back({.cosa = dossier::Verifica::momentoNegativo,
                           .equilibrio = dossier::LatoVerifica{{-90.2, -100, false}, {3, 7}},
                           .relazione = dossier::LatoVerifica{{-87.4, -100, false}, {3, 7}},
                           .perche = "regole"});
    EXPECT_EQ(riga(prospettoVerdetti(f), "Flessione")[2].testo,
              "equilibrio: sfruttamento 90.2 % (momento negativo, fase 3, z = 7.00 m); relazione: "
              "sfruttamento 87.4 % (momento negativo, fase 3, z = 7.00 m); vale il maggiore");
}

// It holds with the meshes that are tried, and would not with finer ones: no verdict for a cover.
TEST(ProspettoVerdetti, CallsACheckNotSettledThatGoesBeyondTheResistance) {
    dossier::Fascicolo f = conVerifica({{90.2, 100, false}, {2, 5}}, {{90.2, 100, false}, {2, 5}});
    const auto uso = [](double u) { return results::Uso{u, 100, false}; };
    f.margine->maglia->usi = {
        {dossier::Verifica::momentoPositivo, {uso(90.2), uso(94.5), uso(98.2)}}};
    EXPECT_EQ(riga(prospettoVerdetti(giudicato(f)), "Flessione")[1].testo, "non a convergenza");
    f.verifiche[0].relazione = dossier::LatoVerifica{{101, 100, true}, {2, 5}};
    EXPECT_EQ(riga(prospettoVerdetti(giudicato(f)), "Flessione")[1].testo, "NON verificata");
    f.verifiche[0].relazione.reset();
    f.margine->maglia->usi = {
        {dossier::Verifica::momentoPositivo, {uso(90.2), uso(91), uso(91.5)}}};
    EXPECT_EQ(riga(prospettoVerdetti(giudicato(f)), "Flessione")[1].testo, "verificata");
    f.margine->maglia->usi = {
        {dossier::Verifica::momentoPositivo, {uso(98.0), uso(98.9), results::Uso{101, 100, true}}}};
    EXPECT_EQ(riga(prospettoVerdetti(giudicato(f)), "Flessione")[1].testo, "cambia con la maglia");
}

// What a finer mesh does not hold in equilibrium is told of all three.
TEST(ProspettoVerdetti, CallsNothingVerifiedThatFallsWithAFinerMesh) {
    dossier::Fascicolo f = conVerifica({{50, 100, false}, {2, 5}}, {{50, 100, false}, {2, 5}});
    f.margine->maglia.reset();
    const auto p = prospettoVerdetti(giudicato(f));
    EXPECT_EQ(riga(p, "Flessione")[1].testo, "cambia con la maglia");
    EXPECT_EQ(riga(p, "Equilibrio di tutte le fasi")[1].testo, "cambia con la maglia");
}

// Of a wall that falls bending and shear are told alike, not the shear of the stages before.
TEST(ProspettoVerdetti, TellsNoDesignShearOfAWallThatFalls) {
    auto dati = test::progettoSemplice();
    dati.sezione = structure::diaframmaSimmetrico();
    EXPECT_NE(riga(verdetti(dati), "Taglio")[2].testo.find("taglio di progetto 1.40"),
              std::string::npos);
    dati.profFase[2] = 11.9;
    dati.tirantiFase[2] = 0;
    const auto p = verdetti(dati);
    for (const char* cosa : {"Flessione", "Taglio"}) {
        EXPECT_EQ(riga(p, cosa)[1].testo, "nessuna verifica");
        EXPECT_TRUE(riga(p, cosa)[2].testo.ends_with("La paratia non è in equilibrio.")) << cosa;
        EXPECT_EQ(riga(p, cosa)[2].testo.find("taglio di progetto"), std::string::npos) << cosa;
    }
}

TEST(ProspettoVerdetti, SaysWhatHoldsAWallWhoseFactorIsBeyondTheRange) {
    auto dati = test::progettoSemplice();
    dati.vincoloPiede = valore(project::VincoloPiede::incastro);
    const std::string detto = riga(verdetti(dati), "Equilibrio di tutte le fasi")[2].testo;
    EXPECT_NE(detto.find("F più piccolo: > 10. Il piede incastrato tiene la paratia"),
              std::string::npos)
        << detto;
    EXPECT_NE(detto.find("resistenza senza limite"), std::string::npos);
}

// The cover is the page that is signed: a factor that a remark calls a danger is red there too.
TEST(ProspettoVerdetti, TellsOfAFactorThatIsADanger) {
    dossier::Fascicolo f = *contesto(test::progettoSemplice()).fascicolo;
    const auto equilibrio = [&] {
        return riga(prospettoVerdetti(f), "Equilibrio di tutte le fasi");
    };
    constexpr const char* frase = "F è sotto 1.25: pericolo, vedi Osservazioni.";
    const auto fissa = [&](double F) {
        for (auto& fase : f.margine->fasi) fase.riduzione.F = F;
    };
    fissa(safety::riduzionePericolosa);
    EXPECT_FALSE(equilibrio()[2].peso);
    EXPECT_EQ(equilibrio()[2].testo.find(frase), std::string::npos);
    fissa(1.249);
    EXPECT_EQ(equilibrio()[1].testo, "verificato");
    EXPECT_EQ(equilibrio()[2].peso, review::Peso::pericolo);
    EXPECT_NE(equilibrio()[2].testo.find(frase), std::string::npos) << equilibrio()[2].testo;
}

// A check that leans on the factored axial force says on the cover what is left of it without.
TEST(ProspettoVerdetti, TellsTheUseWithoutAnAxialForceThatHelps) {
    auto dati = test::progettoSemplice();
    dati.sezione = structure::diaframmaSimmetrico();
    dati.sforzoNormale = 12;
    const auto detto = [&] { return riga(verdetti(dati), "Flessione")[2].testo; };
    EXPECT_NE(detto().find("non moltiplicato, o senza, lo sfruttamento arriva al"),
              std::string::npos)
        << detto();
    EXPECT_EQ(detto().find(".."), std::string::npos) << detto();
    dati.sforzoNormale = 0;
    EXPECT_EQ(detto().find("non moltiplicato"), std::string::npos);
}

// Each remark is counted under the weight that it has in its chapter.
TEST(ProspettoVerdetti, CountsARemarkThatPreventsTheRunByItself) {
    const auto f = *contesto(test::progettoSenzaPace()).fascicolo;
    const auto p = prospettoVerdetti(f);
    for (const auto& [nome, peso] :
         {std::pair("Osservazioni di peso pericolo", review::Peso::pericolo),
          std::pair("Osservazioni che impediscono il calcolo per fasi", review::Peso::impedisce)}) {
        const int quante = review::quante(f.osservazioni, peso);
        if (peso == review::Peso::impedisce && quante == 0) continue;
        EXPECT_EQ(riga(p, nome)[1].testo, quante == 0 ? "nessuna" : std::to_string(quante));
    }
    auto caduto = test::progettoSemplice();
    caduto.profFase[2] = 11.9;
    caduto.tirantiFase[2] = 0;
    EXPECT_EQ(riga(verdetti(caduto), "Osservazioni che impediscono il calcolo per fasi")[1].testo,
              "1");
}

// No stage falls with a tenth of the strength of its soil, nor does anything hold it without soil.
TEST(ProspettoVerdetti, SaysThatATenthOfTheStrengthIsEnough) {
    dossier::Fascicolo f = *contesto(test::progettoSemplice()).fascicolo;
    for (auto& fase : f.margine->fasi) fase.riduzione = {.F = {}, .oltre = true};
    EXPECT_NE(riga(prospettoVerdetti(f), "Equilibrio di tutte le fasi")[2].testo.find(
                  "Basta un decimo della resistenza del terreno"),
              std::string::npos);
}

TEST(ProspettoVerdetti, SaysWhatHoldsAWallOnAHingeWhoseFactorIsBeyondTheRange) {
    dossier::Fascicolo f = *contesto(test::progettoSemplice()).fascicolo;
    for (auto& fase : f.margine->fasi)
        fase.riduzione = {.F = {}, .oltre = true, .senzaTerreno = true};
    const auto detto = [&] {
        return riga(prospettoVerdetti(f), "Equilibrio di tutte le fasi")[2].testo;
    };
    EXPECT_NE(detto().find("Tiranti, puntoni e vincoli tengono la paratia"), std::string::npos);
    f.parete.dati.vincoloPiede = valore(project::VincoloPiede::cerniera);
    EXPECT_NE(detto().find("Il piede fermo e i sostegni sopra tengono la paratia"),
              std::string::npos)
        << detto();
}

TEST(ProspettoVerdetti, NamesTheCheckOfTheShearThatUsesMost) {
    auto dati = test::progettoSemplice();
    dati.sezione = structure::paliArmati();
    dati.sezione.armDiamStaffe = 1;
    dati.sezione.armPassoStaffe = 20;
    dossier::Fascicolo f = *contesto(dati).fascicolo;
    for (const auto& [cosa, detto] :
         {std::pair(dossier::Verifica::bielle, "bielle di calcestruzzo"),
          std::pair(dossier::Verifica::armatura, "armatura d'anima")}) {
        f.verifiche = {{.cosa = cosa,
                        .equilibrio = dossier::LatoVerifica{{98, 100, false}, {2, 5}},
                        .relazione = dossier::LatoVerifica{{98, 100, false}, {2, 5}},
                        .perche = ""}};
        EXPECT_EQ(riga(prospettoVerdetti(f), "Taglio")[2].testo,
                  std::string("sfruttamento 98.0 % (") + detto + ", fase 2, z = 5.00 m)");
    }
}

}  // namespace
}  // namespace korven::report
