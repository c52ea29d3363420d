#include "shell/live/background_work.hpp"

#include <gtest/gtest.h>

#include <vector>

#include "support/form_setup.hpp"

namespace korven::shell {
namespace {

class LavoroInDisparteTest : public ::testing::Test {
 protected:
    // Doubles its question; 0 goes on until it is stopped.
    static int doppio(int domanda, const std::atomic<bool>& fermato) {
        while (domanda == 0 && !fermato) std::this_thread::yield();
        return 2 * domanda;
    }

    QApplication& app = test::applicazione();
    std::vector<std::pair<int, int>> risposte;
    std::function<void(int)> poi;
    LavoroInDisparte<int, int> lavoro{doppio,
                                      [this](int domanda, int risposta) {
                                          risposte.emplace_back(domanda, risposta);
                                          if (poi) poi(domanda);
                                      },
                                      nullptr};
};

TEST_F(LavoroInDisparteTest, TellsNothingOfWhatWasStoppedAndGoesOnWithTheNextQuestion) {
    lavoro.chiedi(0);
    lavoro.chiedi(3);
    lavoro.ferma();
    lavoro.chiedi(5);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !risposte.empty(); }, 30000));
    QCoreApplication::processEvents();
    EXPECT_EQ(risposte, (std::vector<std::pair<int, int>>{{5, 10}}));
}

TEST_F(LavoroInDisparteTest, TakesAQuestionThatAnAnswerLeadsToBeforeOneThatHasWaited) {
    poi = [this](int domanda) {
        if (domanda == 1) lavoro.chiedi(7);
    };
    lavoro.chiedi(1);
    lavoro.chiedi(4);
    ASSERT_TRUE(QTest::qWaitFor([&] { return risposte.size() >= 2; }, 30000));
    QCoreApplication::processEvents();
    EXPECT_EQ(risposte, (std::vector<std::pair<int, int>>{{1, 2}, {7, 14}}));
}

TEST_F(LavoroInDisparteTest, IsStoppedWhereItsWindowGoes) {
    {
        LavoroInDisparte<int, int> altro(
            doppio, [](int, int) { ADD_FAILURE() << "nobody waits for it"; }, nullptr);
        altro.chiedi(0);
    }
    QCoreApplication::processEvents();
}

}  // namespace
}  // namespace korven::shell
