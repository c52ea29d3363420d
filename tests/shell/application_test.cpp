#include "shell/application.hpp"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <QDialog>
#include <QTimer>
#include <clocale>

#include "base/file_error.hpp"

namespace korven::shell {
namespace {

// One application for all tests of the folder, on a screen that is not there: 800 by 800, unless
// the environment names the description of another.
class Schermo : public ::testing::Environment {
 public:
    void SetUp() override {
        const char* descritto = std::getenv("KORVEN_TEST_SCREEN");
        const std::string opzione =
            descritto != nullptr ? std::string(":configfile=") + descritto : std::string();
        ::setenv("QT_QPA_PLATFORM", ("offscreen" + opzione).c_str(), 1);
        ::setenv("XDG_CONFIG_HOME", "/dev/null", 1);  // no sizes of an earlier run
        static int argc = 1;
        static char nome[] = "shell_test";
        static char* argv[] = {nome, nullptr};
        applicazione_ = std::make_unique<Applicazione>(argc, argv);
        QApplication::setQuitOnLastWindowClosed(false);
        std::setlocale(LC_NUMERIC, "C");
    }
    void TearDown() override { applicazione_.reset(); }

 private:
    std::unique_ptr<Applicazione> applicazione_;
};

const auto* schermo = ::testing::AddGlobalTestEnvironment(new Schermo);

Applicazione& applicazione() { return *static_cast<Applicazione*>(qApp); }

TEST(ApplicazioneQt, CarriesAnErrorOutOfTheEventLoop) {
    QTimer::singleShot(0, [] { throw base::ErroreFile("muro.kvd", 2, "atteso un numero"); });
    try {
        applicazione().gira();
        FAIL() << "the error was swallowed";
    } catch (const base::ErroreFile& errore) {
        EXPECT_EQ(errore.riga(), 2);
    }
}

TEST(ApplicazioneQt, EndsTheModalWindowsOnTheWay) {
    bool chiusa = false;
    QTimer::singleShot(0, [&chiusa] {
        QDialog forma;
        QTimer::singleShot(0, [] { throw base::ErroreFile("rotto.kvd", 1, "atteso un numero"); });
        forma.exec();
        chiusa = true;
    });
    EXPECT_THROW(applicazione().gira(), base::ErroreFile);
    EXPECT_TRUE(chiusa);
}

TEST(ApplicazioneQt, EndsPlainlyWithoutAnError) {
    QTimer::singleShot(0, [] { QCoreApplication::exit(0); });
    EXPECT_EQ(applicazione().gira(), 0);
}

}  // namespace
}  // namespace korven::shell
