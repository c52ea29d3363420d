#include <gtest/gtest.h>

#include "report/sections.hpp"
#include "support/report_text.hpp"
#include "support/sample_sections.hpp"

namespace korven::report {
namespace {

using project::Sezione;
using test::contiene;

// mrPos 100 t m, mrNeg -80 t m; both moments within.
results::DatiRelazione relazione(const Sezione& sezione) {
    results::DatiRelazione d;
    d.progetto.sezione = sezione;
    d.chiusura = {.mrd2 = 800000000,
                  .mrd1 = -1000000000,
                  .mMaxTotale = 50,
                  .mMinTotale = -12.5,
                  .fsAzioni = 1.4};
    return d;
}

std::vector<std::string> scritte(const results::DatiRelazione& d) {
    return test::righe([&](RigheRelazione& r) { sezioneStrutturale(d, r); });
}

std::string inizio(const Sezione& sezione, std::size_t quante) {
    auto tutte = scritte(relazione(sezione));
    tutte.resize(std::min(quante, tutte.size()));
    return test::unite(tutte);
}

// Piles of 600 mm every 800 mm, 12 bars of 20 mm, cover 60 mm, stirrups of 10 mm every 200 mm,
// fck 40, fyk 460.
Sezione paliConStaffe() {
    Sezione s = structure::paliArmati();
    s.armDiamPalo = 60;
    s.armInterasse = 80;
    s.armDiamLong = 2;
    s.armDiamStaffe = 1;
    s.armPassoStaffe = 20;
    s.fck = 40;
    s.fyk = 460;
    return s;
}

TEST(SezioneStrutturale, IsNothingForASectionThatIsNotDefined) {
    EXPECT_TRUE(scritte(relazione({})).empty());
    for (auto s : {structure::diaframmaSimmetrico(), structure::paliTubolari(),
                   structure::palancola(), structure::paliArmati()}) {
        s.fyk = 0;
        EXPECT_TRUE(scritte(relazione(s)).empty());
    }
}

TEST(SezioneStrutturale, ShowsBothFacesOfADiaphragmEachAsAListOfItsOwn) {
    auto s = structure::diaframmaSimmetrico();
    s.diametroValle = 2;
    s.interasseValle = 15;
    s.copriferroValle = 6.5;
    EXPECT_EQ(inizio(s, 17),
              "CALCOLO STRUTTURALE DIAFRAMMA|"
              "ARMATURA LATO MONTE||#STARTLIST|Diametro armature [mm]\t24.00|"
              "Interasse armature [mm]\t200.00|Copriferro [mm]\t50.00|#ENDLIST||"
              "ARMATURA LATO VALLE||#STARTLIST|Diametro armature [mm]\t20.00|"
              "Interasse armature [mm]\t150.00|Copriferro [mm]\t65.00|#ENDLIST||");
}

TEST(SezioneStrutturale, LeavesOutAFaceWithoutBars) {
    EXPECT_EQ(inizio(structure::diaframmaArmatoAValle(), 3),
              "CALCOLO STRUTTURALE DIAFRAMMA|ARMATURA LATO VALLE||");
    auto s = structure::diaframmaSimmetrico();
    s.copriferroValle = 0;
    EXPECT_FALSE(contiene(scritte(relazione(s)), "ARMATURA LATO VALLE"));
}

TEST(SezioneStrutturale, ShowsPiles) {
    EXPECT_EQ(inizio(structure::paliTubolari(), 8),
              "CALCOLO STRUTTURALE PALIFICATA||#STARTLIST|Diametro esterno [mm]\t600.00|"
              "Diametro interno [mm]\t580.00|Interasse armature [mm]\t800.00|#ENDLIST||");
}

TEST(SezioneStrutturale, ShowsPilesWithoutInnerDiameterThoughTheirResistanceIsZero) {
    auto s = structure::paliTubolari();
    s.paliDiamInt = 0;
    auto d = relazione(s);
    d.chiusura.mrd1 = d.chiusura.mrd2 = 0;  // the run asks for the inner diameter
    const auto tutte = scritte(d);
    EXPECT_TRUE(contiene(tutte, "Diametro interno [mm]\t0.00"));
    EXPECT_TRUE(contiene(tutte, "Momento resistente di calcolo (pos.) [kN m]\t0.00"));
    EXPECT_TRUE(contiene(tutte, "Momento resistente di calcolo (neg.) [kN m]\t0.00"));
    EXPECT_TRUE(contiene(tutte, "CONDIZIONI DI SICUREZZA NON VERIFICATE (momento positivo)"));
    EXPECT_TRUE(contiene(tutte, "CONDIZIONI DI SICUREZZA NON VERIFICATE (momento negativo)"));
}

TEST(SezioneStrutturale, ShowsASheetPileAndNoConcreteAmongItsMaterials) {
    EXPECT_EQ(inizio(structure::palancola(), 16),
              "CALCOLO STRUTTURALE PALANCOLA||#STARTLIST|Larghezza totale elemento [mm]\t400.00|"
              "Larghezza ala [mm]\t100.00|Altezza ala [mm]\t190.00|"
              "Spessore palancola [mm]\t20.00|Spessore ala [mm]\t12.00|#ENDLIST||"
              "CARATTERISTICHE DEI MATERIALI||#STARTLIST|"
              "Modulo elastico acciaio [N/mm²]\t200000.00|"
              "Resistenza limite acciaio Fyk [N/mm²]\t430.00|#ENDLIST|");
}

TEST(SezioneStrutturale, ShowsTenTimesTheBarsOfReinforcedPilesUnderTheirOldSpelling) {
    EXPECT_EQ(inizio(structure::paliArmati(), 9),
              "CALCOLO STRUTTURALE PALI ARMATI||#STARTLIST|Diametro pali [mm]\t800.00|"
              "Diametro armature longitudinali [mm]\t24.00|"
              "Numero armature logitudinali [-]\t120.00|"
              "Copriferro armature logitudinali [mm]\t60.00|#ENDLIST||");
}

TEST(SezioneStrutturale, ShowsTheStirrupsOnlyIfBothTheirFieldsAreGiven) {
    EXPECT_EQ(inizio(paliConStaffe(), 11),
              "CALCOLO STRUTTURALE PALI ARMATI||#STARTLIST|Diametro pali [mm]\t600.00|"
              "Diametro armature longitudinali [mm]\t20.00|"
              "Numero armature logitudinali [-]\t120.00|"
              "Copriferro armature logitudinali [mm]\t60.00|Diametro staffe [mm]\t10.00|"
              "Passo staffe [mm]\t200.00|#ENDLIST||");
    for (auto campo : {&Sezione::armDiamStaffe, &Sezione::armPassoStaffe}) {
        auto s = paliConStaffe();
        s.*campo = 0;
        const auto tutte = test::unite(scritte(relazione(s)));
        EXPECT_EQ(tutte.find("staffe"), std::string::npos);
        EXPECT_EQ(tutte.find("TAGLIO"), std::string::npos);
    }
}

TEST(SezioneStrutturale, TakesTheFirstOfTwoTypes) {
    auto s = structure::palancola();
    s.tipoPaliArmati = true;
    EXPECT_TRUE(contiene(scritte(relazione(s)), "CALCOLO STRUTTURALE PALANCOLA"));
    s.tipoDiaframma = true;
    EXPECT_TRUE(scritte(relazione(s)).empty());  // that of the first flag is not defined
}

TEST(SezioneStrutturale, ShowsTheMaterials) {
    const auto tutte = test::unite(scritte(relazione(structure::paliTubolari())));
    EXPECT_NE(tutte.find("|#ENDLIST||CARATTERISTICHE DEI MATERIALI||#STARTLIST|"
                         "Modulo elastico acciaio [N/mm²]\t200000.00|"
                         "Modulo elastico CLS [N/mm²]\t30000.00|"
                         "Resistenza limite acciaio Fyk [N/mm²]\t430.00|"
                         "Resistenza limite CLS Fck [N/mm²]\t25.00|#ENDLIST||"
                         "VERIFICA DEI MOMENTI FLETTENTI||#STARTLIST|"),
              std::string::npos)
        << tutte;
}

TEST(SezioneStrutturale, ChecksTheMomentsWithTheResistancesCrossedAndTheirSignTurned) {
    const auto tutte = test::unite(scritte(relazione(structure::paliTubolari())));
    EXPECT_NE(tutte.find("VERIFICA DEI MOMENTI FLETTENTI||#STARTLIST|"
                         "Momento resistente di calcolo (pos.) [kN m]\t1000.00|"
                         "Momento resistente di calcolo (neg.) [kN m]\t-800.00|"
                         "Momento massimo applicato (pos) [kN m]\t500.00|"
                         "Momento massimo applicato (neg) [kN m]\t-125.00|"
                         "F.S. parziale delle azioni [-]\t1.40|"
                         "Momento massimo di calcolo applicato (pos) [kN m]\t700.00|"
                         "Momento massimo di calcolo applicato (neg) [kN m]\t-175.00|#ENDLIST||"
                         "Condizioni di sicurezza verificate (momento positivo)|"
                         "Condizioni di sicurezza verificate (momento negativo)|"),
              std::string::npos)
        << tutte;
}

TEST(SezioneStrutturale, HasNoNegativeLineForAWallWithoutNegativeMoment) {
    auto d = relazione(structure::paliTubolari());
    d.chiusura.mMinTotale = 0;
    const auto tutte = test::unite(scritte(d));
    EXPECT_EQ(tutte.find("(neg"), std::string::npos);
    EXPECT_EQ(tutte.find("negativo"), std::string::npos);
    EXPECT_NE(tutte.find("(momento positivo)"), std::string::npos);
}

TEST(SezioneStrutturale, DoesNotVerifyAMomentThatEqualsTheResistance) {
    auto d = relazione(structure::paliTubolari());
    d.chiusura.fsAzioni = 2;  // so that the products are exact
    d.chiusura.mMaxTotale = 50;
    d.chiusura.mMinTotale = -40;
    auto tutte = scritte(d);
    EXPECT_TRUE(contiene(tutte, "CONDIZIONI DI SICUREZZA NON VERIFICATE (momento positivo)"));
    EXPECT_TRUE(contiene(tutte, "CONDIZIONI DI SICUREZZA NON VERIFICATE (momento negativo)"));
    d.chiusura.mMaxTotale = 49.999;
    d.chiusura.mMinTotale = -39.999;
    tutte = scritte(d);
    EXPECT_TRUE(contiene(tutte, "Condizioni di sicurezza verificate (momento positivo)"));
    EXPECT_TRUE(contiene(tutte, "Condizioni di sicurezza verificate (momento negativo)"));
}

// Worked by hand: d 530 mm, bw 600 mm, fctk 2.4562, tauRd 0.38378, k 1.07, Asl 3769.9 mm2, rhoL
// 0.011855, Vrd1 218624 N, Vrd2 1788750 N, Asw 157.08 mm2, Vrd3 368478.17 N; per metre of wall /
// 0.8 m. 2235.9375 is cut after its second decimal.
TEST(SezioneStrutturale, ChecksTheShearOfReinforcedPilesWithStirrups) {
    auto d = relazione(paliConStaffe());
    d.Vmax = 30;
    const auto tutte = scritte(d);
    EXPECT_EQ(test::unite({tutte.end() - 11, tutte.end()}),
              "|VERIFICA AL TAGLIO|#STARTLIST|Diametro staffe [mm]\t10.00|"
              "Passo staffe [mm]\t200.00|"
              "Capacità portante bielle CLS - Vrd2 [kN]\t2235.93|"
              "Capacità portante armatura d'anima - Vrd3 [kN]\t460.59|"
              "Taglio massimo agente sulla struttura [kN]\t300.00|"
              "Coeff. di sicurezza parziale [-]\t1.40|"
              "Taglio massimo di calcolo - Vsd [kN]\t420.00|#ENDLIST|");
}

TEST(SezioneStrutturale, KeepsTheAxialForceOutOfTheShearCheck) {
    auto d = relazione(paliConStaffe());
    const auto senza = scritte(d);
    d.progetto.sforzoNormale = 200;
    EXPECT_EQ(scritte(d), senza);
}

TEST(SezioneStrutturale, TellsEachKindOfShearFailureAfterTheList) {
    auto d = relazione(paliConStaffe());
    d.Vmax = 33;  // Vsd 462
    auto tutte = scritte(d);
    EXPECT_EQ(test::unite({tutte.end() - 2, tutte.end()}),
              "#ENDLIST|Rottura dell'armatura d'anima|");
    d.Vmax = 160;  // Vsd 2240
    tutte = scritte(d);
    EXPECT_EQ(test::unite({tutte.end() - 3, tutte.end()}),
              "#ENDLIST|Rottura delle bielle di calcestruzzo compresse|"
              "Rottura dell'armatura d'anima|");
}

}  // namespace
}  // namespace korven::report
