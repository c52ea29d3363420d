#include "shell/picture/picture_files.hpp"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <filesystem>
#include <utility>
#include <vector>

#include "base/file_error.hpp"
#include "base/files.hpp"
#include "project/project_data.hpp"
#include "support/dialog_double.hpp"
#include "support/document_ports.hpp"
#include "support/sample_projects.hpp"

namespace korven::shell {
namespace {

class PorteFinte : public PorteGrafica {
 public:
    std::optional<std::string> fileDaSalvare(const FileDaSalvare& richiesta) override {
        chieste.push_back(richiesta);
        return std::exchange(risposta, {});
    }
    [[nodiscard]] const base::Disco& disco() const override { return base::discoDiSistema(); }
    void scritto(const std::string& percorso) override { scritti.push_back(percorso); }
    plot::Foglio foglioStampante() override { return {}; }
    std::unique_ptr<plot::Stampante> stampante(const std::string&) override { return nullptr; }

    std::vector<FileDaSalvare> chieste;
    std::optional<std::string> risposta;
    std::vector<std::string> scritti;
};

class FileFiguraTest : public ::testing::Test {
 protected:
    FileFiguraTest() {
        project::fileCorrente = ambiente.lavori / "muro.kvd";
        dati = test::progettoSemplice();
        vivo.guarda(&dati);
    }
    void salva(const std::optional<std::string>& dove) {
        porte.risposta = dove;
        salvaFigura(vivo, QGuiApplication::font(), porte, dialogo);
    }
    test::AmbienteDocumento ambiente;
    test::DialogoFinto dialogo;
    PorteFinte porte;
    project::DatiProgetto dati;
    live::ProgettoVivo vivo;
};

TEST_F(FileFiguraTest, ProposesTheNameOfTheProject) {
    salva({});
    ASSERT_EQ(porte.chieste.size(), 1U);
    EXPECT_EQ(porte.chieste[0].nome, "muro-figura.svg");
    EXPECT_EQ(porte.chieste[0].tipi.size(), 3U);
    EXPECT_TRUE(porte.scritti.empty());
}

TEST_F(FileFiguraTest, WritesTheKindThatTheExtensionNames) {
    const std::pair<const char*, const char*> casi[] = {
        {"a.svg", "<?xml"}, {"a.PDF", "%PDF-"}, {"a.png", "\x89PNG"}};
    for (const auto& [nome, inizio] : casi) {
        const std::string file = ambiente.lavori / nome;
        salva(file);
        ASSERT_TRUE(std::filesystem::exists(file)) << nome;
        EXPECT_TRUE(base::leggiFile(file).starts_with(inizio)) << nome;
    }
    EXPECT_EQ(porte.scritti.size(), 3U);
}

TEST_F(FileFiguraTest, RefusesAnotherKindAndSaysWhichThereAre) {
    for (const char* nome : {"a.xyz", "a.svg.gz", "png", "a.dpdf"}) {
        dialogo.messaggi.clear();
        salva(ambiente.lavori / nome);
        EXPECT_FALSE(std::filesystem::exists(ambiente.lavori / nome)) << nome;
        ASSERT_EQ(dialogo.messaggi.size(), 1U) << nome;
        EXPECT_NE(dialogo.messaggi[0].testo.find(".svg, .pdf o .png"), std::string::npos);
    }
    EXPECT_TRUE(porte.scritti.empty());
}

TEST_F(FileFiguraTest, AsksAgainForANameThatWasRefused) {
    const std::pair<const char*, const char*> casi[] = {{"tavole/a.jpg", "tavole/a.svg"},
                                                        {"1.2/a", "1.2/a.svg"},
                                                        {"manca/a.PDF", "manca/a.PDF"},
                                                        {"muro scavo 3.50", "muro scavo 3.50.svg"},
                                                        {"muro 3.5m", "muro 3.5m.svg"},
                                                        {"muro ing. Rossi", "muro ing. Rossi.svg"},
                                                        {"muro.def", "muro.def.svg"},
                                                        {"scavo.WMF", "scavo.svg"},
                                                        {"muro.", "muro.svg"}};
    for (const auto& [scritto, riproposto] : casi) {
        porte.chieste.clear();
        dialogo.messaggi.clear();
        salva(ambiente.lavori / scritto);
        ASSERT_EQ(porte.chieste.size(), 2U) << scritto;
        EXPECT_EQ(porte.chieste[1].nome, ambiente.lavori / riproposto);
        EXPECT_EQ(dialogo.messaggi.size(), 1U) << scritto;
    }
    porte.chieste.clear();
    salva(ambiente.lavori / "a.png");
    EXPECT_EQ(porte.chieste.size(), 1U);
}

TEST_F(FileFiguraTest, NeverTakesThePlaceOfTheProject) {
    test::metti(project::fileCorrente, "il progetto");
    salva(project::fileCorrente);
    EXPECT_EQ(base::leggiFile(project::fileCorrente), "il progetto");
    EXPECT_TRUE(porte.scritti.empty());
    EXPECT_EQ(dialogo.messaggi.size(), 1U);
}

TEST_F(FileFiguraTest, TellsWhatCouldNotBeWritten) {
    salva(ambiente.lavori / "manca/figura.svg");
    EXPECT_TRUE(porte.scritti.empty());
    EXPECT_EQ(dialogo.messaggi.size(), 1U);
}

}  // namespace
}  // namespace korven::shell
