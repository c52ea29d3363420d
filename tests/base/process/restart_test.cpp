#include "base/process/restart.hpp"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>

namespace korven::base {
namespace {

constexpr const char* segno = "KORVEN_TEST_RESTARTED";
constexpr int ripartito = 23;

// Run once more by the test below: with the arguments and the environment that it was given.
TEST(Ricomincia, ReachesTheProgramOnceMore) {
    if (std::getenv(segno) != nullptr) ::_exit(ripartito);
}

TEST(Ricomincia, StartsTheSameProgramInItsPlace) {
    const pid_t figlio = ::fork();
    ASSERT_GE(figlio, 0);
    if (figlio == 0) {
        ::setenv(segno, "1", 1);
        ricomincia({"korven32", "--gtest_filter=Ricomincia.ReachesTheProgramOnceMore"});
        ::_exit(1);
    }
    int esito = 0;
    ASSERT_EQ(::waitpid(figlio, &esito, 0), figlio);
    EXPECT_TRUE(WIFEXITED(esito));
    EXPECT_EQ(WEXITSTATUS(esito), ripartito);
}

}  // namespace
}  // namespace korven::base
