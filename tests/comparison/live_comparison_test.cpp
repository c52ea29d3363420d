#include "comparison/live_comparison.hpp"

#include <gtest/gtest.h>

#include "comparison/walls.hpp"
#include "project/project_file.hpp"
#include "support/temporary_folder.hpp"

namespace korven::comparison {
namespace {

using korven::test::progettoSemplice;

class InSilenzio : public analysis::OsservatoreCorsa {};

class ConfrontoVivoTest : public ::testing::Test {
 protected:
    ConfrontoVivoTest() { scrivi(muro, progettoSemplice()); }

    static void scrivi(const std::string& percorso, const project::DatiProgetto& dati) {
        korven::test::metti(percorso, project::testoProgetto(dati));
    }
    void guarda(const project::DatiProgetto& aperto) { vivo.guarda(&aperto, muro, 20); }
    /// Computes what is asked for.
    const Confronto& risposta() {
        InSilenzio osservatore;
        const auto domanda = vivo.domanda().value();
        EXPECT_TRUE(vivo.rispondi(domanda.numero, std::make_shared<const Confronto>(
                                                      calcolo.calcola(domanda, osservatore))));
        return *vivo.confronto();
    }

    korven::test::CartellaProvvisoria cartella;
    std::string muro = cartella / "muro.kvd", altro = cartella / "altro.kvd";
    CalcoloConfronti calcolo;
    ConfrontoVivo vivo;
};

TEST_F(ConfrontoVivoTest, OfAProjectAsItWasSavedFindsNothing) {
    guarda(progettoSemplice());
    const Confronto& c = risposta();
    EXPECT_TRUE(c.uguali());
    EXPECT_EQ(c.prima.nome, "muro.kvd (salvato)");
    EXPECT_EQ(c.dopo.nome, "muro.kvd (in lavorazione)");
    EXPECT_EQ(c.prima.fascicolo.identita.file, muro);
}

TEST_F(ConfrontoVivoTest, FollowsTheOpenProjectAndItsFile) {
    auto aperto = progettoSemplice();
    guarda(aperto);
    EXPECT_TRUE(risposta().uguali());
    guarda(aperto);
    EXPECT_FALSE(vivo.domanda()) << "nothing has changed";
    aperto.profFase[2] += 0.5;
    guarda(aperto);
    ASSERT_TRUE(vivo.domanda());
    EXPECT_TRUE(vivo.confronto()->uguali()) << "until the answer comes";
    const Confronto& c = risposta();
    ASSERT_EQ(c.campi.size(), 1U);
    EXPECT_EQ(project::nomeStabile(*c.campi[0].campo, c.campi[0].riga), "profFase[2]");
    EXPECT_TRUE(c.cambiaQualcosa());
    EXPECT_FALSE(vivo.domanda());
    scrivi(muro, aperto);
    guarda(aperto);
    EXPECT_TRUE(risposta().uguali());
}

TEST_F(ConfrontoVivoTest, TakesNoAnswerToAnEarlierQuestion) {
    auto aperto = progettoSemplice();
    guarda(aperto);
    const int prima = vivo.domanda()->numero;
    aperto.profFase[2] += 0.5;
    guarda(aperto);
    EXPECT_FALSE(vivo.rispondi(prima, std::make_shared<const Confronto>()));
    vivo.rinuncia(prima, "guasto");
    EXPECT_EQ(vivo.impedimento(), "");
    EXPECT_FALSE(vivo.confronto());
    EXPECT_TRUE(vivo.domanda());
}

TEST_F(ConfrontoVivoTest, OfAnotherProjectNamesBothByTheirFiles) {
    auto dati = progettoSemplice();
    dati.lunghezzaParatia += 1;
    scrivi(altro, dati);
    vivo.con(altro);
    guarda(progettoSemplice());
    const Confronto& c = risposta();
    EXPECT_EQ(c.prima.nome, "altro.kvd");
    EXPECT_EQ(c.dopo.nome, "muro.kvd (in lavorazione)");
    EXPECT_EQ(c.campi.size(), 1U);
}

TEST_F(ConfrontoVivoTest, TellsProjectsOfOneNameApartByTheirFolders) {
    std::filesystem::create_directory(cartella / "vecchi");
    const std::string vecchio = cartella / "vecchi/muro.kvd";
    scrivi(vecchio, progettoSemplice());
    vivo.con(vecchio);
    guarda(progettoSemplice());
    EXPECT_EQ(vivo.domanda()->prima.nome, vecchio);
    EXPECT_EQ(vivo.domanda()->dopo.nome, muro + " (in lavorazione)");
}

// Opening a file makes another method of its pressures that of Coulomb; saving keeps it.
TEST_F(ConfrontoVivoTest, TakesTheMethodWithWhichTheOpenProjectWasSaved) {
    auto aperto = progettoSemplice();
    aperto.metodoSpinte = 2;
    scrivi(muro, aperto);
    guarda(aperto);
    EXPECT_TRUE(vivo.domanda()->prima.dati == aperto);
    scrivi(altro, aperto);
    vivo.con(altro);
    guarda(aperto);
    EXPECT_EQ(vivo.domanda()->prima.dati.metodoSpinte, 1);
}

TEST_F(ConfrontoVivoTest, SaysWhyThereIsNothingToCompare) {
    guarda(progettoSemplice());
    static_cast<void>(risposta());
    vivo.guarda(nullptr, muro, 20);
    EXPECT_EQ(vivo.impedimento(), "Nessun progetto aperto");
    EXPECT_FALSE(vivo.confronto());
    const auto dati = progettoSemplice();
    vivo.guarda(&dati, altro, 20);
    EXPECT_TRUE(vivo.impedimento().starts_with("Il progetto non è ancora stato salvato"));
    vivo.con(altro);
    guarda(dati);
    EXPECT_TRUE(vivo.impedimento().starts_with(altro)) << vivo.impedimento();
    korven::test::metti(altro, "parole");
    guarda(dati);
    EXPECT_TRUE(vivo.impedimento().starts_with(altro + ", riga 1")) << vivo.impedimento();
    auto enorme = progettoSemplice();
    enorme.pressioneOrizz = 1e308;
    vivo.con("");
    guarda(enorme);
    EXPECT_FALSE(vivo.impedimento().empty());
    EXPECT_FALSE(vivo.domanda());
    guarda(dati);
    EXPECT_EQ(vivo.impedimento(), "");
    EXPECT_TRUE(risposta().uguali());
}

TEST_F(ConfrontoVivoTest, DoesNotAskAgainWhatCouldNotBeComputed) {
    guarda(progettoSemplice());
    vivo.rinuncia(vivo.domanda()->numero, "guasto");
    EXPECT_EQ(vivo.impedimento(), "guasto");
    guarda(progettoSemplice());
    EXPECT_FALSE(vivo.domanda());
    EXPECT_EQ(vivo.impedimento(), "guasto");
}

TEST(CalcoloConfronti, KeepsNothingOfAWallWhoseRunWasStopped) {
    class Ferma : public analysis::OsservatoreCorsa {
     public:
        bool fermata() override { return true; }
    } ferma;
    InSilenzio osservatore;
    const ProgettoDetto uno{"uno", "uno.kvd", progettoSemplice()};
    const DomandaConfronto domanda{1, uno, uno, 20};
    CalcoloConfronti calcolo;
    EXPECT_FALSE(calcolo.calcola(domanda, ferma).prima.fascicolo.conRelazione());
    EXPECT_TRUE(calcolo.calcola(domanda, osservatore).prima.fascicolo.conRelazione());
}

TEST(CalcoloConfronti, ComputesTheFirstWallAnewWithAnotherMesh) {
    InSilenzio osservatore;
    const ProgettoDetto uno{"uno", "uno.kvd", progettoSemplice()};
    CalcoloConfronti calcolo;
    for (const int nSeg : {20, 40})
        EXPECT_EQ(calcolo.calcola({1, uno, uno, nSeg}, osservatore).prima.fascicolo.parete.nSeg,
                  nSeg);
}

}  // namespace
}  // namespace korven::comparison
