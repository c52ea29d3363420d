#include "desktop/annex_of_project.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <regex>

#include "base/code_page.hpp"
#include "base/folders/program_folder.hpp"
#include "device/document_files.hpp"
#include "document/markup_text.hpp"
#include "factors/catalogue.hpp"
#include "project/codes.hpp"
#include "project/output_guard.hpp"
#include "project/project_file.hpp"
#include "support/form_setup.hpp"
#include "support/temporary_folder.hpp"

namespace korven::desktop {
namespace {

namespace fs = std::filesystem;

// The project of a file as the desktop has it open; what it writes, and what the command line
// makes.
class AllegatoDelProgetto : public ::testing::Test {
 protected:
    AllegatoDelProgetto() {
        ::setenv("SOURCE_DATE_EPOCH", "1700000000", 1);
        base::impostaCartellaProgramma(KORVEN_PROGRAM_FOLDER);
        fs::copy_file(std::string(KORVEN_EXAMPLES) + "/pali_armati_staffe.kvd", progetto);
        project::Progetto = project::leggiDaFile(progetto);
        project::fileCorrente = progetto;
    }
    ~AllegatoDelProgetto() override {
        project::azzeraProgetto();
        project::fileCorrente.clear();
        base::impostaCartellaProgramma({});
        ::unsetenv("SOURCE_DATE_EPOCH");
    }

    [[nodiscard]] static document::Documento allegato(
        const std::optional<factors::NormaChiesta>& norma = {}) {
        const std::atomic<bool> mai = false;
        return allegatoDelProgetto(norma)(mai)();
    }
    // Its plain text in one line, whatever lines it is broken into.
    [[nodiscard]] static std::string testo(const document::Documento& documento) {
        const std::string righe = base::daCp1252(document::testoSemplice(documento));
        const std::string intere = std::regex_replace(righe, std::regex(R"(\\\r?\n)"), " ");
        return std::regex_replace(intere, std::regex(R"(\s+)"), " ");
    }
    [[nodiscard]] static std::string comando(const document::Documento& documento) {
        const std::string tutto = testo(documento);
        std::smatch trovato;
        const std::regex suo("korven32c allegato .*?--lingua ita");
        return std::regex_search(tutto, trovato, suo) ? trovato.str() : "";
    }
    // As if it were typed; the program is in its path.
    [[nodiscard]] static int dai(const std::string& comando) {
        const std::string dove = fs::path(KORVEN_CONSOLE).parent_path().string();
        return std::system(
            ("PATH='" + dove + "':\"$PATH\" QT_QPA_PLATFORM=offscreen " + comando + " --silenzioso")
                .c_str());
    }

    QApplication& app = test::applicazione();
    test::CartellaProvvisoria cartella;
    std::string progetto = cartella / "l'opera --nord.kvd";
    std::string pdf = cartella / "l'opera --nord-allegato.pdf";
};

TEST_F(AllegatoDelProgetto, PrintsTheCommandThatMakesTheSameBytes) {
    project::Progetto.metodoSpinte = project::valore(project::MetodoSpinte::bell);
    const auto documento = allegato();
    device::scriviPdf(pdf, documento);
    const std::string prima = test::contenuto(pdf);
    fs::remove(pdf);
    const std::string suo = comando(documento);
    EXPECT_NE(suo.find("--metodo-spinte bell"), std::string::npos) << suo;
    EXPECT_NE(suo.find("--nseg 50"), std::string::npos) << suo;
    ASSERT_EQ(dai(suo), 0) << suo;
    EXPECT_TRUE(test::contenuto(pdf) == prima);
}

TEST_F(AllegatoDelProgetto, WithACodePrintsTheCommandThatMakesTheSameBytes) {
    const factors::Catalogo catalogo = factors::leggiCombinazioni();
    const factors::NormaChiesta norma{*catalogo.norma("ntc2018"),
                                      {.monte = factors::Natura::permanente}};
    const auto documento = allegato(norma);
    device::scriviPdf(pdf, documento);
    const std::string prima = test::contenuto(pdf);
    fs::remove(pdf);
    const std::string suo = comando(documento);
    EXPECT_NE(suo.find("--norma ntc2018 --sovraccarico permanente"), std::string::npos) << suo;
    ASSERT_EQ(dai(suo), 0);
    EXPECT_EQ(test::contenuto(pdf), prima);
}

TEST_F(AllegatoDelProgetto, SaysThatTheFileIsNotYetThisProject) {
    EXPECT_EQ(testo(allegato()).find("modifiche non salvate"), std::string::npos);
    project::Progetto.sovraccMonte += 1;
    const auto documento = allegato();
    const std::string detto = testo(documento);
    EXPECT_NE(detto.find(progetto + ", con modifiche non salvate"), std::string::npos);
    EXPECT_NE(detto.find("non è (ancora) questo progetto"), std::string::npos);
    project::scriviProgetto();
    const std::string salvato = testo(allegato());
    EXPECT_EQ(salvato.find("modifiche non salvate"), std::string::npos);
    EXPECT_EQ(comando(allegato()), comando(documento)) << "it is worth something once it is saved";
}

TEST_F(AllegatoDelProgetto, ComputesWithTheNumbersThatAFileKeeps) {
    project::Progetto.sovraccMonte = 1.00000004;
    project::scriviProgetto();
    EXPECT_EQ(testo(allegato()).find("modifiche non salvate"), std::string::npos);
}

TEST_F(AllegatoDelProgetto, OfAProjectNeverSavedNamesAFileToBeMade) {
    project::fileCorrente.clear();
    const std::string suo = comando(allegato());
    EXPECT_EQ(suo.find("korven32c allegato PROGETTO.kvd --nseg 50 --data 2023-11-14"), 0U) << suo;
}

}  // namespace
}  // namespace korven::desktop
