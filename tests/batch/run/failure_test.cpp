#include "batch/run/failure.hpp"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/table.hpp"
#include "base/value_error.hpp"
#include "project/output_guard.hpp"
#include "project/project_data.hpp"
#include "support/temporary_folder.hpp"

namespace korven::batch {
namespace {

template <class Errore>
Esito dopo(const Errore& errore, const std::string& progetto = "muro.kvd") {
    Esito esito;
    esito.comando = "calcola";
    esito.progetto = progetto;
    esito.progettoLetto = true;
    esito.corsa = true;
    esito.calcolo.emplace();
    ::testing::internal::CaptureStderr();
    try {
        throw errore;
    } catch (const std::exception&) {
        analysis::GuardiaRisultati guardia;
        raccontaGuasto(guardia, esito);
    }
    EXPECT_EQ(::testing::internal::GetCapturedStderr(),
              "korven32c: " + esito.messaggi.at(0) + "\n");
    EXPECT_TRUE(esito.guasto);
    return esito;
}

TEST(RaccontaGuasto, GivesThreeForAllThatComesFromOutside) {
    const auto rotto = dopo(base::ErroreFile("muro.kvd", 7, "atteso un numero"));
    EXPECT_EQ(rotto.codice, ingressoRotto);
    EXPECT_EQ(rotto.messaggi[0], "muro.kvd, riga 7: atteso un numero");
    EXPECT_EQ(dopo(std::runtime_error("altro")).codice, ingressoRotto);
}

TEST(RaccontaGuasto, TellsHowToPlaceElsewhereWhatHasNoRoomBesideTheProject) {
    const auto detto = [](const std::string& file, const std::string& altrove) {
        Esito esito;
        esito.progetto = "/dati/muro.kvd";
        esito.altrove = altrove;
        ::testing::internal::CaptureStderr();
        try {
            throw base::ErroreScrittura(file, 0, "impossibile");
        } catch (const std::exception&) {
            analysis::GuardiaRisultati guardia;
            raccontaGuasto(guardia, esito);
        }
        (void)::testing::internal::GetCapturedStderr();
        EXPECT_EQ(esito.codice, ingressoRotto);
        return esito.messaggi.at(0);
    };
    EXPECT_EQ(detto("/dati/muro.OUT", "--uscita DIR: scrive altrove"),
              "/dati/muro.OUT: impossibile; --uscita DIR: scrive altrove");
    EXPECT_EQ(detto("/altri/muro.pdf", "--uscita DIR: scrive altrove"),
              "/altri/muro.pdf: impossibile");
    EXPECT_EQ(detto("/dati/muro.OUT", ""), "/dati/muro.OUT: impossibile");
}

TEST(RaccontaGuasto, TellsAnIndexBeyondATableInTheWordsOfTheTexts) {
    const auto esito = dopo(base::ErroreIndice(21, 20));
    EXPECT_EQ(esito.codice, ingressoRotto);
    EXPECT_EQ(esito.messaggi[0],
              "muro.kvd: i dati chiedono più righe di quante ne tiene una tabella (21 > 20)");
}

TEST(RaccontaGuasto, GivesOneForAValueTooLargeToBeShownAndLeavesNoResultFile) {
    const test::CartellaProvvisoria cartella;
    project::fileCorrente = cartella / "muro.kvd";
    test::metti(cartella / "muro.OUT", "risultati");
    const auto esito = dopo(base::ErroreValore(), project::fileCorrente);
    EXPECT_EQ(esito.codice, nonEseguito);
    EXPECT_FALSE(esito.calcolo);
    EXPECT_FALSE(base::esisteFile(cartella / "muro.OUT"));

    test::metti(cartella / "muro.OUT", "il progetto");
    project::progettiProtetti.letto = cartella / "muro.OUT";
    (void)dopo(base::ErroreValore(), project::fileCorrente);
    EXPECT_TRUE(base::esisteFile(cartella / "muro.OUT"));
    project::progettiProtetti = {};
    project::fileCorrente.clear();
}

TEST(AvvisaRelazioniRimaste, LeavesOutWhatThisRunWroteUnderAnyNameOfIt) {
    const test::CartellaProvvisoria cartella;
    project::fileCorrente = cartella / "muro.kvd";
    test::metti(cartella / "muro.TAB", "relazione");
    test::metti(cartella / "muro.txt", "vecchio");
    std::filesystem::create_directory_symlink(cartella.percorso(), cartella / "via");
    Esito esito;
    esito.fileScritti = {cartella / "via/muro.TAB"};
    ::testing::internal::CaptureStderr();
    avvisaRelazioniRimaste(esito);
    const std::string detto =
        "File di un calcolo precedente, non aggiornato da questo: " + (cartella / "muro.txt");
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), detto + "\n");
    EXPECT_EQ(esito.messaggi, std::vector<std::string>{detto});
    project::fileCorrente.clear();
}

}  // namespace
}  // namespace korven::batch
