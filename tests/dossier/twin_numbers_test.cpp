#include "dossier/twin_numbers.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "dossier/dossier.hpp"
#include "project/codes.hpp"
#include "support/sample_projects.hpp"
#include "support/sample_sections.hpp"

namespace korven::dossier {
namespace {

project::DatiProgetto conStaffe() {
    auto dati = test::progettoSemplice();
    dati.sezione = structure::paliArmati();
    dati.sezione.armDiamStaffe = 1;
    dati.sezione.armPassoStaffe = 20;
    return dati;
}

TEST(NumeriDoppiTest, SetTheReportsNumbersBesideThoseOfTheEquilibrium) {
    const Fascicolo f = fascicolo(test::progettoSemplice());
    ASSERT_TRUE(f.conRelazione());
    ASSERT_EQ(f.doppi.size(), 7U);  // two moments and a shear a stage, the anchor of the second
    const NumeroDoppio& M = f.doppi[3];
    EXPECT_EQ(M.cosa, Doppio::momentoMassimo);
    EXPECT_EQ(M.fase, 2);
    EXPECT_EQ(M.equilibrio, f.parete.estremiDi(2)->momentoMassimo.valore);
    EXPECT_EQ(M.relazione, f.margine->relazione->fasi[1].momentoMassimo.valore);
    const NumeroDoppio& tiro = f.doppi[6];
    EXPECT_EQ(tiro.cosa, Doppio::tiro);
    EXPECT_EQ(tiro.tirante, 1);
    EXPECT_EQ(tiro.equilibrio, f.margine->fasi[1].confronto.tiri[0].statica);
}

// 0.01 kN is the last digit that is told: what differs by more has a reason, what does not has
// none.
TEST(NumeriDoppiTest, HaveAReasonWhereTheyDifferAndNoneElsewhere) {
    auto incastrato = test::progettoSemplice();
    incastrato.vincoloPiede = valore(project::VincoloPiede::incastro);
    int diversi = 0;
    for (const auto& dati : {incastrato, conStaffe()})
        for (const NumeroDoppio& d : fascicolo(dati).doppi) {
            const bool lontani = 10 * std::fabs(d.equilibrio - d.relazione) >= 0.01;
            EXPECT_EQ(d.diverso(), lontani) << d.fase;
            diversi += lontani ? 1 : 0;
        }
    EXPECT_GT(diversi, 0);
}

TEST(NumeriDoppiTest, NameTheFixedToeOfTheReport) {
    auto dati = test::progettoSemplice();
    dati.vincoloPiede = valore(project::VincoloPiede::incastro);
    const Fascicolo f = fascicolo(dati);
    ASSERT_TRUE(f.conRelazione());
    bool detto = false;
    for (const NumeroDoppio& d : f.doppi)
        detto =
            detto || d.perche == "al piede incastrato il diagramma conta le molle dell'incastro" ||
            d.perche == "al piede incastrato la relazione estrapola il momento dai due nodi sopra";
    EXPECT_TRUE(detto);
    for (const CorsaFase& c : f.corsa)
        EXPECT_EQ(c.scartoMomento->perche.empty(), 10 * c.scartoMomento->valore < 0.01);
}

TEST(VerificheDoppieTest, HoldTheChecksOfBothAndTheOneThatGoverns) {
    const Fascicolo f = fascicolo(conStaffe());
    ASSERT_TRUE(f.conRelazione());
    ASSERT_EQ(f.verifiche.size(), 4U);
    const VerificaDoppia& v = f.verifiche[3];
    EXPECT_EQ(v.cosa, Verifica::armatura);
    EXPECT_EQ(v.equilibrio->progetto, f.controlli.taglio->Vsd);
    EXPECT_EQ(v.relazione->progetto, f.margine->relazione->taglioSezione->Vsd);
    EXPECT_EQ(v.perche.empty(),
              std::fabs(10 * (std::fabs(f.parete.estremi.taglio.valore) -
                              std::fabs(f.margine->relazione->fasi.back().taglio.valore))) < 0.01);
    const double massimo = std::max(*v.equilibrio->uso(), *v.relazione->uso());
    EXPECT_EQ(v.decisiva().uso(), massimo);
}

TEST(VerificheDoppieTest, GovernByAFailureOfEither) {
    VerificaDoppia v;
    v.equilibrio = LatoVerifica{{90, 100, false}, {}};
    v.relazione = LatoVerifica{{101, 100, true}, {}};
    EXPECT_TRUE(v.fallita());
    EXPECT_EQ(&v.decisiva(), &*v.relazione);
    v.equilibrio = LatoVerifica{{102, 100, true}, {}};
    EXPECT_EQ(&v.decisiva(), &*v.equilibrio);
    v.relazione.reset();
    EXPECT_EQ(&v.decisiva(), &*v.equilibrio);
}

TEST(VerificheDoppieTest, AreNoneWhereNoStageStands) {
    auto dati = conStaffe();
    dati.profFase[1] = dati.profFase[2] = 11.9;
    dati.tirantiFase[2] = 0;
    const Fascicolo f = fascicolo(dati);
    EXPECT_TRUE(f.verifiche.empty());
    EXPECT_TRUE(f.doppi.empty());
}

}  // namespace
}  // namespace korven::dossier
