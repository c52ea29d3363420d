#include "batch/run/series_progress.hpp"

#include <gtest/gtest.h>

#include <sstream>

namespace korven::batch {
namespace {

using namespace std::chrono_literals;
using Ora = AvanzamentoSerie::Orologio::time_point;

TEST(RaccontaMomento, SaysHowManyHowFastAndHowLongItStillTakes) {
    // 40,000 in 4 s: 10,000 a second, 60,000 left.
    EXPECT_EQ(raccontaMomento({40000, 100000, 40000, 4}),
              "40000 di 100000 varianti, 10000 al secondo, ancora 0:06");
    // Those of an interrupted study are no speed of this run: 10 a second.
    EXPECT_EQ(raccontaMomento({50100, 100000, 100, 10}),
              "50100 di 100000 varianti, 10 al secondo, ancora 1:23:10");
    EXPECT_EQ(raccontaMomento({3, 12, 3, 2}), "3 di 12 varianti, 1.5 al secondo, ancora 0:06");
    EXPECT_EQ(raccontaMomento({7, 10, 0, 5}), "7 di 10 varianti");
}

class Avanza : public ::testing::Test {
 protected:
    AvanzamentoSerie avanzamento(bool mostra, bool terminale) {
        return {uscita, mostra, terminale, 1000, 0, [this] { return ora; }};
    }
    std::ostringstream uscita;
    Ora ora{};
};

TEST_F(Avanza, WritesALineEveryTenSecondsIntoAFile) {
    auto a = avanzamento(true, false);
    for (int s = 0; s < 25; ++s) {
        ora += 1s;
        a.aggiorna(static_cast<std::uint64_t>(10 * (s + 1)));
    }
    a.chiudi();
    EXPECT_EQ(uscita.str(),
              "100 di 1000 varianti, 10 al secondo, ancora 1:30\n"
              "200 di 1000 varianti, 10 al secondo, ancora 1:20\n");
}

TEST_F(Avanza, DrawsABarOnATerminalAndEndsItsLine) {
    auto a = avanzamento(true, true);
    ora += 1s;
    a.aggiorna(500);
    ora += 1ms;  // too soon to be drawn again
    a.aggiorna(510);
    EXPECT_EQ(uscita.str(),
              "\r\x1b[K[##########..........] 500 di 1000 varianti, 500 al secondo, ancora 0:01");
    uscita.str("");
    ora += 999ms;
    a.aggiorna(1000);
    a.chiudi();
    EXPECT_NE(uscita.str().find("[####################] 1000 di 1000"), std::string::npos);
    EXPECT_EQ(uscita.str().back(), '\n');
}

TEST_F(Avanza, IsSilentWhereItIsToBe) {
    auto a = avanzamento(false, true);
    ora += 60s;
    a.aggiorna(500);
    a.chiudi();
    EXPECT_EQ(uscita.str(), "");
}

}  // namespace
}  // namespace korven::batch
