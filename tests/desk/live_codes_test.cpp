#include "desk/live_codes.hpp"

#include <gtest/gtest.h>

#include "base/translated_texts.hpp"
#include "support/sample_projects.hpp"

namespace korven::desk {
namespace {

using factors::Natura;

factors::Catalogo catalogo(const std::vector<std::string>& nomi) {
    factors::Catalogo c;
    for (const std::string& nome : nomi)
        c.norme.push_back({nome, "Norma " + nome, "f", {{"U", "fonte", {}, {}}}});
    return c;
}

class NormeViveTest : public ::testing::Test {
 protected:
    NormeViveTest() { vive.norme(catalogo({"a", "b"})); }
    void guarda() { vive.guarda(&parete); }
    /// Computes what is asked for.
    const factors::Combinazioni& risposta() {
        const auto d = vive.domanda().value();
        EXPECT_TRUE(
            vive.rispondi(d.numero, std::make_shared<const factors::Combinazioni>(
                                        factors::combinazioni(d.dati, d.nSeg, d.norma, d.natura))));
        return *vive.combinazioni();
    }

    project::DatiProgetto dati = korven::test::progettoSemplice();
    live::PareteViva parete = live::calcola(dati, 20);
    NormeVive vive;
};

TEST_F(NormeViveTest, AsksForTheFirstCodeWithTheDataOfTheRun) {
    EXPECT_EQ(vive.scelta(), 0);
    guarda();
    ASSERT_TRUE(vive.domanda());
    EXPECT_EQ(vive.domanda()->norma.nome, "a");
    EXPECT_EQ(vive.domanda()->nSeg, 20);
    EXPECT_TRUE(vive.domanda()->dati == parete.dati);
    EXPECT_EQ(vive.domanda()->natura.monte, Natura::variabile);
    EXPECT_FALSE(vive.combinazioni());
    EXPECT_EQ(risposta().norma.nome, "a");
    EXPECT_FALSE(vive.domanda());
}

TEST_F(NormeViveTest, AsksAgainOnlyWhereSomethingIsOther) {
    guarda();
    static_cast<void>(risposta());
    guarda();
    EXPECT_FALSE(vive.domanda());
    vive.scegli(1);
    guarda();
    EXPECT_EQ(vive.domanda()->norma.nome, "b");
    EXPECT_EQ(vive.combinazioni()->norma.nome, "a") << "until the answer comes";
    static_cast<void>(risposta());
    vive.natura({.monte = Natura::permanente});
    guarda();
    EXPECT_EQ(risposta().natura.monte, Natura::permanente);
    dati.profFase[2] += 0.5;
    parete = live::calcola(dati, 20);
    guarda();
    ASSERT_TRUE(vive.domanda());
    static_cast<void>(risposta());
    parete = live::calcola(dati, 40);
    guarda();
    EXPECT_EQ(vive.domanda()->nSeg, 40);
}

TEST_F(NormeViveTest, TakesNoAnswerToAnEarlierQuestion) {
    guarda();
    const int prima = vive.domanda()->numero;
    vive.scegli(1);
    guarda();
    EXPECT_FALSE(vive.rispondi(prima, std::make_shared<const factors::Combinazioni>()));
    vive.rinuncia(prima, "guasto");
    EXPECT_EQ(vive.impedimento(), "");
    EXPECT_FALSE(vive.combinazioni());
    EXPECT_TRUE(vive.domanda());
}

TEST_F(NormeViveTest, TellsWhatEndedAComputationAndAsksNotTheSameAgain) {
    guarda();
    vive.rinuncia(vive.domanda()->numero, "guasto");
    EXPECT_EQ(vive.impedimento(), "guasto");
    guarda();
    EXPECT_FALSE(vive.domanda());
    EXPECT_EQ(vive.impedimento(), "guasto");
    vive.scegli(1);
    guarda();
    EXPECT_EQ(vive.impedimento(), "");
    EXPECT_TRUE(vive.domanda());
}

TEST_F(NormeViveTest, KeepsTheChosenCodeByItsNameWhenTheFilesAreReadAgain) {
    vive.scegli(1);
    vive.norme(catalogo({"x", "a", "b"}));
    EXPECT_EQ(vive.scelta(), 2);
    vive.norme(catalogo({"x", "y"}));
    EXPECT_EQ(vive.scelta(), 0);
    vive.norme({});
    EXPECT_EQ(vive.scelta(), -1);
}

TEST_F(NormeViveTest, SaysWhyThereIsNothingToCompute) {
    guarda();
    static_cast<void>(risposta());
    vive.guarda(nullptr);
    EXPECT_EQ(vive.impedimento(), "Nessun progetto aperto");
    EXPECT_FALSE(vive.combinazioni());
    dati.lunghezzaParatia = 0;
    parete = live::calcola(dati, 20);
    guarda();
    EXPECT_EQ(vive.impedimento(), parete.rifiuto);
    EXPECT_FALSE(vive.impedimento().empty());
    vive.norme({});
    guarda();
    EXPECT_TRUE(vive.impedimento().starts_with("Nessuna norma")) << vive.impedimento();
}

// The combination that is left out might be the one that governs.
TEST_F(NormeViveTest, ComputesNothingOfFilesWithAFault) {
    auto rotto = catalogo({"a"});
    rotto.guaste = {{"combinazioni.txt", 12, "guasto"}, {"combinazioni_utente.txt", 3, "altro"}};
    vive.norme(rotto);
    guarda();
    EXPECT_FALSE(vive.domanda());
    EXPECT_EQ(vive.impedimento(), rotto.guaste[0].frase() + "\n" + rotto.guaste[1].frase());
}

}  // namespace
}  // namespace korven::desk
