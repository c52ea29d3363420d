#include "commands/rescue/found_rescues.hpp"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "project/rescue_mark.hpp"
#include "support/rescue_setup.hpp"

namespace korven::commands {
namespace {

namespace fs = std::filesystem;
using project::Progetto;
using test::metti;
using Nomi = std::vector<std::string>;

// The project "muro.kvd" as it was read, with nothing unsaved.
class RecuperiTrovati : public ::testing::Test {
 protected:
    RecuperiTrovati() { project::modificato = false; }

    static project::DatiProgetto lunga(double lunghezza) {
        auto dati = test::progettoSemplice();
        dati.lunghezzaParatia = lunghezza;
        return dati;
    }
    // Unsaved work that a program left, written at a time.
    void lascia(const std::string& file, const project::DatiProgetto& dati, std::time_t quando,
                const std::string& di) {
        metti(file, byteRecupero(dati, di));
        const timespec volta[] = {{quando, 0}, {quando, 0}};
        ASSERT_EQ(::utimensat(AT_FDCWD, file.c_str(), volta, 0), 0);
    }
    void lascia(const char* nome, double lunghezza, std::time_t quando = 1000) {
        lascia(ambiente.lavori / nome, lunga(lunghezza), quando, ambiente.muro);
    }
    [[nodiscard]] Nomi trovati(const std::string& progetto) const {
        Nomi nomi;
        for (const auto& trovato : trovaRecuperi(progetto))
            nomi.push_back(fs::path(trovato.file.percorso()).filename().string());
        return nomi;
    }
    [[nodiscard]] Nomi trovati() const { return trovati(ambiente.muro); }

    test::AmbienteRecupero ambiente;
};

TEST_F(RecuperiTrovati, AreWholeWithTheirTimeAndWhatTheyChange) {
    lascia("muro_recuperato.kvd", 10, 1700000000);
    const auto trovati = trovaRecuperi(ambiente.muro);
    ASSERT_EQ(trovati.size(), 1u);
    EXPECT_EQ(trovati[0].file.percorso(), ambiente.recuperato);
    EXPECT_EQ(trovati[0].quando, 1700000000);
    EXPECT_EQ(trovati[0].dati, lunga(10));
    ASSERT_EQ(trovati[0].differenze.size(), 1u);
    EXPECT_EQ(trovati[0].differenze[0].cosa, "lunghezza della paratia [m]");
    EXPECT_EQ(trovati[0].differenze[0].dopo, "10");
}

TEST_F(RecuperiTrovati, ComeWithTheLatestFirst) {
    lascia("muro_recuperato.kvd", 10, 2000);
    lascia("muro_recuperato_2.kvd", 11, 3000);
    lascia("muro_recuperato_3.kvd", 12.5, 1000);
    EXPECT_EQ(trovati(),
              (Nomi{"muro_recuperato_2.kvd", "muro_recuperato.kvd", "muro_recuperato_3.kvd"}));
}

TEST_F(RecuperiTrovati, AreNoneOfAnotherProjectOfTheFolder) {
    lascia(ambiente.lavori / "altro_recuperato.kvd", lunga(10), 1000,
           ambiente.lavori / "altro.kvd");
    lascia(ambiente.lavori / "muro_recuperato.kvd", lunga(10), 1000,
           ambiente.lavori / "muro_recuperato.kvd");
    EXPECT_EQ(trovati(), Nomi{});
}

// Somebody has opened the rescue file and saved it, and works on in it as on any project.
TEST_F(RecuperiTrovati, AreNoneThatSomebodyHasMadeAProjectOfTheirOwn) {
    metti(ambiente.recuperato, ambiente.byte(lunga(10)));
    EXPECT_EQ(trovati(), Nomi{});
    EXPECT_TRUE(fs::exists(ambiente.recuperato));
}

TEST_F(RecuperiTrovati, AreNoneThatAreCutShortOrBrokenAtAnyPlace) {
    const std::string tutto = byteRecupero(lunga(10), ambiente.muro);
    for (std::size_t n = 0; n < tutto.size(); ++n) {
        metti(ambiente.recuperato, tutto.substr(0, n));
        EXPECT_EQ(trovati(), Nomi{}) << n;
    }
    metti(ambiente.recuperato, "due" + tutto);
    EXPECT_EQ(trovati(), Nomi{});
    EXPECT_TRUE(fs::exists(ambiente.recuperato));
}

TEST_F(RecuperiTrovati, AreRemovedWhereTheyHoldNothingElseThanTheProject) {
    lascia("muro_recuperato.kvd", Progetto.lunghezzaParatia);
    EXPECT_EQ(trovati(), Nomi{});
    EXPECT_TRUE(fs::is_empty(ambiente.lavori.percorso()));
}

TEST_F(RecuperiTrovati, AreNoneThatALivingProgramKeeps) {
    project::modificato = true;
    {
        RecuperoTenuto altro;
        Progetto = lunga(10);
        EXPECT_EQ(altro.guarda(), "");
        Progetto = lunga(11);
        EXPECT_EQ(trovati(), Nomi{});
        EXPECT_TRUE(fs::exists(ambiente.recuperato));
    }
    EXPECT_EQ(trovati(), Nomi{"muro_recuperato.kvd"});
}

TEST_F(RecuperiTrovati, AreHeldUntilItIsDecidedAboutThem) {
    lascia("muro_recuperato.kvd", 10);
    {
        const auto primi = trovaRecuperi(ambiente.muro);
        EXPECT_EQ(trovati(), Nomi{});
    }
    EXPECT_EQ(trovati(), Nomi{"muro_recuperato.kvd"});
}

TEST_F(RecuperiTrovati, FollowNoLinkAndReadNoFolder) {
    lascia(ambiente.lavori / "altrove", lunga(10), 1000, ambiente.muro);
    fs::create_symlink("altrove", ambiente.recuperato);
    fs::create_directory(ambiente.lavori / "muro_recuperato_2.kvd");
    EXPECT_EQ(trovati(), Nomi{});
}

TEST_F(RecuperiTrovati, GoWithTheFolderOfTheirProject) {
    fs::create_directory(ambiente.lavori / "copia");
    lascia(ambiente.lavori / "copia/muro_recuperato.kvd", lunga(10), 1000, ambiente.muro);
    EXPECT_EQ(trovati(ambiente.lavori / "copia/muro.kvd"), Nomi{"muro_recuperato.kvd"});
}

// Two projects of one name, in folders that can't be written.
TEST_F(RecuperiTrovati, AmongTheUsersDataBelongToOneFolder) {
    fs::create_directories(ambiente.dati / "share");
    lascia(ambiente.dati / "share/muro_recuperato.kvd", lunga(10), 1000, ambiente.muro);
    EXPECT_EQ(trovati(), Nomi{"muro_recuperato.kvd"});
    EXPECT_EQ(trovati(ambiente.lavori / "altri/muro.kvd"), Nomi{});
}

TEST_F(RecuperiTrovati, KeepTheMethodThatAProjectLosesWhenItIsRead) {
    Progetto.metodoSpinte = 1;
    auto dati = Progetto;
    dati.metodoSpinte = 3;
    lascia(ambiente.recuperato, dati, 1000, ambiente.muro);
    const auto trovati = trovaRecuperi(ambiente.muro);
    ASSERT_EQ(trovati.size(), 1u);
    EXPECT_EQ(trovati[0].dati.metodoSpinte, 3);
    ASSERT_EQ(trovati[0].differenze.size(), 1u);
    EXPECT_EQ(trovati[0].differenze[0].dopo, "Bell");
}

}  // namespace
}  // namespace korven::commands
