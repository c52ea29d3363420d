// All windows of the desktop program under keys and clicks at random. Each seed has a process of
// its own, and a folder of its own that holds all it may touch: this program once more.
//
// A seed is tried again, or another one, with more events, by
//   KORVEN_HANDS="SEED EVENTS LOG" desktop_test --gtest_filter='*ManiACaso*'
// which writes each event to the file LOG before it is sent.

#include <gtest/gtest.h>

#include <QProcess>
#include <filesystem>
#include <sstream>

#include "base/folders/program_folder.hpp"
#include "desktop/handled_session.hpp"
#include "support/form_setup.hpp"
#include "support/temporary_folder.hpp"

namespace korven::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* descritto = "KORVEN_HANDS";

// Ten thousand events of all seeds together under the sanitizers, which find what goes wrong
// unseen; elsewhere enough of them to see that the windows still answer.
constexpr int semi = 8;
#ifdef __SANITIZE_ADDRESS__
constexpr int eventiDiUnSeme = 1250;
#else
constexpr int eventiDiUnSeme = 200;
#endif

// The program folder without its programs, and projects of all kinds of walls.
void prepara(const std::string& cartella, int seme) {
    fs::create_directory(cartella + "/programma");
    for (const auto& uno : fs::directory_iterator(KORVEN_PROGRAM_FOLDER))
        if (uno.is_regular_file() && uno.file_size() < 1000000 && uno.path().has_extension())
            fs::copy(uno.path(), cartella + "/programma");
    fs::copy(KORVEN_PROGRAM_FOLDER "/data", cartella + "/programma/data",
             fs::copy_options::recursive);
    metti(cartella + "/programma/language.cfg", std::to_string(seme % 6 + 1) + "\r\n");
    fs::create_directory(cartella + "/lavori");
    const char* esempi[] = {"diaframma_due_ordini", "palancola_mensola", "pali_armati_staffe",
                            "paratia_lunga_incastro", "trincea_puntellata"};
    int n = 0;
    for (const char* esempio : esempi)
        fs::copy(std::string(KORVEN_EXAMPLES "/") + esempio + ".kvd",
                 cartella + "/lavori/prova" + std::to_string(n++) + ".kvd");
}

void qui(int seme, int eventi, const std::string& registro) {
    const CartellaProvvisoria cartella;
    prepara(cartella.percorso(), seme);
    for (const char* dove :
         {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR", "TMPDIR"})
        ::setenv(dove, cartella.percorso().c_str(), 1);
    ::setenv("CUPS_SERVER", "/inesistente", 1);  // no printer of this machine
    fs::current_path(cartella / "lavori");
    static int argc = 3;
    static char programma[] = "korven32", opzione[] = "-platform", schermo[] = "offscreen";
    static char* argv[] = {programma, opzione, schermo, nullptr};
    qInstallMessageHandler(taci);
    shell::Applicazione applicazione(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    base::impostaCartellaProgramma(cartella / "programma");
    SessioneAManiLibere sessione(seme, eventi, cartella.percorso(), registro);
    EXPECT_EQ(sessione.corri(applicazione), "");
    std::printf("%d sessions, %d ways back, %d comparisons; events went to", sessione.sessioni(),
                sessione.ritorni(), sessione.confronti());
    for (const auto& [classe, volte] : sessione.visite())
        std::printf("; %s %d", classe.c_str(), volte);
    std::printf("\n");
    fs::current_path("/");
}

std::string coda(const std::string& testo, int righe) {
    std::size_t da = testo.size();
    for (int n = 0; n <= righe && da != std::string::npos && da > 0; ++n)
        da = testo.rfind('\n', da - 1);
    return da == std::string::npos || da == 0 ? testo : testo.substr(da + 1);
}

class ManiACasoTest : public ::testing::TestWithParam<int> {};

TEST_P(ManiACasoTest, FindNoCrashAndNoWindowThatLies) {
    if (const char* chiesto = std::getenv(descritto); chiesto != nullptr) {
        int seme = 0, eventi = 0;
        std::string registro;
        std::istringstream(chiesto) >> seme >> eventi >> registro;
        return qui(seme, eventi, registro);
    }
    const CartellaProvvisoria cartella;
    const int seme = GetParam();
    auto ambiente = QProcessEnvironment::systemEnvironment();
    ambiente.insert(
        QLatin1String(descritto),
        QString::fromStdString(std::to_string(seme) + " " + std::to_string(eventiDiUnSeme) + " " +
                               cartella / "registro"));
    ambiente.insert(QLatin1String("LSAN_OPTIONS"),
                    QLatin1String("suppressions=" KORVEN_LEAKS ":print_suppressions=0"));
    QProcess figlio;
    figlio.setProcessEnvironment(ambiente);
    figlio.setProcessChannelMode(QProcess::MergedChannels);
    figlio.start("/proc/self/exe", {QStringLiteral("--gtest_filter=*Semi*/%1").arg(seme - 1)});
    const bool finito = figlio.waitForFinished(115000);
    if (!finito) figlio.kill();
    figlio.waitForFinished();
    const std::string detto = figlio.readAll().toStdString();
    const bool riuscito = finito && figlio.exitStatus() == QProcess::NormalExit &&
                          figlio.exitCode() == 0 &&
                          detto.find("[  PASSED  ] 1 test.") != std::string::npos;
    EXPECT_TRUE(riuscito) << "seed " << seme << (finito ? "" : ": no answer") << "\n"
                          << coda(contenuto(cartella / "registro"), 40) << coda(detto, 80);
    std::printf("%s", coda(detto, 6).c_str());
}

INSTANTIATE_TEST_SUITE_P(Semi, ManiACasoTest, ::testing::Range(1, semi + 1));

}  // namespace
}  // namespace korven::test
