#include <pty.h>
#include <signal.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <chrono>
#include <thread>

#include "batch/batch_bench.hpp"

namespace korven::batch {
namespace {

using test::dice;

/// korven32c on a terminal of its own, which both of its outputs go to.
class SuTerminale : public test::BancoConsole {
 protected:
    void TearDown() override {
        if (processo_ > 0) {
            ::kill(processo_, SIGKILL);
            ::waitpid(processo_, nullptr, 0);
        }
        if (terminale_ >= 0) ::close(terminale_);
    }

    void avvia(std::vector<std::string> argomenti) {
        argomenti.insert(argomenti.begin(), KORVEN_CONSOLE);
        std::vector<char*> puntatori;
        for (auto& argomento : argomenti) puntatori.push_back(argomento.data());
        puntatori.push_back(nullptr);
        winsize misure{};
        misure.ws_row = 24;
        misure.ws_col = 80;
        processo_ = ::forkpty(&terminale_, nullptr, nullptr, &misure);
        ASSERT_GE(processo_, 0);
        if (processo_ == 0) {
            // An interrupt from the keyboard would throw away what was written just before it.
            termios modi{};
            ::tcgetattr(STDIN_FILENO, &modi);
            modi.c_lflag |= NOFLSH;
            ::tcsetattr(STDIN_FILENO, TCSANOW, &modi);
            test::dimenticaLingua();
            ::execv(puntatori[0], puntatori.data());
            ::_exit(127);
        }
    }

    /// What came to the terminal until the program let go of it.
    std::string leggi() const {
        std::string testo;
        char blocco[4096];
        for (ssize_t letti; (letti = ::read(terminale_, blocco, sizeof blocco)) > 0;)
            testo.append(blocco, static_cast<std::size_t>(letti));
        return testo;  // a closed terminal answers with an error
    }

    int attendi() {
        int stato = 0;
        ::waitpid(processo_, &stato, 0);
        processo_ = -1;
        return stato;
    }

    pid_t processo_ = -1;
    int terminale_ = -1;
};

int quanti(const std::string& testo, std::string_view parte) {
    int conto = 0;
    for (auto p = testo.find(parte); p != std::string::npos; p = testo.find(parte, p + 1)) ++conto;
    return conto;
}

TEST_F(SuTerminale, TheProgressOfAStageIsRedrawnInPlace) {
    avvia({"calcola", progetto, "--nseg", "10"});
    const std::string testo = leggi();
    const int stato = attendi();
    ASSERT_TRUE(WIFEXITED(stato));
    EXPECT_EQ(WEXITSTATUS(stato), 0) << testo;
    // Each iteration but the first of a stage draws over the one before.
    const int iterazioni = quanti(testo, "iter.=");
    EXPECT_GT(iterazioni, 2);
    EXPECT_EQ(quanti(testo, "\r\x1b[K"), iterazioni - 2) << testo;
    EXPECT_TRUE(dice(testo, "fase=1   iter.=1   Ymax=")) << testo;
    EXPECT_TRUE(dice(testo, "\r\x1b[Kfase=1   iter.=2   Ymax=")) << testo;
    EXPECT_TRUE(dice(testo, "\nfase=2   iter.=1   Ymax=")) << testo;  // a line of its own
}

TEST_F(SuTerminale, AWallThatMovesBeyondAllMeasureKeepsTheLineShort) {
    auto d = test::progettoSemplice();
    d.momentoTesta = 1e13;
    scrivi(d);
    avvia({"calcola", progetto, "--nseg", "10", "--max-iterazioni", "30"});
    const std::string testo = leggi();
    attendi();
    EXPECT_TRUE(dice(testo, "e+")) << testo;
    EXPECT_TRUE(dice(testo, "\r\nATTENZIONE! ")) << testo;  // on a line of its own
    const auto riga = testo.find("fase=1   iter.=1   Ymax=");
    ASSERT_NE(riga, std::string::npos);
    EXPECT_LE(testo.find_first_of("\r\n", riga) - riga, 60u) << testo;
}

TEST_F(SuTerminale, CtrlCStopsTheRunAndLeavesNoResultFile) {
    scrivi(test::progettoSenzaPace());
    avvia({"calcola", progetto, "--nseg", "10", "--max-iterazioni", "0"});
    char blocco[256];
    ASSERT_GT(::read(terminale_, blocco, sizeof blocco), 0);  // it iterates
    ASSERT_EQ(::write(terminale_, "\x03", 1), 1);
    const std::string testo = leggi();
    const int stato = attendi();
    ASSERT_TRUE(WIFEXITED(stato));
    EXPECT_EQ(WEXITSTATUS(stato), 1);
    EXPECT_TRUE(testo.ends_with("\r\nCalcolo interrotto dall'utente.\r\n"))
        << testo.substr(testo.size() - std::min<std::size_t>(testo.size(), 200));
    EXPECT_EQ(nomi(), "muro.kvd ");
}

// A terminal that takes nothing holds the program in the middle of an iteration: the waiting write
// must come back.
TEST_F(SuTerminale, AnInterruptFindsItsWayOutOfATerminalThatHangs) {
    scrivi(test::progettoSenzaPace());
    avvia({"calcola", progetto, "--nseg", "10", "--max-iterazioni", "0"});
    std::this_thread::sleep_for(std::chrono::milliseconds(700));  // the terminal fills up
    ASSERT_EQ(::waitpid(processo_, nullptr, WNOHANG), 0);
    ::kill(processo_, SIGINT);
    const int stato = attendi();
    ASSERT_TRUE(WIFEXITED(stato));
    EXPECT_EQ(WEXITSTATUS(stato), 1);
    EXPECT_EQ(nomi(), "muro.kvd ");
}

}  // namespace
}  // namespace korven::batch
