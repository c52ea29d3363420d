#include "commands/start/user_folder.hpp"

#include <gtest/gtest.h>

#include "base/file_error.hpp"
#include "base/folders/program_folder.hpp"
#include "base/folders/user_data.hpp"
#include "support/document_ports.hpp"
#include "support/environment_variable.hpp"
#include "support/failing_disk.hpp"

namespace korven::commands {
namespace {

namespace fs = std::filesystem;
using test::contenuto;

// A program whose settings lie with the user, and its data elsewhere: the folder of this test's
// program stands for that of the delivered files.
class CartellaProgetti : public ::testing::Test {
 protected:
    CartellaProgetti() {
        fs::create_directories(casa / "impostazioni");
        base::impostaCartellaUtente(casa / "impostazioni");
    }
    ~CartellaProgetti() override { base::impostaCartellaUtente({}); }

    test::CartellaProvvisoria casa;
    test::VariabileAmbiente home{"HOME", casa.percorso()};
};

TEST_F(CartellaProgetti, LiesInTheHomeFolderWithoutAPointInItsName) {
    EXPECT_EQ(base::cartellaProgetti(), casa / "korven32");
    base::impostaCartellaUtente({});
    EXPECT_EQ(base::cartellaProgetti(), base::cartellaDati() + "/data");
}

TEST_F(CartellaProgetti, GetsTheExamplesOfALanguageAndKeepsWhatIsThere) {
    const test::CartellaProvvisoria esempi;
    const fs::path consegnati = fs::path(base::cartellaDati()) / "data" / "prova";
    fs::create_directories(consegnati);
    test::metti((consegnati / "uno.kvd").string(), "uno");
    test::metti((consegnati / "due.kvd").string(), "due");
    fs::create_directories(casa / "korven32");
    test::metti(casa / "korven32/due.kvd", "mio");
    EXPECT_EQ(preparaCartellaProgetti("prova"), casa / "korven32");
    EXPECT_EQ(contenuto(casa / "korven32/uno.kvd"), "uno");
    EXPECT_EQ(contenuto(casa / "korven32/due.kvd"), "mio");
    fs::remove_all(consegnati);
}

TEST_F(CartellaProgetti, IsThatOfTheDeliveredExamplesWhereNoneCanBeMade) {
    test::metti(casa / "korven32", "no folder");
    EXPECT_EQ(preparaCartellaProgetti("ita"), base::cartellaDati() + "/data/ita");
}

TEST(CartellaUtente, GivesWayToAFolderThatWasNamed) {
    const test::AmbienteDocumento ambiente;
    fs::remove_all(ambiente.programma.percorso());  // which nothing can be written into
    scegliCartellaProgramma();
    EXPECT_EQ(base::cartellaProgramma(), ambiente.programma.percorso());
}

}  // namespace
}  // namespace korven::commands
