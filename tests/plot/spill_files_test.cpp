#include "plot/spill_files.hpp"

#include <gtest/gtest.h>
#include <signal.h>
#include <stdlib.h>

#include <cstdlib>
#include <filesystem>
#include <optional>

#include "base/file_error.hpp"
#include "support/failing_disk.hpp"
#include "support/temporary_folder.hpp"

namespace korven::plot {
namespace {

TEST(FileScarico, IsNamedByTheDriveOfTheSystemFolderAndItsNumber) {
    EXPECT_EQ(nomeFileScarico("C:\\WINDOWS", 1), "C:\\plttmp1.tmp");
    EXPECT_EQ(nomeFileScarico("d:\\winnt", 12), "d:\\plttmp12.tmp");
}

TEST(FileScarico, WithADriveTheFilesLieThere) {
    ::setenv("windir", "E:\\WINDOWS", 1);
    EXPECT_EQ(percorsoFileScarico(3), "E:\\plttmp3.tmp");
    ::unsetenv("windir");
}

TEST(FileScarico, WithoutADriveTheFilesLieInOneTemporaryFolderOfTheProcess) {
    ::unsetenv("windir");
    const std::filesystem::path primo = percorsoFileScarico(1);
    const std::filesystem::path secondo = percorsoFileScarico(2);
    EXPECT_EQ(primo.filename(), "plttmp1.tmp");
    EXPECT_EQ(secondo.filename(), "plttmp2.tmp");
    EXPECT_EQ(primo.parent_path(), secondo.parent_path());
    EXPECT_TRUE(std::filesystem::is_directory(primo.parent_path()));
    EXPECT_NE(primo.parent_path(), std::filesystem::temp_directory_path());
}

TEST(FileScaricoDeathTest, TemporaryFolderGoesWhenTheProcessEnds) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    // The child runs this test from its start, so it must find the folder that its parent made.
    constexpr const char* variabile = "KORVEN_TEST_SPILL_FOLDER";
    std::optional<test::CartellaProvvisoria> propria;
    if (std::getenv(variabile) == nullptr) {
        propria.emplace();
        ::setenv(variabile, propria->percorso().c_str(), 1);
    }
    const std::string cartella = std::getenv(variabile);
    EXPECT_EXIT(
        {
            ::unsetenv("windir");
            ::setenv("TMPDIR", cartella.c_str(), 1);
            scriviScarico(percorsoFileScarico(1), {});
            const bool scritto = !std::filesystem::is_empty(cartella);
            std::exit(scritto ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
    EXPECT_TRUE(std::filesystem::is_empty(cartella));
    ::unsetenv(variabile);
}

TEST(FileScaricoDeathTest, TemporaryFolderOfAKilledProcessGoesAtTheNextStart) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    constexpr const char* variabile = "KORVEN_TEST_KILLED_FOLDER";
    std::optional<test::CartellaProvvisoria> propria;
    if (std::getenv(variabile) == nullptr) {
        propria.emplace();
        ::setenv(variabile, propria->percorso().c_str(), 1);
    }
    const std::string cartella = std::getenv(variabile);
    const auto lavora = [&cartella](bool finisce) {
        ::unsetenv("windir");
        ::setenv("TMPDIR", cartella.c_str(), 1);
        scriviScarico(1, {});
        if (!finisce) ::raise(SIGKILL);
        std::exit(0);
    };
    EXPECT_EXIT(lavora(false), testing::KilledBySignal(SIGKILL), "");
    EXPECT_FALSE(std::filesystem::is_empty(cartella));
    EXPECT_EXIT(lavora(true), testing::ExitedWithCode(0), "");
    EXPECT_TRUE(std::filesystem::is_empty(cartella));
    ::unsetenv(variabile);
}

TEST(FileScarico, HoldsTheCountAndSixNumbersARecord) {
    const Segmento linee[] = {{1, 2.5, 0.25, -0.5, 255, 0.05},
                              {0.12345678, 0, 0.00000001, 12345, 0, 0.01}};
    EXPECT_EQ(testoScarico(linee),
              "2\r\n"
              "1\r\n2.5\r\n0.25\r\n-.5\r\n255\r\n0.05\r\n"
              "0.1234568\r\n0\r\n0\r\n12345\r\n0\r\n0.01\r\n");
    EXPECT_EQ(testoScarico({}), "0\r\n");
}

TEST(FileScarico, ReadsBackToSevenDecimals) {
    const test::CartellaProvvisoria cartella;
    const std::vector<Segmento> linee = {{1, 2.5, 0.25, -0.5, 16711680, 0.05},
                                         {-0.1234567, -3, 4, 5, 0, 0}};
    scriviScarico(cartella / "linee.tmp", linee);
    EXPECT_EQ(leggiScarico(cartella / "linee.tmp"), linee);
}

TEST(FileScarico, BrokenFileIsAnErrorThatNamesTheLine) {
    const test::CartellaProvvisoria cartella;
    const std::pair<const char*, long> casi[] = {{"", 1},
                                                 {"due\r\n", 1},
                                                 {"-1\r\n", 1},
                                                 {"1.5\r\n", 1},
                                                 {"1\r\n1\r\n2\r\n3\r\n", 5},
                                                 {"1\r\n1\r\n2\r\n3\r\n4\r\n255\r\n0.0", 7},
                                                 {"1\r\n1\r\nx\r\n3\r\n4\r\n0\r\n1\r\n", 3},
                                                 {"1\r\n1\r\n2\r\n3\r\n4\r\n1e30\r\n1\r\n", 6}};
    for (const auto& [testo, riga] : casi) {
        test::metti(cartella / "linee.tmp", testo);
        try {
            (void)leggiScarico(cartella / "linee.tmp");
            ADD_FAILURE() << testo;
        } catch (const base::ErroreFile& errore) {
            EXPECT_EQ(errore.riga(), riga) << testo;
        }
    }
    EXPECT_THROW((void)leggiScarico(cartella / "manca.tmp"), base::ErroreFile);
}

TEST(FileScarico, FullDiskIsAnErrorWithItsReasonAndLeavesNoFile) {
    const test::CartellaProvvisoria cartella;
    const std::vector<Segmento> linee(100, Segmento{1, 2, 3, 4, 255, 0.1});
    const test::DiscoPieno disco(100);
    std::string motivo;
    try {
        scriviScarico(cartella / "linee.tmp", linee, disco);
    } catch (const base::ErroreFile& errore) {
        motivo = errore.what();
    }
    EXPECT_NE(motivo.find(test::nonCeSpazio), std::string::npos) << motivo;
    EXPECT_TRUE(std::filesystem::is_empty(cartella.percorso()));
}

TEST(FileScaricoDeathTest, SystemWithoutTemporaryFolderIsAnError) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            ::unsetenv("windir");
            ::setenv("TMPDIR", "/nessuna/cartella", 1);
            try {
                (void)percorsoFileScarico(1);
            } catch (const base::ErroreFile&) {
                std::exit(7);
            }
        },
        testing::ExitedWithCode(7), "");
}

}  // namespace
}  // namespace korven::plot
