#include <nlohmann/json.hpp>

#include "batch/batch_bench.hpp"

// The program in a folder that its user can't write, as after an installation for all users.

namespace korven::batch {
namespace {

namespace fs = std::filesystem;
using test::Ambiente;
using test::metti;

class ProgrammaInstallato : public test::BancoConsole {
 protected:
    void SetUp() override {
        BancoConsole::SetUp();
        fs::create_directory(installato);
        fs::copy_file(KORVEN_CONSOLE, installato + "/korven32c");
        metti(installato + "/nseg.txt", "12\r\n");
        fs::permissions(installato, fs::perms::owner_read | fs::perms::owner_exec);
    }
    void TearDown() override { fs::permissions(installato, fs::perms::owner_all); }

    // Segments that a run computes with; -1 where the rights of root can't be given up.
    int segmenti(std::vector<std::string> altri = {}, const std::string& casa = {}) {
        fs::remove(cartella / "muro.OUT");
        altri.insert(altri.begin(), {"calcola", progetto, "--json", "--silenzioso"});
        Ambiente ambiente{.variabili = {{"XDG_DATA_HOME", dati}}, .senzaPrivilegi = true};
        if (!casa.empty()) ambiente.variabili.emplace_back("KORVEN32_HOME", casa);
        const auto esito =
            test::ProgrammaInCorso(installato + "/korven32c", altri, ambiente).attendi();
        if (esito.codice == 127) return -1;
        EXPECT_EQ(esito.codice, 0) << esito.errori;
        return nlohmann::json::parse(esito.uscita)["calcolo"]["segmenti"];
    }

    std::string installato = cartella / "bin", dati = cartella / "dati";
    std::string utente = dati + "/korven32";
};

TEST_F(ProgrammaInstallato, WorksInTheUsersFolderAsTheDesktopDoes) {
    const int primo = segmenti();
    if (primo == -1) GTEST_SKIP() << "root without the right to give up its rights";
    EXPECT_EQ(primo, 12);
    EXPECT_EQ(test::contenuto(utente + "/nseg.txt"), "12\r\n");
    EXPECT_FALSE(fs::exists(utente + "/korven32c"));
    metti(utente + "/nseg.txt", "20\r\n");
    EXPECT_EQ(segmenti(), 20);
}

TEST_F(ProgrammaInstallato, LetsANamedFolderGoBeforeTheUsers) {
    fs::create_directories(utente);
    metti(utente + "/nseg.txt", "20\r\n");
    const int primo = segmenti({"--cartella", installato});
    if (primo == -1) GTEST_SKIP() << "root without the right to give up its rights";
    EXPECT_EQ(primo, 12);
    EXPECT_EQ(segmenti({}, installato), 12);
}

TEST_F(ProgrammaInstallato, StaysInItsOwnFolderWhereTheUserCanHaveNone) {
    metti(dati, "no folder");
    const int primo = segmenti();
    if (primo == -1) GTEST_SKIP() << "root without the right to give up its rights";
    EXPECT_EQ(primo, 12);
}

}  // namespace
}  // namespace korven::batch
