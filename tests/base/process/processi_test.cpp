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
bool comes(const std::string& path) {
    for (int i = 0; i < 500; ++i) {
        if (std::filesystem::exists(path)) return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return false;
}

TEST(Processi, ReturnTheExitCodeOfAProgramTheyWaitedFor) {
    Processi processes;
    EXPECT_EQ(processes.esegui("/bin/sh", {"-c", "exit 0"}), 0);
    EXPECT_EQ(processes.esegui("/bin/sh", {"-c", "exit 3"}), 3);
}

TEST(Processi, KnowAProgramThatDoesNotStartOrIsEndedByForce) {
    const test::CartellaProvvisoria folder;
    test::metti(folder / "testo", "nessun programma");
    Processi processes;
    EXPECT_EQ(processes.esegui(folder / "manca", {}), std::nullopt);
    EXPECT_EQ(processes.esegui(folder / "testo", {}), std::nullopt);
    EXPECT_FALSE(processes.avvia(folder / "manca", {}, Finestra::normale));
    EXPECT_EQ(processes.esegui("/bin/sh", {"-c", "kill -9 $$"}), std::nullopt);
}

TEST(Processi, ServeTheWindowSystemWhileTheyWait) {
    int served = 0;
    Processi processes([&] { ++served; });
    EXPECT_EQ(processes.esegui("/bin/sh", {"-c", "sleep 0.1"}), 0);
    EXPECT_GE(served, 2);
}

TEST(Processi, HandArgumentsOverWholeAndDoNotWait) {
    const test::CartellaProvvisoria folder;
    const std::string awkward = folder / "un \"nome\" $HOME 'di' file";
    Processi processes;
    const std::string script = "until [ -e \"$1\" ]; do sleep 0.01; done; : > \"$2\"";
    EXPECT_TRUE(processes.avvia("/bin/sh", {"-c", script, "sh", folder / "go", awkward},
                                Finestra::massima));
    test::metti(folder / "go", "");  // it has come back while the program waits for this
    EXPECT_TRUE(comes(awkward));
}

class DesktopProgram : public testing::Test {
 protected:
    DesktopProgram() : path_(std::getenv("PATH")) {
        ::setenv("PATH", (folder.percorso() + ":/usr/bin:/bin").c_str(), 1);
    }
    ~DesktopProgram() override { ::setenv("PATH", path_.c_str(), 1); }
    void opener(const std::string& script) {
        test::metti(folder / "xdg-open", "#!/bin/sh\n" + script + "\n");
        ::chmod((folder / "xdg-open").c_str(), 0755);
    }
    test::CartellaProvvisoria folder;

 private:
    std::string path_;
};

TEST_F(DesktopProgram, IsGivenTheFile) {
    opener("printf %s \"$1\" > \"$0.seen\"");
    EXPECT_TRUE(Processi().apri("/tmp/a b.txt"));
    EXPECT_EQ(test::contenuto(folder / "xdg-open.seen"), "/tmp/a b.txt");
}

TEST_F(DesktopProgram, MayBeMissing) {
    opener("exit 3");
    EXPECT_FALSE(Processi().apri("/tmp/a.txt"));
}

TEST_F(DesktopProgram, CountsAsFoundWhileItRuns) {
    opener("sleep 4");
    EXPECT_TRUE(Processi({}, std::chrono::milliseconds(50)).apri("/tmp/a.txt"));
}

}  // namespace
}  // namespace korven::base
