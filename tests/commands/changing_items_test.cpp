#include <gtest/gtest.h>

#include "base/code_page.hpp"
#include "commands/recent_projects.hpp"
#include "project/project_file.hpp"
#include "support/program_bench.hpp"
#include "support/sample_projects.hpp"

// Items of the menu whose captions hang on what was done before.

namespace korven::commands {
namespace {

class VociMutevoli : public test::BancoProgramma {
 protected:
    std::vector<VoceMutevole> recenti(Programma& p) { return voceMenu("recenti").riempi(p); }
};

TEST_F(VociMutevoli, NameTheStepThatWouldBeTakenBackOrDoneAgain) {
    auto p = programma({});
    const VoceMenu &annulla = voceMenu("annulla"), &ripeti = voceMenu("ripeti");
    EXPECT_EQ(annulla.cosa(p), "");
    EXPECT_EQ(ripeti.cosa(p), "");
    project::Progetto = test::progettoSemplice();
    project::fileCorrente = ambiente.lavori / "muro.kvd";
    auto altro = project::Progetto;
    altro.lunghezzaParatia += 1;
    ASSERT_TRUE(p.prendi(altro, "Prova"));
    EXPECT_EQ(annulla.cosa(p), "Prova");
    EXPECT_EQ(ripeti.cosa(p), "");
    EXPECT_FALSE(p.esegui(annulla));
    EXPECT_EQ(project::Progetto, test::progettoSemplice());
    EXPECT_EQ(annulla.cosa(p), "");
    EXPECT_EQ(ripeti.cosa(p), "Prova");
    EXPECT_FALSE(p.esegui(ripeti));
    EXPECT_EQ(project::Progetto, altro);
}

TEST_F(VociMutevoli, SayThatThereIsNoRecentProject) {
    auto p = programma({});
    const auto voci = recenti(p);
    ASSERT_EQ(voci.size(), 1U);
    EXPECT_EQ(voci[0].testo, "nessun progetto recente");
    EXPECT_FALSE(voci[0].scelta);
}

TEST_F(VociMutevoli, OpenARecentProjectAndForgetTheList) {
    project::Progetto = test::progettoSemplice();
    project::fileCorrente = ambiente.lavori / "muro.kvd";
    test::metti(project::fileCorrente,
                base::inCp1252(project::testoProgetto(test::progettoSemplice())));
    ricordaRecente(project::fileCorrente);
    const std::string muro = project::fileCorrente;
    project::azzeraProgetto();
    project::fileCorrente.clear();
    auto p = programma({});
    const auto voci = recenti(p);
    ASSERT_EQ(voci.size(), 2U);
    EXPECT_EQ(voci[0].testo, voceRecente(0, muro));
    EXPECT_FALSE(voci[0].staccata);
    voci[0].scelta();
    EXPECT_EQ(project::fileCorrente, muro);
    EXPECT_EQ(project::Progetto.lunghezzaParatia, test::progettoSemplice().lunghezzaParatia);
    EXPECT_EQ(voci[1].testo, "&Dimentica l'elenco");
    EXPECT_TRUE(voci[1].staccata);
    voci[1].scelta();
    EXPECT_TRUE(progettiRecenti().empty());
}

}  // namespace
}  // namespace korven::commands
