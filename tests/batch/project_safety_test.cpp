#include "batch/batch_bench.hpp"
#include "support/failing_disk.hpp"

// Names, links and folders that lead an output to the project itself.

namespace korven::batch {
namespace {

namespace fs = std::filesystem;
using test::contenuto;
using test::dice;
using test::metti;

class ProgettoAlSicuro : public test::BancoConsole {
 protected:
    // The command is refused before anything happens to any file of the folder.
    void aspettaRifiuto(const std::vector<std::string>& argomenti, const std::string& file,
                        const std::string& colpito = {}) {
        const auto prima = this->file();
        const auto esito = console(argomenti);
        EXPECT_EQ(esito.codice, 1);
        EXPECT_TRUE(dice(esito.errori, "prenderebbe il posto del progetto")) << esito.errori;
        const std::string quale = colpito.empty() ? "" : " (" + colpito + ")";
        EXPECT_TRUE(dice(esito.errori, ": " + file + quale + "\n")) << esito.errori;
        EXPECT_TRUE(esito.uscita.empty());
        EXPECT_EQ(this->file(), prima);
    }
    // A review says beforehand what a run would refuse, in the same words.
    void aspettaRilievo(const std::string& detto, std::vector<std::string> altri = {}) {
        const auto prima = file();
        const auto esito = esegui("verifica", altri);
        EXPECT_EQ(esito.codice, 1);
        EXPECT_TRUE(esito.uscita.starts_with("impedisce il calcolo: ")) << esito.uscita;
        EXPECT_TRUE(dice(esito.uscita, detto)) << esito.uscita;
        EXPECT_TRUE(dice(esito.uscita, "Il progetto non può essere calcolato.")) << esito.uscita;
        altri.emplace_back("--json");
        EXPECT_TRUE(dice(esegui("verifica", altri).uscita, "\"calcolabile\": false"));
        EXPECT_EQ(file(), prima);
    }
    void rinomina(const std::string& nome) {
        fs::rename(progetto, cartella / nome);
        progetto = cartella / nome;
    }
};

TEST_F(ProgettoAlSicuro, UnderTheNameOfItsResultFile) {
    rinomina("muro.OUT");
    for (const char* comando : {"calcola", "relazione"})
        aspettaRifiuto({comando, progetto}, progetto);
}

TEST_F(ProgettoAlSicuro, UnderTheNameOfItsReportOrText) {
    rinomina("muro.TAB");
    aspettaRifiuto({"relazione", progetto}, progetto);
    EXPECT_EQ(esegui("calcola").codice, 0);  // which writes no report
    fs::remove(cartella / "muro.OUT");
    rinomina("muro.txt");
    aspettaRifiuto({"relazione", progetto, "--txt"}, progetto);
    EXPECT_EQ(esegui("relazione").codice, 0);
}

TEST_F(ProgettoAlSicuro, BehindLinksThatHaveTheNamesOfOutputs) {
    for (const char* nome : {"muro.OUT", "muro.TAB", "muro.txt"})
        for (const bool simbolico : {true, false}) {
            if (simbolico)
                fs::create_symlink(progetto, cartella / nome);
            else
                fs::create_hard_link(progetto, cartella / nome);
            aspettaRifiuto({"relazione", progetto, "--txt"}, cartella / nome, progetto);
            fs::remove(cartella / nome);
        }
}

TEST_F(ProgettoAlSicuro, WhenUscitaLeadsBackToItsFolder) {
    rinomina("muro.OUT");
    fs::create_directory_symlink(cartella.percorso(), cartella / "via");
    for (const std::string& dove : {cartella.percorso(), cartella / "via", cartella / "via/../"})
        if (fs::equivalent(dove, cartella.percorso()))
            aspettaRifiuto({"calcola", progetto, "--uscita", dove}, progetto);
}

TEST_F(ProgettoAlSicuro, WhenUscitaHoldsALinkToIt) {
    fs::create_directory(cartella / "fuori");
    fs::create_symlink(progetto, cartella / "fuori/muro.OUT");
    aspettaRifiuto({"calcola", progetto, "--uscita", cartella / "fuori"},
                   cartella / "fuori/muro.OUT", progetto);
}

TEST_F(ProgettoAlSicuro, AlsoThatOfTheSameNameInTheFolderForResults) {
    fs::create_directory(cartella / "fuori");
    metti(cartella / "fuori/muro.kvd", "un altro progetto");
    fs::create_symlink(cartella / "fuori/muro.kvd", cartella / "fuori/muro.OUT");
    aspettaRifiuto({"calcola", progetto, "--uscita", cartella / "fuori"},
                   cartella / "fuori/muro.OUT", cartella / "fuori/muro.kvd");
    EXPECT_EQ(contenuto(cartella / "fuori/muro.kvd"), "un altro progetto");
}

TEST_F(ProgettoAlSicuro, WhoseNameIsTooShortForTheRule) {
    rinomina("ab");
    const auto esito = esegui("relazione");
    EXPECT_EQ(esito.codice, 1);
    EXPECT_TRUE(dice(esito.errori, "meno di tre caratteri")) << esito.errori;
    EXPECT_EQ(nomi(), "ab ");
    EXPECT_FALSE(fs::exists(cartella.percorso() + "OUT"));
}

TEST_F(ProgettoAlSicuro, IsTheOneThatTheSystemWouldOpenThroughALink) {
    fs::create_directories(cartella / "altra/sotto");
    fs::copy(progetto, cartella / "altra/muro.kvd");
    metti(progetto, "rotto");
    fs::create_directory_symlink(cartella / "altra/sotto", cartella / "via");
    const auto esito = console({"calcola", cartella / "via/../muro.kvd", "--nseg", "10"});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_TRUE(fs::exists(cartella / "altra/muro.OUT"));
    EXPECT_EQ(nomi(), "muro.kvd ");
}

TEST_F(ProgettoAlSicuro, IsWatchedOverByAReviewTooUnlessUscitaLeadsElsewhere) {
    const std::string posto = "prenderebbe il posto del progetto";
    fs::create_symlink(progetto, cartella / "muro.OUT");
    aspettaRilievo(posto);
    EXPECT_EQ(esegui("verifica", {"--uscita", cartella / "fuori"}).codice, 0);
    fs::remove(cartella / "muro.OUT");
    rinomina("muro.OUT");
    aspettaRilievo(posto + ", i calcoli");
    fs::create_directory(cartella / "fuori");
    fs::create_symlink(progetto, cartella / "fuori/muro.OUT");
    aspettaRilievo(posto, {"--uscita", cartella / "fuori"});
    rinomina("ab");
    aspettaRilievo("meno di tre caratteri");
    aspettaRilievo("meno di tre caratteri", {"--uscita", cartella / "fuori"});
}

TEST_F(ProgettoAlSicuro, OfTheSameNameInTheFolderForResultsIsSeenByAReviewToo) {
    fs::create_directory(cartella / "fuori");
    metti(cartella / "fuori/muro.kvd", "un altro progetto");
    fs::create_symlink(cartella / "fuori/muro.kvd", cartella / "fuori/muro.OUT");
    aspettaRilievo(cartella / "fuori/muro.OUT", {"--uscita", cartella / "fuori"});
}

class RelazioneRimasta : public test::BancoConsole {
 protected:
    static constexpr const char* avviso =
        "File di un calcolo precedente, non aggiornato da questo: ";

    void SetUp() override {
        BancoConsole::SetUp();
        ASSERT_EQ(esegui("relazione", {"--txt"}).codice, 0);
        auto d = test::progettoSemplice();
        d.rigidezzaEJ = 0;
        scrivi(d);
    }
};

TEST_F(RelazioneRimasta, IsToldAfterARunThatWasRefused) {
    for (const char* comando : {"calcola", "relazione"}) {
        const auto esito = esegui(comando);
        EXPECT_EQ(esito.codice, 1);
        for (const char* nome : {"muro.TAB", "muro.txt"})
            EXPECT_TRUE(dice(esito.errori, avviso + (cartella / nome))) << esito.errori;
    }
    EXPECT_TRUE(dice(esegui("calcola", {"--json"}).uscita, avviso));
    EXPECT_FALSE(dice(esegui("verifica").errori, avviso));
}

TEST_F(RelazioneRimasta, IsToldAfterAStoppedRunAndOneThatFoundNoRoom) {
    scrivi(test::progettoSenzaPace());
    EXPECT_TRUE(dice(esegui("calcola", {"--max-iterazioni", "50"}).errori, avviso));
    scrivi(test::progettoSemplice());
    const auto esito = esegui("calcola", test::DiscoPieno(100));
    EXPECT_EQ(esito.codice, 3);
    EXPECT_TRUE(dice(esito.errori, avviso)) << esito.errori;
}

TEST_F(RelazioneRimasta, IsNoWordWhenThereIsNoneOrTheRunWentWell) {
    fs::remove(cartella / "muro.TAB");
    fs::remove(cartella / "muro.txt");
    EXPECT_FALSE(dice(esegui("relazione").errori, "precedente"));
    scrivi(test::progettoSemplice());
    EXPECT_FALSE(dice(esegui("relazione").errori, "precedente"));
}

TEST_F(RelazioneRimasta, IsNotMixedUpWithOneThatLandsElsewhere) {
    fs::create_directory(cartella / "v1.2");
    scrivi(test::progettoSemplice());
    fs::rename(progetto, cartella / "v1.2/muro.kvd");
    const std::vector<std::string> comando = {"relazione", cartella / "v1.2/muro.kvd"};
    const auto esito = console(comando);
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_TRUE(fs::exists(cartella / "v1.TAB"));  // the required rule
    EXPECT_TRUE(dice(esito.errori, "Il nome della relazione termina al primo punto del percorso: " +
                                       (cartella / "v1.TAB")))
        << esito.errori;
    EXPECT_FALSE(dice(console({"calcola", cartella / "v1.2/muro.kvd"}).errori, "primo punto"));
}

// A folder of outputs, in which no project is ever opened.
TEST_F(ProgettoAlSicuro, LiesElsewhereThanWhatAKilledProgramLeftBesideAnOutput) {
    const std::string altrove = cartella / "uscite";
    fs::create_directory(altrove);
    const std::vector<std::vector<std::string>> comandi = {
        {"imposta", progetto, "sovraccMonte=5", "--uscita", altrove + "/nuovo.kvd"},
        {"campi", progetto, "--csv", altrove + "/campi.csv"},
        {"serie", progetto, "--griglia", "sovraccMonte=0:5:5", "--uscita", altrove + "/studio.csv"},
        {"sezione", progetto, "--dxf", altrove + "/sezione.dxf"}};
    for (const auto& comando : comandi) {
        metti(altrove + "/.korven-a1B2c3", "metà");
        const auto esito = console(comando);
        EXPECT_EQ(esito.codice, 0) << esito.errori;
        EXPECT_FALSE(fs::exists(altrove + "/.korven-a1B2c3")) << comando.front();
        EXPECT_TRUE(fs::exists(comando.back()));
    }
}

}  // namespace
}  // namespace korven::batch
