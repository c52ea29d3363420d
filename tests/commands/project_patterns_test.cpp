#include "commands/project_patterns.hpp"

#include <gtest/gtest.h>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "project/project_file.hpp"
#include "support/document_ports.hpp"
#include "support/sample_projects.hpp"

namespace korven::commands {
namespace {

class Modelli : public ::testing::Test {
 protected:
    std::string scrivi(const std::string& nome, const project::DatiProgetto& dati) {
        const std::string percorso = ambiente.lavori / nome;
        test::metti(percorso, base::inCp1252(project::testoProgetto(dati)));
        return percorso;
    }
    test::AmbienteDocumento ambiente;
};

TEST_F(Modelli, AreTheProjectsOfAFolderWithTheirHeadings) {
    auto dati = test::progettoSemplice();
    dati.titoli = {};
    const std::string b = scrivi("b.kvd", dati);
    dati.titoli[1] = "Paratia è a mensola ";
    dati.titoli[3] = "Scavo 4 m";
    const std::string a = scrivi("a.KVD", dati);
    test::metti(ambiente.lavori / "nota.txt", "x");
    EXPECT_EQ(modelli(ambiente.lavori.percorso()),
              (std::vector<Modello>{{a, "a", "Paratia è a mensola - Scavo 4 m"}, {b, "b", ""}}));
}

TEST_F(Modelli, LeaveOutAFileThatIsNoProject) {
    test::metti(ambiente.lavori / "rotto.kvd", "due\r\n");
    std::filesystem::create_directory(ambiente.lavori / "cartella.kvd");
    EXPECT_TRUE(modelli(ambiente.lavori.percorso()).empty());
    EXPECT_TRUE(modelli(ambiente.lavori / "manca").empty());
}

TEST_F(Modelli, GiveTheirContent) {
    const auto dati = test::progettoSemplice();
    EXPECT_EQ(leggiModello(scrivi("a.kvd", dati)), dati);
    EXPECT_THROW((void)leggiModello(ambiente.lavori / "manca.kvd"), base::ErroreFile);
}

}  // namespace
}  // namespace korven::commands
