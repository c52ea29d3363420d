#include "shell/live/background_results.hpp"

#include <gtest/gtest.h>

#include "base/translated_texts.hpp"
#include "review/result_review.hpp"
#include "support/dialog_double.hpp"
#include "support/form_setup.hpp"
#include "support/sample_projects.hpp"

namespace korven::shell {
namespace {

class RisultatiInDisparteTest : public ::testing::Test {
 protected:
    void aspetta(std::size_t risposte) {
        ASSERT_TRUE(QTest::qWaitFor([&] { return numeri.size() >= risposte; }, 30000));
    }
    static RisultatiInDisparte::Domanda domanda(int numero, double lunghezza) {
        auto dati = test::progettoSemplice();
        dati.lunghezzaParatia = lunghezza;
        return {numero, dati, 20};
    }

    QApplication& app = test::applicazione();
    std::vector<int> numeri;
    review::Osservazioni ultime;
    RisultatiInDisparte revisione{[this](int numero, live::RisultatiLenti trovati) {
                                      numeri.push_back(numero);
                                      ultime = std::move(trovati.osservazioni);
                                  },
                                  nullptr};
};

TEST_F(RisultatiInDisparteTest, AnswersWithTheRemarksOnTheResults) {
    const auto questa = domanda(7, 7.5);
    revisione.chiedi(questa);
    EXPECT_TRUE(numeri.empty());  // nobody waits for it
    aspetta(1);
    EXPECT_EQ(numeri, std::vector<int>{7});
    const auto attese = review::esaminaRisultati(questa.dati, 20);
    ASSERT_FALSE(attese.empty());
    ASSERT_EQ(ultime.size(), attese.size());
    for (std::size_t i = 0; i < attese.size(); ++i) EXPECT_EQ(ultime[i].testo, attese[i].testo);
}

TEST_F(RisultatiInDisparteTest, FollowsUpTheLastOfTheQuestionsThatComeMeanwhile) {
    revisione.chiedi(domanda(1, 7.5));
    revisione.chiedi(domanda(2, 8));
    revisione.chiedi(domanda(3, 12));
    aspetta(2);
    EXPECT_EQ(numeri, (std::vector<int>{1, 3}));
}

TEST_F(RisultatiInDisparteTest, AnswersAtOnceInTheTranslatorsTestMode) {
    test::DialogoFinto dialogo;
    base::impostaModoProva(&dialogo);
    revisione.chiedi(domanda(4, 7.5));
    EXPECT_EQ(numeri, std::vector<int>{4});
    base::impostaModoProva(nullptr);
}

TEST_F(RisultatiInDisparteTest, CanGoWhileItComputes) {
    bool detto = false;
    {
        RisultatiInDisparte altra([&](int, const live::RisultatiLenti&) { detto = true; }, nullptr);
        altra.chiedi(domanda(1, 12));
    }
    QCoreApplication::processEvents();
    EXPECT_FALSE(detto);
}

}  // namespace
}  // namespace korven::shell
