#include "plot/drive_files.hpp"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/file_error.hpp"
#include "support/failing_disk.hpp"
#include "support/temporary_folder.hpp"

namespace korven::plot {
namespace {

namespace fs = std::filesystem;
using test::contenuto;

constexpr const char* windir = "C:\\WINDOWS";

// In the working folder of a system without drives the files lie under their whole names. Each
// object acts as a process: locks part them just as well.
class FileDiUnitaTest : public testing::Test {
 protected:
    FileDiUnitaTest() { fs::current_path(cartella.percorso()); }
    ~FileDiUnitaTest() override { fs::current_path(prima); }

    const test::CartellaProvvisoria cartella;
    const fs::path prima = fs::current_path();
};

TEST_F(FileDiUnitaTest, AreThoseOfTheirNumbersWhenNobodyElseHasThem) {
    FileDiUnita file;
    EXPECT_EQ(file.percorso(windir, 3), "C:\\plttmp3.tmp");
    EXPECT_TRUE(fs::is_empty(cartella.percorso()));
    file.scrivi(windir, 1, "uno");
    file.scrivi(windir, 2, "due e più");
    file.scrivi(windir, 2, "due");
    EXPECT_EQ(contenuto("C:\\plttmp1.tmp"), "uno");
    EXPECT_EQ(contenuto("C:\\plttmp2.tmp"), "due");
    EXPECT_EQ(file.percorso(windir, 2), "C:\\plttmp2.tmp");
}

TEST_F(FileDiUnitaTest, OfTwoProcessesHaveNumbersOfTheirOwn) {
    FileDiUnita nostri, altrui;
    nostri.scrivi(windir, 1, "nostro 1");
    altrui.scrivi(windir, 1, "altrui 1");
    nostri.scrivi(windir, 2, "nostro 2");
    altrui.scrivi(windir, 2, "altrui 2");
    EXPECT_EQ(nostri.percorso(windir, 2), "C:\\plttmp3.tmp");
    for (int n = 1; n <= 2; ++n) {
        EXPECT_EQ(contenuto(nostri.percorso(windir, n)), "nostro " + std::to_string(n));
        EXPECT_EQ(contenuto(altrui.percorso(windir, n)), "altrui " + std::to_string(n));
    }
}

TEST_F(FileDiUnitaTest, LeaveNothingOnAFullDiskAndKeepTheirNumber) {
    FileDiUnita file;
    const test::DiscoPieno disco(2);
    EXPECT_THROW(file.scrivi(windir, 1, "troppo", disco), base::ErroreScrittura);
    EXPECT_TRUE(fs::is_empty(cartella.percorso()));
    file.scrivi(windir, 1, "uno");
    EXPECT_EQ(contenuto("C:\\plttmp1.tmp"), "uno");
}

TEST_F(FileDiUnitaTest, OfAProcessThatHasEndedAreWrittenOver) {
    {
        FileDiUnita finito;
        finito.scrivi(windir, 1, "di prima");
    }
    EXPECT_EQ(contenuto("C:\\plttmp1.tmp"), "di prima") << "never deleted";
    FileDiUnita file;
    file.scrivi(windir, 1, "nuovo");
    EXPECT_EQ(contenuto("C:\\plttmp1.tmp"), "nuovo");
}

TEST_F(FileDiUnitaTest, FollowNoLink) {
    test::metti(cartella / "altrui", "da tenere");
    fs::create_symlink("altrui", "C:\\plttmp1.tmp");
    fs::create_symlink("nessuno", "C:\\plttmp2.tmp");
    FileDiUnita file;
    file.scrivi(windir, 1, "linee");
    EXPECT_EQ(file.percorso(windir, 1), "C:\\plttmp3.tmp");
    EXPECT_EQ(contenuto(cartella / "altrui"), "da tenere");
    EXPECT_FALSE(fs::exists("nessuno"));
}

TEST_F(FileDiUnitaTest, ThatWereRemovedMeanwhileAreMadeAnew) {
    FileDiUnita file;
    file.scrivi(windir, 1, "uno");
    fs::remove("C:\\plttmp1.tmp");
    file.scrivi(windir, 1, "di nuovo");
    EXPECT_EQ(contenuto("C:\\plttmp1.tmp"), "di nuovo");
}

TEST_F(FileDiUnitaTest, ThatCannotBeWrittenAreAnError) {
    fs::create_directory("C:\\plttmp1.tmp");
    FileDiUnita file;
    EXPECT_THROW(file.scrivi(windir, 1, "linee"), base::ErroreScrittura);
}

TEST_F(FileDiUnitaTest, OfAnotherDriveOrFolderAreOthers) {
    FileDiUnita file;
    file.scrivi(windir, 1, "c");
    file.scrivi("D:\\WINDOWS", 1, "d");
    fs::create_directory("sotto");
    fs::current_path("sotto");
    file.scrivi(windir, 1, "sotto");
    fs::current_path("..");
    EXPECT_EQ(contenuto("C:\\plttmp1.tmp"), "c");
    EXPECT_EQ(contenuto("D:\\plttmp1.tmp"), "d");
    EXPECT_EQ(contenuto("sotto/C:\\plttmp1.tmp"), "sotto");
}

}  // namespace
}  // namespace korven::plot
