#include "base/process/closed_pipe.hpp"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

namespace korven::base {
namespace {

// Each in a process of its own, whose end tells: the signals of the tests stay as they are.
TEST(TuboChiuso, FailsAWriteAndEndsNothing) {
    EXPECT_EXIT(
        {
            std::signal(SIGPIPE, SIG_DFL);
            resistiAiTubiChiusi();
            int tubo[2];
            if (::pipe(tubo) != 0) ::_exit(8);
            ::close(tubo[0]);
            const bool fallita = ::write(tubo[1], "x", 1) < 0 && errno == EPIPE;
            ::_exit(fallita ? 0 : 9);
        },
        ::testing::ExitedWithCode(0), "");
}

// What is told must not land in the next file that is opened.
TEST(CanaliChiusi, FailEveryUseAndTakeNoFile) {
    EXPECT_EXIT(
        {
            for (const int canale : {0, 1, 2}) ::close(canale);
            occupaCanaliChiusi();
            const int file = ::open("/dev/null", O_RDWR);
            char uno = 0;
            const bool muti =
                ::read(0, &uno, 1) < 0 && ::write(1, "x", 1) < 0 && ::write(2, "x", 1) < 0;
            ::_exit(file > 2 && muti ? 0 : 9);
        },
        ::testing::ExitedWithCode(0), "");
}

TEST(CanaliChiusi, LeaveThoseThatAreOpen) {
    EXPECT_EXIT(
        {
            ::close(1);
            occupaCanaliChiusi();
            ::_exit(::write(1, "x", 1) < 0 && ::write(2, "x", 1) == 1 ? 0 : 9);
        },
        ::testing::ExitedWithCode(0), "x");
}

TEST(TuboChiuso, IsMetAsEverByAStartedProgram) {
    EXPECT_EXIT(
        {
            std::signal(SIGPIPE, SIG_DFL);
            resistiAiTubiChiusi();
            ::execl("/bin/sh", "sh", "-c", "kill -PIPE $$; exit 9", nullptr);
            ::_exit(8);
        },
        ::testing::KilledBySignal(SIGPIPE), "");
}

}  // namespace
}  // namespace korven::base
