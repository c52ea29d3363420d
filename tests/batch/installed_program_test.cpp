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
    EXPECT_FALSE(fs::exists(utente));  // reading makes none
    fs::create_directories(utente);
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

// As a package lays it: programs in bin, data in share/korven32, outdoc in lib/korven32.
class ProgrammaImpacchettato : public test::BancoConsole {
 protected:
    void SetUp() override {
        BancoConsole::SetUp();
        for (const auto* parte : {"/bin", "/share/korven32", "/lib/korven32"})
            fs::create_directories(prefisso + parte);
        fs::copy_file(KORVEN_CONSOLE, prefisso + "/bin/korven32c");
        metti(prefisso + "/share/korven32/nseg.txt", "12\r\n");
    }

    [[nodiscard]] test::EsitoProgramma lancia(const std::vector<std::string>& argomenti) const {
        return test::ProgrammaInCorso(prefisso + "/bin/korven32c", argomenti,
                                      {.variabili = {{"XDG_DATA_HOME", dati}}})
            .attendi();
    }
    int segmenti() {
        fs::remove(cartella / "muro.OUT");
        const auto esito = lancia({"calcola", progetto, "--json", "--silenzioso"});
        EXPECT_EQ(esito.codice, 0) << esito.errori;
        return nlohmann::json::parse(esito.uscita)["calcolo"]["segmenti"];
    }

    std::string prefisso = cartella / "prefisso", dati = cartella / "dati";
};

TEST_F(ProgrammaImpacchettato, ReadsItsDataApartAndTheUsersSettingsBeforeThemForRootToo) {
    EXPECT_EQ(segmenti(), 12);
    EXPECT_FALSE(fs::exists(dati));
    fs::create_directories(dati + "/korven32");
    metti(dati + "/korven32/nseg.txt", "20\r\n");
    EXPECT_EQ(segmenti(), 20);
}

TEST_F(ProgrammaImpacchettato, NeverLooksBesideItsPrograms) {
    metti(prefisso + "/bin/nseg.txt", "30\r\n");
    EXPECT_EQ(segmenti(), 12);
    fs::remove(prefisso + "/share/korven32/nseg.txt");
    EXPECT_EQ(segmenti(), 50);
}

TEST_F(ProgrammaImpacchettato, TakesItsTextsAndCasesFromItsDataAndItsHelperFromItsLibraries) {
    const fs::path programma = fs::path(KORVEN_CONSOLE).parent_path();
    const fs::path condivisi = prefisso + "/share/korven32";
    for (const auto* testi : {"texts01.txt", "texts06.txt", "texts32.txt"})
        fs::copy_file(programma / testi, condivisi / testi);
    // A copy that an earlier version has left with the user.
    fs::create_directories(dati + "/korven32");
    metti(dati + "/korven32/texts06.txt", "");
    const auto aiuto = lancia({"--lingua", "eng", "--help"});
    EXPECT_EQ(aiuto.codice, 0);
    EXPECT_NE(aiuto.uscita.find("Usage"), std::string::npos) << aiuto.uscita;
    fs::copy(programma / "verifica", condivisi / "verifica", fs::copy_options::recursive);
    fs::copy(programma / "data", condivisi / "data", fs::copy_options::recursive);
    EXPECT_EQ(lancia({"autoverifica"}).codice, 0);
    EXPECT_NE(lancia({"relazione", progetto, "--doc"}).codice, 0);
    fs::copy_file(programma / "outdoc", prefisso + "/lib/korven32/outdoc");
    const auto relazione = lancia({"relazione", progetto, "--doc"});
    EXPECT_EQ(relazione.codice, 0) << relazione.errori;
}

}  // namespace
}  // namespace korven::batch
