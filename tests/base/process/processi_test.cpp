#include "base/process/processi.hpp"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <thread>

#include "support/temporary_folder.hpp"

namespace korven::base {
namespace {

// Waits for something that another program does.
bool appare(const std::string& percorso) {
    for (int i = 0; i < 500; ++i) {
        if (std::filesystem::exists(percorso)) return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return false;
}

TEST(Processi, ReturnTheExitCodeOfAProgramTheyWaitedFor) {
    Processi processi;
    EXPECT_EQ(processi.esegui("/bin/sh", {"-c", "exit 0"}), 0);
    EXPECT_EQ(processi.esegui("/bin/sh", {"-c", "exit 3"}), 3);
}

TEST(Processi, KnowAProgramThatDoesNotStartOrIsEndedByForce) {
    const test::CartellaProvvisoria cartella;
    test::metti(cartella / "testo", "nessun programma");
    Processi processi;
    EXPECT_EQ(processi.esegui(cartella / "manca", {}), std::nullopt);
    EXPECT_EQ(processi.esegui(cartella / "testo", {}), std::nullopt);
    EXPECT_FALSE(processi.avvia(cartella / "manca", {}, Finestra::normale));
    EXPECT_EQ(processi.esegui("/bin/sh", {"-c", "kill -9 $$"}), std::nullopt);
}

TEST(Processi, ServeTheWindowSystemWhileTheyWait) {
    int serviti = 0;
    Processi processi([&] { ++serviti; });
    EXPECT_EQ(processi.esegui("/bin/sh", {"-c", "sleep 0.1"}), 0);
    EXPECT_GE(serviti, 2);
}

TEST(Processi, HandArgumentsOverWholeAndDoNotWait) {
    const test::CartellaProvvisoria cartella;
    const std::string scomodo = cartella / "un \"nome\" $HOME 'di' file";
    Processi processi;
    const std::string comandi = "until [ -e \"$1\" ]; do sleep 0.01; done; : > \"$2\"";
    EXPECT_TRUE(processi.avvia("/bin/sh", {"-c", comandi, "sh", cartella / "go", scomodo},
                               Finestra::massima));
    test::metti(cartella / "go", "");  // it has come back while the program waits for this
    EXPECT_TRUE(appare(scomodo));
}

class ProgrammaDelDesktop : public testing::Test {
 protected:
    ProgrammaDelDesktop() : percorsi_(std::getenv("PATH")) {
        ::setenv("PATH", (cartella.percorso() + ":/usr/bin:/bin").c_str(), 1);
    }
    ~ProgrammaDelDesktop() override { ::setenv("PATH", percorsi_.c_str(), 1); }
    void apritore(const std::string& comandi) {
        test::metti(cartella / "xdg-open", "#!/bin/sh\n" + comandi + "\n");
        ::chmod((cartella / "xdg-open").c_str(), 0755);
    }
    test::CartellaProvvisoria cartella;

 private:
    std::string percorsi_;
};

TEST_F(ProgrammaDelDesktop, IsGivenTheFile) {
    apritore("printf %s \"$1\" > \"$0.seen\"");
    EXPECT_TRUE(Processi().apri("/tmp/a b.txt"));
    EXPECT_EQ(test::contenuto(cartella / "xdg-open.seen"), "/tmp/a b.txt");
}

TEST_F(ProgrammaDelDesktop, MayBeMissing) {
    apritore("exit 3");
    EXPECT_FALSE(Processi().apri("/tmp/a.txt"));
}

TEST_F(ProgrammaDelDesktop, CountsAsFoundWhileItRuns) {
    apritore("sleep 4");
    EXPECT_TRUE(Processi({}, std::chrono::milliseconds(50)).apri("/tmp/a.txt"));
}

// What has ended is no longer in the table of the system once the next program starts.
TEST(Processi, LeaveNoEndedProgramBehind) {
    const test::CartellaProvvisoria cartella;
    Processi processi;
    const std::string segno = cartella / "fatto";
    ASSERT_TRUE(processi.avvia("/bin/sh",
                               {"-c", "echo $$ > " + segno + ".x; mv " + segno + ".x " + segno},
                               Finestra::normale));
    ASSERT_TRUE(appare(segno));
    const std::string numero = test::contenuto(segno);
    const std::string processo = "/proc/" + numero.substr(0, numero.find('\n'));
    const auto via = [&] {
        for (int i = 0; i < 500; ++i) {
            EXPECT_TRUE(processi.avvia("/bin/true", {}, Finestra::normale));
            if (!std::filesystem::exists(processo)) return true;
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        return false;
    };
    EXPECT_TRUE(via());
}

}  // namespace
}  // namespace korven::base
