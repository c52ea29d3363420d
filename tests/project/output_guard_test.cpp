#include "project/output_guard.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>

#include "base/file_error.hpp"
#include "project/project_data.hpp"
#include "support/temporary_folder.hpp"

namespace korven::project {
namespace {

namespace fs = std::filesystem;
using test::metti;

TEST(ControllaUscita, RefusesTheProjectAndTheFileThatTheOutputIsMadeFrom) {
    const test::CartellaProvvisoria cartella;
    progettiProtetti.letto = cartella / "muro.TAB";
    metti(progettiProtetti.letto, "x");
    metti(cartella / "muro.OUT", "x");
    fs::create_symlink(cartella / "muro.OUT", cartella / "via.TAB");
    const std::string inizio = "la scrittura prenderebbe il posto di un ";
    const std::string altro = inizio + "altro file del comando o del progetto: ";
    const std::pair<const char*, std::string> casi[] = {
        {"muro.TAB", inizio + "file letto: " + (cartella / "muro.TAB")},
        {"via.TAB", altro + (cartella / "muro.OUT")},
        {"muro.OUT", altro + (cartella / "muro.OUT")}};
    for (const auto& [nome, motivo] : casi) {
        try {
            controllaUscita(cartella / nome, cartella / "muro.OUT");
            ADD_FAILURE() << nome;
        } catch (const base::ErroreFile& errore) {
            EXPECT_EQ(errore.percorso(), cartella / nome);
            EXPECT_EQ(errore.atteso(), motivo);
        }
    }
    EXPECT_NO_THROW(controllaUscita(cartella / "altro.TAB", cartella / "muro.OUT"));
    progettiProtetti = {};
}

TEST(ProgettoAperto, IsTheProjectAlsoWhileARunNamesItsResults) {
    fileCorrente = "muro.kvd";
    EXPECT_EQ(progettoAperto(), "muro.kvd");
    progettiProtetti.corrente = "muro.kvd";
    fileCorrente = "muro.OUT";
    EXPECT_EQ(progettoAperto(), "muro.kvd");
    progettiProtetti = {};
    fileCorrente.clear();
    EXPECT_EQ(progettoAperto(), "");
}

}  // namespace
}  // namespace korven::project
