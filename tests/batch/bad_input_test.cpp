#include <sys/stat.h>

#include "batch/batch_bench.hpp"
#include "support/failing_disk.hpp"
#include "support/sample_sections.hpp"

namespace korven::batch {
namespace {

namespace fs = std::filesystem;
using test::Ambiente;
using test::contenuto;
using test::dice;
using test::metti;
using test::progettoSemplice;

class IngressoRotto : public test::BancoConsole {
 protected:
    [[nodiscard]] std::string nonScritto(const std::string& nome) const {
        return cartella / nome + ": impossibile scrivere il file (" + test::nonCeSpazio + ")";
    }
};

TEST_F(IngressoRotto, AMissingProjectIsToldWithItsPathAndTheReason) {
    for (const char* comando : {"calcola", "relazione", "verifica"}) {
        const auto esito = console({comando, cartella / "altro.kvd"});
        EXPECT_EQ(esito.codice, 3);
        EXPECT_TRUE(dice(esito.errori, cartella / "altro.kvd")) << esito.errori;
        EXPECT_TRUE(dice(esito.errori, "il file o la cartella non esiste")) << esito.errori;
        EXPECT_TRUE(esito.uscita.empty());
    }
}

TEST_F(IngressoRotto, AFolderIsNoProject) {
    fs::create_directory(cartella / "muri.kvd");
    const auto esito = console({"calcola", cartella / "muri.kvd"});
    EXPECT_EQ(esito.codice, 3);
    EXPECT_TRUE(dice(esito.errori, cartella / "muri.kvd: ")) << esito.errori;
    EXPECT_TRUE(dice(esito.errori, "è una cartella")) << esito.errori;
}

TEST_F(IngressoRotto, AProjectThatMayNotBeReadIsToldWithTheReason) {
    fs::permissions(progetto, fs::perms::none);
    const auto esito = esegui("calcola", {}, {.senzaPrivilegi = true});
    if (esito.codice == 127) GTEST_SKIP() << "root without the right to give up its rights";
    EXPECT_EQ(esito.codice, 3);
    EXPECT_TRUE(dice(esito.errori, "permesso negato")) << esito.errori;
}

TEST_F(IngressoRotto, ABrokenLineIsToldWithItsNumberAndWhatWasExpectedAndNothingIsMade) {
    const std::string intero = contenuto(progetto);
    const auto primeRighe = [&](int quante) {
        std::size_t fine = 0;
        for (int i = 0; i < quante; ++i) fine = intero.find('\n', fine) + 1;
        return intero.substr(0, fine);
    };
    const struct {
        std::string testo;
        const char *riga, *atteso;
    } casi[] = {
        {"", "riga 1", "numero degli strati"},
        {primeRighe(1), "riga 2", "profondità dello strato 1"},
        {primeRighe(10), "riga 11", "peso naturale dello strato 2"},
        {primeRighe(20), "riga 21", "opzione di ks"},
        {primeRighe(40), "riga 41", "tipo del tirante 1"},
        {primeRighe(44), "riga 45", "sovraccarico della fase 1"},
        {primeRighe(60), "riga 61", "diametro delle armature a monte"},
        {"101\r\n", "riga 1", "numero degli strati, un intero da 0 a 100"},
        {"-1\r\n", "riga 1", "un intero da 0 a 100"},
        {"2.5\r\n", "riga 1", "un intero da 0 a 100"},
        {"due\r\n", "riga 1", "un intero da 0 a 100"},
        {"\r\n", "riga 1", "un intero da 0 a 100"},
        {primeRighe(9) + "venti\r\n", "riga 10", "profondità dello strato 2"},
        {primeRighe(36) + "21\r\n", "riga 37", "numero dei tiranti, un intero da 0 a 20"},
        {primeRighe(41) + "21\r\n", "riga 42", "numero delle fasi, un intero da 0 a 20"},
    };
    for (const auto& caso : casi) {
        metti(progetto, caso.testo);
        const auto prima = file();
        for (const char* comando : {"calcola", "relazione", "verifica"}) {
            const auto esito = esegui(comando, {"--uscita", cartella / "fuori"});
            EXPECT_EQ(esito.codice, 3);
            EXPECT_TRUE(dice(esito.errori, progetto + ", " + caso.riga + ":")) << esito.errori;
            EXPECT_TRUE(dice(esito.errori, caso.atteso)) << esito.errori;
        }
        EXPECT_EQ(file(), prima);
        EXPECT_FALSE(fs::exists(cartella / "fuori"));
    }
}

TEST_F(IngressoRotto, AResultFileCutShortIsRemovedWithAWordAndComputedAnew) {
    ASSERT_EQ(esegui("relazione").codice, 0);
    const std::string buono = contenuto(cartella / "muro.OUT");
    const std::string relazione = contenuto(cartella / "muro.TAB");
    std::vector<std::size_t> tagli = {0, 1, 2, 50, 200, 300};
    for (std::size_t t = buono.find("sigmaVv"); t < buono.size(); t += 173) tagli.push_back(t);
    for (std::size_t t = buono.size() - 30; t < buono.size(); ++t) tagli.push_back(t);
    for (const std::size_t taglio : tagli) {
        metti(cartella / "muro.OUT", buono.substr(0, taglio));
        fs::remove(cartella / "muro.TAB");
        const auto esito = esegui("relazione");
        EXPECT_EQ(esito.codice, 0) << taglio << esito.errori;
        EXPECT_EQ(contenuto(cartella / "muro.TAB"), relazione) << taglio;
        const bool tolto = dice(esito.errori, "È stato tolto un file dei risultati incompiuto");
        EXPECT_EQ(tolto, taglio + 2 < buono.size()) << taglio;  // but for the last line end
    }
}

TEST_F(IngressoRotto, AResultFileBrokenInTheMiddleIsRefusedWithWhatToDo) {
    ASSERT_EQ(esegui("relazione").codice, 0);
    fs::remove(cartella / "muro.TAB");
    std::string rotto = contenuto(cartella / "muro.OUT");
    rotto.erase(rotto.find(',', rotto.find("sigmaVv") + 160), 1);
    metti(cartella / "muro.OUT", rotto);
    const auto esito = esegui("relazione");
    EXPECT_EQ(esito.codice, 3);
    EXPECT_TRUE(dice(esito.errori, cartella / "muro.OUT, riga ")) << esito.errori;
    EXPECT_TRUE(dice(esito.errori, "cancellarlo e ripetere il calcolo")) << esito.errori;
    EXPECT_EQ(nomi(), "muro.OUT muro.kvd ");
}

TEST_F(IngressoRotto, AResultFileOfAnotherMeshIsRefusedWithWhatToDo) {
    ASSERT_EQ(esegui("calcola").codice, 0);
    for (const char* nSeg : {"9", "11", "20"}) {
        for (const char* comando : {"calcola", "relazione"}) {
            const auto esito = console({comando, progetto, "--nseg", nSeg});
            EXPECT_EQ(esito.codice, 3);
            EXPECT_TRUE(dice(esito.errori, "muro.OUT")) << esito.errori;
            EXPECT_TRUE(dice(esito.errori, "altro numero di segmenti (nseg.txt)")) << esito.errori;
        }
    }
    EXPECT_EQ(nomi(), "muro.OUT muro.kvd ");
}

TEST_F(IngressoRotto, AnUnusableNumberOfSegmentsIsARefusalWithAMessage) {
    for (const char* nSeg : {"2", "250", "0", "-7", "1.5", "1e999"}) {
        const auto esito = console({"calcola", progetto, std::string("--nseg=") + nSeg});
        EXPECT_EQ(esito.codice, 1) << nSeg;
        EXPECT_TRUE(dice(esito.errori,
                         "ATTENZIONE! Il numero di segmenti indicato con l'opzione --nseg non è "
                         "ammesso"))
            << esito.errori;
    }
    fs::create_directory(cartella / "casa");
    metti(cartella / "casa/nseg.txt", "molti\r\n");
    const auto daFile = console({"calcola", progetto, "--cartella", cartella / "casa"});
    EXPECT_EQ(daFile.codice, 1);
    EXPECT_TRUE(dice(daFile.errori, "indicato in nseg.txt non è ammesso")) << daFile.errori;
    EXPECT_EQ(nomi(), "muro.kvd ");
}

TEST_F(IngressoRotto, ASlopeAboveTheFrictionAngleIsRefusedWithStageDepthAndCause) {
    auto d = progettoSemplice();
    d.phiStrato[2] = 10;
    d.inclinazioneMonte = 20;
    scrivi(d);
    metti(cartella / "muro.OUT", "1\r\n");  // of an earlier run
    const auto esito = esegui("relazione");
    EXPECT_EQ(esito.codice, 1);
    EXPECT_TRUE(dice(esito.errori,
                     "ATTENZIONE! Calcolo interrotto: fase 1, profondità 4.8 m: "
                     "coefficienti di spinta non definiti: l'inclinazione del "
                     "terreno supera l'angolo di attrito."))
        << esito.errori;
    EXPECT_EQ(nomi(), "muro.kvd ");
}

TEST_F(IngressoRotto, AFailingWallIsRefusedAndLeavesNoResultFile) {
    auto d = progettoSemplice();
    d.nTiranti = 0;
    d.nFasi = 1;
    d.profFase[1] = 11.9;  // dug out to the toe
    scrivi(d);
    const auto esito = esegui("calcola");
    EXPECT_EQ(esito.codice, 1);
    EXPECT_TRUE(dice(esito.errori, "La geometria assegnata al diaframma")) << esito.errori;
    EXPECT_EQ(nomi(), "muro.kvd ");
}

TEST_F(IngressoRotto, MoreAnchorsThanTheTableHoldsAreRefusedWithTheirStage) {
    auto d = progettoSemplice();
    d.tirantiFase[2] = 25;
    scrivi(d);
    const std::string detto = "più tiranti di quanti ne tiene la tabella (20)";
    for (const char* comando : {"calcola", "relazione", "verifica"}) {
        const auto esito = esegui(comando);
        EXPECT_EQ(esito.codice, 1);
        EXPECT_TRUE(dice(esito.errori + esito.uscita, detto)) << esito.errori << esito.uscita;
    }
    EXPECT_EQ(nomi(), "muro.kvd ");
}

TEST_F(IngressoRotto, MoreBarsThanTheCalculationsTakeAreRefusedWithTheirNumber) {
    auto d = progettoSemplice();
    d.sezione = structure::paliArmati();
    d.sezione.armNumLong = 200000;
    scrivi(d);
    for (const char* comando : {"calcola", "relazione", "verifica"}) {
        const auto esito = esegui(comando);
        EXPECT_EQ(esito.codice, 1);
        EXPECT_TRUE(dice(esito.errori + esito.uscita,
                         "numero di ferri oltre la capacità (100000) (200000)\n"))
            << esito.errori << esito.uscita;
    }
    EXPECT_EQ(nomi(), "muro.kvd ");
}

TEST_F(IngressoRotto, AValueTooLargeToBeShownIsARefusalWithoutAReport) {
    auto d = progettoSemplice();
    d.nStrati = 3;  // a layer below the wall, which no node lies in
    d.profStrato[3] = 40;
    d.gammaN[3] = 1.7e308;
    scrivi(d);
    const auto esito = esegui("relazione");
    EXPECT_EQ(esito.codice, 1);
    EXPECT_TRUE(dice(esito.errori, progetto + ": i dati portano a un valore troppo grande"))
        << esito.errori;
    EXPECT_TRUE(
        dice(esito.errori, "; il comando verifica nomina i campi con valori troppo grandi\n"))
        << esito.errori;
    EXPECT_EQ(nomi(), "muro.kvd ");  // as after a singular system
    const auto verifica = esegui("verifica");
    EXPECT_EQ(verifica.codice, 1);
    EXPECT_TRUE(
        dice(verifica.uscita,
             "impedisce il calcolo: strato 3: Gamma [kN/m³]: valore troppo grande per essere "
             "mostrato\n"))
        << verifica.uscita;
}

TEST_F(IngressoRotto, APipeIsToldInsteadOfWaitedFor) {
    fs::remove(progetto);
    ASSERT_EQ(::mkfifo(progetto.c_str(), 0600), 0);
    const auto esito = esegui("calcola");
    EXPECT_EQ(esito.codice, 3);
    EXPECT_TRUE(dice(esito.errori, progetto + ": non è un file normale")) << esito.errori;
}

TEST_F(IngressoRotto, AFullStandardOutputIsTold) {
    ASSERT_EQ(console({"calcola", progetto}).codice, 0);  // what follows writes no result file
    const Ambiente piena{.uscita = "/dev/full"};
    for (const std::vector<std::string>& argomenti : {std::vector<std::string>{"calcola", progetto},
                                                      {"calcola", progetto, "--json"},
                                                      {"verifica", progetto},
                                                      {"--help"},
                                                      {"--versione"}}) {
        const auto esito = console(argomenti, piena);
        EXPECT_EQ(esito.codice, 3) << argomenti[0];
        EXPECT_TRUE(dice(esito.errori, "korven32c: impossibile scrivere sull'uscita normale"))
            << esito.errori;
    }
    EXPECT_EQ(console({"calcola", progetto, "--silenzioso"}, piena).codice, 0);  // writes nothing
}

TEST_F(IngressoRotto, AFullDiskLeavesTheProjectAndNoHalfFile) {
    for (const std::size_t byte : {0U, 100U, 1000U, 2000U}) {  // head, stages
        const auto esito = esegui("calcola", test::DiscoPieno(byte));
        EXPECT_EQ(esito.codice, 3) << byte;
        EXPECT_TRUE(dice(esito.errori, nonScritto("muro.OUT"))) << esito.errori;
        EXPECT_EQ(nomi(), "muro.kvd ") << byte;
    }
    ASSERT_EQ(esegui("calcola").codice, 0);
    const auto prima = file();
    const auto esito = esegui("relazione", test::DiscoPieno(1000));  // the results are up to date
    EXPECT_EQ(esito.codice, 3);
    EXPECT_TRUE(dice(esito.errori, nonScritto("muro.TAB"))) << esito.errori;
    EXPECT_EQ(file(), prima);
}

TEST_F(IngressoRotto, AFullDiskLeavesNoHalfReportInAnyForm) {
    ASSERT_EQ(esegui("relazione").codice, 0);
    const auto prima = file();
    const std::size_t relazione = prima.at("muro.TAB").size();
    const std::pair<std::vector<std::string>, const char*> forme[] = {
        {{"--txt"}, "muro.txt"}, {{"--pdf", cartella / "muro.pdf"}, "muro.pdf"}};
    for (const auto& [opzioni, nome] : forme) {
        const auto esito = esegui("relazione", test::DiscoPieno(relazione + 1000), opzioni);
        EXPECT_EQ(esito.codice, 3) << nome;
        EXPECT_TRUE(dice(esito.errori, nonScritto(nome))) << esito.errori;
        EXPECT_EQ(file(), prima) << nome;
    }
}

TEST_F(IngressoRotto, AFullDiskLeavesNoHalfDrawingInAnyForm) {
    for (const char* forma : {"dxf", "pdf", "svg", "png"}) {
        const std::string nome = std::string("muro.") + forma;
        const auto esito =
            console({"sezione", progetto, std::string("--") + forma, cartella / nome},
                    test::DiscoPieno(500));
        EXPECT_EQ(esito.codice, 3) << nome;
        EXPECT_TRUE(dice(esito.errori, nonScritto(nome))) << esito.errori;
        EXPECT_EQ(nomi(), "muro.kvd ") << nome;
    }
}

// The system ends a program whose file grows beyond the limit of its processes, unless it says that
// it won't be ended so: no disk within the test can show that.
TEST_F(IngressoRotto, ALimitOnTheSizeOfFilesIsAFailedWriteLikeOthers) {
    const auto esito = esegui("calcola", {}, {.limiteFile = 1000});
    EXPECT_EQ(esito.codice, 3);
    EXPECT_TRUE(dice(esito.errori, cartella / "muro.OUT: impossibile scrivere il file (il file è "
                                              "troppo grande)"))
        << esito.errori;
    EXPECT_EQ(nomi(), "muro.kvd ");
}

TEST_F(IngressoRotto, AFolderThatCannotBeWrittenIsToldAndTheProjectIsUntouched) {
    const auto prima = file();
    fs::permissions(cartella.percorso(), fs::perms::owner_read | fs::perms::owner_exec);
    const auto esito = esegui("calcola", {}, {.senzaPrivilegi = true});
    fs::permissions(cartella.percorso(), fs::perms::owner_all);
    if (esito.codice == 127) GTEST_SKIP() << "root without the right to give up its rights";
    EXPECT_EQ(esito.codice, 3);
    EXPECT_TRUE(dice(esito.errori, cartella / "muro.OUT: impossibile scrivere il file"))
        << esito.errori;
    EXPECT_TRUE(dice(esito.errori, "; --uscita DIR: scrive i risultati in questa cartella"))
        << esito.errori;
    EXPECT_EQ(file(), prima);
}

TEST_F(IngressoRotto, AFolderThatCannotBeMadeIsTold) {
    const auto prima = file();
    const auto altra = esegui("calcola", {"--uscita", "/proc/self/uscita"});
    EXPECT_EQ(altra.codice, 3);
    EXPECT_TRUE(dice(altra.errori, "/proc/self/uscita: impossibile creare la cartella"))
        << altra.errori;
    EXPECT_EQ(file(), prima);
}

TEST_F(IngressoRotto, ANameThatWouldTakeThePlaceOfAnotherFileHasTheExitCodeOfItsKind) {
    const std::string uno = cartella / "uno.x", doc = cartella / "muro.doc",
                      risultati = cartella / "muro.OUT", prima = contenuto(progetto);
    const struct {
        std::vector<std::string> argomenti;
        int codice;
    } casi[] = {
        // Two files of the command, or one of the report's.
        {{"allegato", progetto, "--pdf", uno, "--txt", uno}, 2},
        {{"tabelle", progetto, "--xlsx", uno, "--csv", uno}, 2},
        {{"sicurezza", progetto, "--csv", uno, "--pdf", uno}, 2},
        {{"allegato", progetto, "--doc", doc}, 2},
        {{"tabelle", progetto, "--xlsx", cartella / "muro.txt"}, 2},
        {{"equilibrio", progetto, "--csv", doc}, 2},
        {{"sezione", progetto, "--pdf", doc}, 2},
        {{"confronta", progetto, progetto, "--pdf", doc}, 2},
        // Two forms of one drawing, or of one report.
        {{"sezione", progetto, "--pdf", uno, "--svg", uno}, 3},
        {{"relazione", progetto, "--pdf", doc}, 3},
        // The project or its results.
        {{"allegato", progetto, "--pdf", progetto}, 3},
        {{"tabelle", progetto, "--xlsx", risultati}, 3},
        {{"equilibrio", progetto, "--csv", progetto}, 3},
        {{"sicurezza", progetto, "--pdf", risultati}, 3},
        {{"sezione", progetto, "--pdf", progetto}, 3},
        {{"relazione", progetto, "--pdf", risultati}, 3},
        {{"confronta", progetto, progetto, "--pdf", progetto}, 3},
        {{"confronta", progetto, progetto, "--pdf", risultati}, 3},
    };
    for (const auto& [argomenti, codice] : casi) {
        const auto esito = console(argomenti);
        EXPECT_EQ(esito.codice, codice) << argomenti[0] << ' ' << esito.errori;
        EXPECT_EQ(nomi(), "muro.kvd ") << argomenti[0];
    }
    EXPECT_TRUE(contenuto(progetto) == prima);
}

}  // namespace
}  // namespace korven::batch
