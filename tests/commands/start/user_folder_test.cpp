#include "commands/start/user_folder.hpp"

#include <gtest/gtest.h>

#include "base/file_error.hpp"
#include "support/document_ports.hpp"
#include "support/failing_disk.hpp"

namespace korven::commands {
namespace {

namespace fs = std::filesystem;
using test::contenuto;

class CartellaUtente : public ::testing::Test {
 protected:
    CartellaUtente() {
        metti("texts06.txt", "testi 1");
        metti("module06ita.CFG", "penne 1");
        fs::create_directories(installata / "data/ita");
        metti("data/ita/esempio.kvd", "esempio");
        fs::create_directories(installata / "altro");
        metti("altro/non_nostro", "x");
        metti("korven32", "programma");
        fs::permissions(installata / "korven32", fs::perms::owner_all);
    }
    void metti(const char* nome, const char* testo) { test::metti(installata / nome, testo); }
    std::string utente() const { return casa / "korven32"; }
    std::string nellUtente(const std::string& nome) const { return utente() + "/" + nome; }

    test::CartellaProvvisoria installata, casa;
};

TEST_F(CartellaUtente, GetsTheDataAndNoPrograms) {
    copiaDati(installata.percorso(), utente());
    EXPECT_EQ(contenuto(nellUtente("texts06.txt")), "testi 1");
    EXPECT_EQ(contenuto(nellUtente("module06ita.CFG")), "penne 1");
    EXPECT_EQ(contenuto(nellUtente("data/ita/esempio.kvd")), "esempio");
    EXPECT_FALSE(fs::exists(nellUtente("korven32")));
    EXPECT_FALSE(fs::exists(nellUtente("altro")));
}

TEST_F(CartellaUtente, KeepsWhatTheUserChangedAndFollowsTheProgramInItsTexts) {
    copiaDati(installata.percorso(), utente());
    test::metti(nellUtente("module06ita.CFG"), "penne mie");
    metti("texts06.txt", "testi 2");
    metti("module06ita.CFG", "penne 2");
    copiaDati(installata.percorso(), utente());
    EXPECT_EQ(contenuto(nellUtente("module06ita.CFG")), "penne mie");
    EXPECT_EQ(contenuto(nellUtente("texts06.txt")), "testi 2");
}

TEST_F(CartellaUtente, FollowsTheProgramInItsProfilesAndLeavesThoseOfTheUser) {
    metti("profili.txt", "profili 1");
    copiaDati(installata.percorso(), utente());
    test::metti(nellUtente("profili_utente.txt"), "i miei");
    metti("profili.txt", "profili 2");
    metti("profili_utente.txt", "di altri");
    copiaDati(installata.percorso(), utente());
    EXPECT_EQ(contenuto(nellUtente("profili.txt")), "profili 2");
    EXPECT_EQ(contenuto(nellUtente("profili_utente.txt")), "i miei");
}

TEST_F(CartellaUtente, FollowsTheProgramInItsPartialFactorsAndLeavesThoseOfTheUser) {
    metti("combinazioni.txt", "coefficienti 1");
    copiaDati(installata.percorso(), utente());
    test::metti(nellUtente("combinazioni_utente.txt"), "i miei");
    metti("combinazioni.txt", "coefficienti 2");
    metti("combinazioni_utente.txt", "di altri");
    copiaDati(installata.percorso(), utente());
    EXPECT_EQ(contenuto(nellUtente("combinazioni.txt")), "coefficienti 2");
    EXPECT_EQ(contenuto(nellUtente("combinazioni_utente.txt")), "i miei");
}

TEST_F(CartellaUtente, KeepsItsOldFilesOnAFullDisk) {
    copiaDati(installata.percorso(), utente());
    metti("texts06.txt", "testi 2");
    const test::DiscoPieno disco(3);
    EXPECT_THROW(copiaDati(installata.percorso(), utente(), disco), base::ErroreScrittura);
    EXPECT_EQ(contenuto(nellUtente("texts06.txt")), "testi 1");
}

TEST_F(CartellaUtente, GivesWayToAFolderThatWasNamed) {
    const test::AmbienteDocumento ambiente;
    fs::remove_all(ambiente.programma.percorso());  // which nothing can be written into
    scegliCartellaProgramma();
    EXPECT_EQ(base::cartellaProgramma(), ambiente.programma.percorso());
}

}  // namespace
}  // namespace korven::commands
