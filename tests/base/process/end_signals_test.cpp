#include "base/process/end_signals.hpp"

#include <gtest/gtest.h>

namespace korven::base {
namespace {

TEST(SegnaliFine, HandsOutEachSignalOnce) {
    // Whoever runs the tests from a job in the background may have them ignored.
    const auto primaTerm = std::signal(SIGTERM, SIG_DFL), primaHup = std::signal(SIGHUP, SIG_DFL);
    {
        const SegnaliFine segnali;
        EXPECT_EQ(segnali.prossimo(), 0);
        std::raise(SIGTERM);
        std::raise(SIGHUP);
        EXPECT_EQ(segnali.prossimo(), SIGTERM);
        EXPECT_EQ(segnali.prossimo(), SIGHUP);
        EXPECT_EQ(segnali.prossimo(), 0);
    }
    std::signal(SIGTERM, primaTerm);
    std::signal(SIGHUP, primaHup);
}

TEST(SegnaliFine, PutsTheHandlersBackAndLeavesIgnoredOnesAlone) {
    const auto prima = std::signal(SIGHUP, SIG_IGN);
    {
        const SegnaliFine segnali;
        std::raise(SIGHUP);
        EXPECT_EQ(segnali.prossimo(), 0);
        std::raise(SIGTERM);
    }
    struct sigaction dopo {};
    ::sigaction(SIGTERM, nullptr, &dopo);
    EXPECT_EQ(dopo.sa_handler, SIG_DFL);
    EXPECT_EQ(std::signal(SIGHUP, prima), SIG_IGN);
}

}  // namespace
}  // namespace korven::base
